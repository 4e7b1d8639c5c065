#include "exchange/Ged551Persoon.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "exchange/EigenPaden.h"
#include "store/Codes.h"
#include "store/PersoonVelden.h"
#include "store/Rubrieken.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

namespace rubriek = persoonrubriek;

// What the record tells: its buffer is wanted for others while the lines are written.
struct Foto {
  explicit Foto(const PersoonLB77& p)
      : voornaam(p.VoorNaamTrue()),
        achternaam(p.AchterNaamTrue()),
        sorteernaam(p.AchterNaamVVC()),
        geslacht(p.Waarde(persoonveld::Geslacht)),
        religie(p.Religie()),
        beroep(p.beroep()),
        geboorte{"BIRT",
                 "",
                 {p.GebDagMaand(), p.GebJaar()},
                 {},
                 p.GebCorr(),
                 p.GebPlaatsNr(),
                 rubriek::kGebDatum,
                 rubriek::kGebPlaats},
        doop{"BAPM",
             "",
             {p.DoopDagMaand(), p.DoopJaar()},
             {},
             "",
             p.DoopPlaatsNr(),
             rubriek::kDoopDatum,
             rubriek::kDoopPlaats},
        overlijden{"DEAT",
                   "",
                   {p.OvDagMaand(), p.OvJaar()},
                   {},
                   p.OvlCorr(),
                   p.OvlPlaatsNr(),
                   rubriek::kOvlDatum,
                   rubriek::kOvlPlaats},
        begrafenis{"BURI",
                   "",
                   {p.BegrDagMaand(), p.BegrJaar()},
                   {},
                   "",
                   p.BegrPlaatsNr(),
                   rubriek::kBegrDatum,
                   rubriek::kBegrPlaats},
        crematie(p.BegrCrem()),
        ouders(p.RelNrOuders()),
        opmRecord(p.OpmRecord()) {
    SluitPeriode(geboorte, doop);
    SluitPeriode(overlijden, begrafenis);
    if (!crematie) return;
    begrafenis.tag = "CREM";
    begrafenis.als = "BURI";
  }

  // The end of a period lies in the fields of the event behind it.
  static void SluitPeriode(Ged551Gebeurtenis& periode, Ged551Gebeurtenis& erachter) {
    if (!IsCode(periode.corr, correctie::kTussen)) return;
    periode.tot = erachter.datum;
    erachter.datum = {};
  }

  std::string voornaam;
  std::string achternaam;
  std::string sorteernaam;
  std::string geslacht;
  std::string religie;
  std::string beroep;
  Ged551Gebeurtenis geboorte;
  Ged551Gebeurtenis doop;
  Ged551Gebeurtenis overlijden;
  Ged551Gebeurtenis begrafenis;
  bool crematie;
  std::int16_t ouders;
  std::int16_t opmRecord;
};

// A slash ends a name.
bool HeeftSchuin(std::string_view naam) {
  return naam.find('/') != std::string_view::npos;
}

std::string ZonderSchuin(std::string_view naam) {
  std::string uit(naam);
  std::ranges::replace(uit, '/', '-');
  return uit;
}

// The length of the prefix that a surname begins with, by its sort form; 0 for none.
std::size_t VoorvoegselLengte(std::string_view naam, std::string_view sorteernaam) {
  const std::size_t komma = sorteernaam.rfind(", ");
  if (komma == std::string_view::npos) return 0;
  const std::string_view voor = Trim(sorteernaam.substr(komma + 2));
  const bool past = !voor.empty() && naam.size() > voor.size() && naam[voor.size()] == ' ';
  return past && GelijkZonderKast(naam.substr(0, voor.size()), voor) ? voor.size() : 0;
}

class Schrijver {
 public:
  Schrijver(const Foto& foto, Ged551Velden& velden, const Ged551Mee& mee)
      : foto_(foto), velden_(velden), mee_(mee) {}

