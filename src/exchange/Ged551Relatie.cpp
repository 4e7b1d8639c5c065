#include "exchange/Ged551Relatie.h"

#include <cstddef>
#include <string>
#include <string_view>

#include "exchange/EigenPaden.h"
#include "store/Codes.h"
#include "store/RelatieVelden.h"
#include "store/Rubrieken.h"

namespace lb77 {

namespace {

namespace rubriek = relatierubriek;

// What the record tells: its buffer is wanted for others while the lines are written.
struct Foto {
  explicit Foto(const RelatieLB77& r)
      : man(r.ManNr()),
        vrouw(r.VrouwNr()),
        ondertrouw{"MARB",
                   "",
                   {r.OtrDagMaand(), r.OtrJaar()},
                   {},
                   "",
                   r.OtrPlaatsNr(),
                   rubriek::kOtrDatum,
                   rubriek::kOtrPlaats},
        wettig{"MARR",
               eigen::kWettig,
               {r.WetHuwDagMaand(), r.WetHuwJaar()},
               {},
               r.HuwCorr(),
               r.WetHuwPlaatsNr(),
               rubriek::kWetHuwDatum,
               rubriek::kWetHuwPlaats},
        kerk{"MARR",
             eigen::kKerk,
             {r.KHuwDagMaand(), r.KHuwJaar()},
             {},
             "",
             r.KHuwPlaatsNr(),
             rubriek::kKHuwDatum,
             rubriek::kKHuwPlaats},
        gescheiden(r.KHuwSch()),
        bond(r.HuwSwPs()),
        soort(r.Waarde(relatieveld::HuwSoort)),
        religie(r.Waarde(relatieveld::Religie)),
        opmRecord(r.OpmRecord()) {
    if (gescheiden) kerk.tag = "DIV";
    if (!IsCode(wettig.corr, correctie::kTussen)) return;
    // The end of a period lies in the fields of the event behind it.
    wettig.tot = kerk.datum;
    kerk.datum = {};
  }

  std::int16_t man;
  std::int16_t vrouw;
  Ged551Gebeurtenis ondertrouw;
  Ged551Gebeurtenis wettig;
  Ged551Gebeurtenis kerk;  // or the divorce
  bool gescheiden;
  std::string bond;
  std::string soort;
  std::string religie;
  std::int16_t opmRecord;
};

void Voeg(std::string& lijst, std::string_view woorden) {
  if (woorden.empty()) return;
  lijst.append(lijst.empty() ? "" : ", ").append(woorden);
}

class Schrijver {
 public:
  Schrijver(const Foto& foto, Ged551Velden& velden, const Ged551Mee& mee)
      : foto_(foto), velden_(velden), mee_(mee) {
    metKerk_ = foto.gescheiden || !foto.religie.empty() || velden.HeeftInhoud(foto.kerk) ||
               velden.Heeft(rubriek::kReligie);
  }

  void Personen(const Kindtab& kinderen) {
    if (foto_.man != 0) Persoon("HUSB", foto_.man);
    if (foto_.vrouw != 0) Persoon("WIFE", foto_.vrouw);
    std::size_t laatste = kinderen.size() - 1;
    while (laatste > 0 && kinderen[laatste] == 0) --laatste;
    for (std::size_t i = 1; i <= laatste; ++i) {
      if (kinderen[i] == 0) {
        velden_.regels.Regel(1, eigen::kKind);
      } else {
        Persoon("CHIL", kinderen[i]);
      }
    }
  }

  void Ondertrouw() {
    if (velden_.HeeftInhoud(foto_.ondertrouw)) velden_.Gebeurtenis(foto_.ondertrouw);
  }

  void Wettig() {
    const bool inhoud = velden_.HeeftInhoud(foto_.wettig) || !foto_.bond.empty() ||
                        !foto_.soort.empty() || velden_.Heeft(rubriek::kHuwSoort);
    if (!inhoud) return;
    velden_.Gebeurtenis(foto_.wettig, [&] {
      velden_.Veld(2, eigen::kBond, BondWoord());
      velden_.Veld(2, eigen::kSoort, foto_.soort);
      velden_.Veld(2, "TYPE", Soort());
    });
    velden_.Opmerkingen(2, rubriek::kHuwSoort, velden_.Pad());
  }

  void Kerk() {
    if (!metKerk_) return;
    velden_.Gebeurtenis(foto_.kerk, [&] {
      velden_.Veld(2, eigen::kGezindte, foto_.religie);
      if (foto_.gescheiden) return;
      std::string soort = "Kerkelijk huwelijk";
      Voeg(soort, velden_.GezindteNaamVan(foto_.religie));
      velden_.Veld(2, "TYPE", soort);
    });
    velden_.Opmerkingen(2, rubriek::kReligie, velden_.Pad());
  }

 private:
  void Persoon(std::string_view tag, std::int16_t nr) {
    if (mee_.personen.Bevat(nr)) {
      velden_.regels.Verwijzing(1, tag, 'I', nr);
    } else {
      ++velden_.gemis.verwijzingen;
    }
  }

  // As Zet takes it.
  [[nodiscard]] std::string_view BondWoord() const {
    if (foto_.bond.empty()) return {};
    return IsCode(foto_.bond, bond::kSamenwonen) ? "Sw" : "Ps";
  }

  // The kind of relation in words. A marriage beside one in church is told from it.
  [[nodiscard]] std::string Soort() const {
    std::string soort;
    if (!foto_.bond.empty()) {
      soort = IsCode(foto_.bond, bond::kSamenwonen) ? "Samenwonen" : "Geregistreerd partnerschap";
    }
    Voeg(soort, velden_.GezindteNaamVan(foto_.soort));
    const bool naastKerk = metKerk_ && !foto_.gescheiden;
    return soort.empty() && naastKerk ? "Burgerlijk huwelijk" : soort;
  }

  const Foto& foto_;
  Ged551Velden& velden_;
  const Ged551Mee& mee_;
  bool metKerk_;
};

}  // namespace

bool SchrijfGed551Relatie(std::int16_t nr, Ged551Velden& velden, const Ged551Mee& mee) {
  velden.regels.Record('F', nr, "FAM");
  RelatieLB77& relatie = velden.gegevens.relatie;
  if (!relatie.Lees(nr)) return false;
  const Foto foto(relatie);
  Kindtab kinderen{};
  if (!relatie.VulKindtab(nr, kinderen).heel) ++velden.gemis.records;
  velden.Begin("FAM", nr, foto.opmRecord);
  Schrijver schrijver(foto, velden, mee);
  schrijver.Personen(kinderen);
  schrijver.Ondertrouw();
  schrijver.Wettig();
  schrijver.Kerk();
  velden.RestOpmerkingen();
  return true;
}

}  // namespace lb77