  void Naam() {
    if (foto_.voornaam.empty() && foto_.achternaam.empty()) return;
    const std::string voor = ZonderSchuin(foto_.voornaam);
    const std::string achter = ZonderSchuin(foto_.achternaam);
    velden_.regels.Regel(1, "NAME", voor + " /" + achter + "/");
    if (HeeftSchuin(foto_.voornaam)) velden_.Veld(2, eigen::kVoornaam, foto_.voornaam);
    velden_.Veld(2, "GIVN", voor);
    const std::size_t lengte = VoorvoegselLengte(foto_.achternaam, foto_.sorteernaam);
    if (lengte > 0 || HeeftSchuin(foto_.achternaam)) {
      velden_.Veld(2, eigen::kAchternaam, foto_.achternaam);
    }
    velden_.Veld(2, "SPFX", achter.substr(0, lengte));
    velden_.Veld(2, "SURN", Trim(std::string_view(achter).substr(lengte)));
    velden_.Opmerkingen(2, rubriek::kVoornaam, "INDI-NAME");
    velden_.Opmerkingen(2, rubriek::kAchternaam, "INDI-NAME");
  }

  void Geslacht() {
    if (IsCode(foto_.geslacht, geslacht::kMan)) {
      velden_.Veld(1, "SEX", "M");
    } else if (IsCode(foto_.geslacht, geslacht::kVrouw)) {
      velden_.Veld(1, "SEX", "F");
    } else if (!foto_.geslacht.empty()) {
      velden_.Veld(1, eigen::kGeslacht, foto_.geslacht);
      velden_.Veld(1, "SEX", "U");
    }
  }

  void Gebeurtenissen() {
    if (velden_.HeeftInhoud(foto_.geboorte)) velden_.Gebeurtenis(foto_.geboorte);
    if (velden_.HeeftInhoud(foto_.doop)) velden_.Gebeurtenis(foto_.doop);
    if (velden_.HeeftInhoud(foto_.overlijden)) velden_.Gebeurtenis(foto_.overlijden);
    if (velden_.HeeftInhoud(foto_.begrafenis) || foto_.crematie) {
      velden_.Gebeurtenis(foto_.begrafenis,
                          [&] { velden_.Veld(2, eigen::kCrematie, foto_.crematie ? "1" : ""); });
    }
  }

  // Of the person: other programs pass over a religion below a baptism.
  void Religie() {
    if (!velden_.Gezindte(1, "RELI", foto_.religie)) return;
    velden_.Opmerkingen(2, rubriek::kReligie, "INDI-RELI");
  }

  void Beroep() {
    if (!Ged551Regels::HeeftTekst(foto_.beroep)) return;
    velden_.Veld(1, "OCCU", foto_.beroep);
    velden_.Opmerkingen(2, rubriek::kBeroep, "INDI-OCCU");
  }

  void Relaties(const Huwtab& relaties) {
    if (foto_.ouders != 0) Relatie("FAMC", foto_.ouders);
    std::size_t laatste = relaties.size() - 1;
    while (laatste > 0 && relaties[laatste] == 0) --laatste;
    for (std::size_t i = 1; i <= laatste; ++i) {
      if (relaties[i] == 0) {
        velden_.regels.Regel(1, eigen::kRelatie);
      } else {
        Relatie("FAMS", relaties[i]);
      }
    }
  }

 private:
  void Relatie(std::string_view tag, std::int16_t nr) {
    if (mee_.relaties.Bevat(nr)) {
      velden_.regels.Verwijzing(1, tag, 'F', nr);
    } else {
      ++velden_.gemis.verwijzingen;
    }
  }

  const Foto& foto_;
  Ged551Velden& velden_;
  const Ged551Mee& mee_;
};

}  // namespace

bool SchrijfGed551Persoon(std::int16_t nr, Ged551Velden& velden, const Ged551Mee& mee) {
  velden.regels.Record('I', nr, "INDI");
  PersoonLB77& persoon = velden.gegevens.persoon;
  if (!persoon.Lees(nr)) return false;
  const Foto foto(persoon);
  Huwtab relaties{};
  if (!persoon.VulHuwtab(nr, relaties).heel) ++velden.gemis.records;
  velden.Begin("INDI", nr, foto.opmRecord);
  Schrijver schrijver(foto, velden, mee);
  schrijver.Naam();
  schrijver.Geslacht();
  schrijver.Gebeurtenissen();
  schrijver.Religie();
  schrijver.Beroep();
  velden.RestOpmerkingen();
  schrijver.Relaties(relaties);
  return true;
}

}  // namespace lb77
