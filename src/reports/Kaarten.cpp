#include "reports/Kaarten.h"

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

#include "output/Blik.h"
#include "output/DatumZin.h"
#include "text/Getallen.h"
#include "text/Letterlijk.h"
#include "text/Namen.h"

namespace lb77 {
namespace {

constexpr int kKolom = 19;  // where values begin
constexpr std::size_t kLabel = 17;
constexpr std::int16_t kEersteNr = 2;
constexpr std::string_view kOnbekend = "<onbekend>";
const std::string kGeenPeriode = "\?\?\?\?-\?\?\?\?";  // of whom can't be read

// The parts that are there, with a blank between them.
std::string Samen(std::initializer_list<std::string_view> delen) {
  std::string uit;
  for (const std::string_view deel : delen) {
    if (deel.empty()) continue;
    if (!uit.empty()) uit += ' ';
    uit += deel;
  }
  return uit;
}

std::string_view Correctiewoord(std::string_view corr) {
  if (IsCode(corr, correctie::kNa)) return "ná"_w;
  if (IsCode(corr, correctie::kVoor)) return "vóór"_w;
  if (IsCode(corr, correctie::kCirca)) return "circa";
  return {};
}

// The numbers that are there, with a blank between them.
template <class Tab>
std::string Nummers(const Tab& tab) {
  std::string uit;
  for (std::size_t plaats = 1; plaats < tab.size(); ++plaats) {
    if (tab[plaats] > 0) uit = Samen({uit, GetalTekst(tab[plaats])});
  }
  return uit;
}

// Two events that may be the bounds of one span.
struct Paar {
  std::string_view label1;
  const Gebeurtenis& een;
  std::string_view label2;
  const Gebeurtenis& twee;
  std::string_view corr;
};

class Kaart {
 public:
  Kaart(TekstSchrijver& uit, const Gegevens& gegevens) : uit_(uit), bron_(gegevens) {}

  void Persoon(const PersoonBlik& blik);
  void Relatie(std::int16_t nr);

 private:
  void Regel(std::string_view label, std::string_view waarde);
  void Vervolgregel(std::string_view waarde);
  void Kop(std::string_view label, std::int16_t nr);
  void EenGebeurtenis(std::string_view label, std::string_view woord, const Gebeurtenis& wat);
  void TweeGebeurtenissen(const Paar& paar);
  void Partner(std::string_view label, std::int16_t nr);
  void Slot(std::int16_t opmRecord, std::int16_t opmCode);
  [[nodiscard]] std::string Datum(const Gebeurtenis& wat) const;
  [[nodiscard]] std::string Plaats(const Gebeurtenis& wat) const;

  TekstSchrijver& uit_;
  const Gegevens& bron_;
};

// The label fills its columns; what does not fit behind it goes on below its value.
void Kaart::Regel(std::string_view label, std::string_view waarde) {
  uit_.Vast(Links(label, kLabel) + ": ");
  uit_.ZetMarge(true, kKolom);
  uit_.VolleRegel(waarde);
  uit_.ZetMarge(true, 0);
}

void Kaart::Vervolgregel(std::string_view waarde) {
  uit_.Vast(std::string(kKolom, ' '));
  uit_.ZetMarge(true, kKolom);
  uit_.VolleRegel(waarde);
  uit_.ZetMarge(true, 0);
}

void Kaart::Kop(std::string_view label, std::int16_t nr) {
  uit_.VolleRegel(Links(label, kLabel) + ":    " + GetalTekst(nr));
  uit_.LegeRegel();
}

std::string Kaart::Datum(const Gebeurtenis& wat) const {
  return KaleDatum(wat.dagMaand, wat.jaar, {}, bron_.schrijfwijze.DatumScheider);
}

std::string Kaart::Plaats(const Gebeurtenis& wat) const {
  return wat.plaatsNr != 0 ? bron_.plaats.Naam2(wat.plaatsNr) : std::string();
}

void Kaart::EenGebeurtenis(std::string_view label, std::string_view woord, const Gebeurtenis& wat) {
  Regel(label, Samen({woord, Datum(wat), Plaats(wat)}));
}

void Kaart::TweeGebeurtenissen(const Paar& paar) {
  if (IsCode(paar.corr, correctie::kTussen)) {
    Regel(paar.label1, {});
    Vervolgregel(Samen({"tussen", Datum(paar.een), "en", Datum(paar.twee), Plaats(paar.een)}));
    return;
  }
  EenGebeurtenis(paar.label1, Correctiewoord(paar.corr), paar.een);
  EenGebeurtenis(paar.label2, {}, paar.twee);
}

void Kaart::Slot(std::int16_t opmRecord, std::int16_t opmCode) {
  Regel("Recordnr. opm.", NrTekst(opmRecord));
  Regel("Veldcode opm.", NrTekst(opmCode));
  uit_.VolleRegel(std::string(static_cast<std::size_t>(uit_.RechterMarge()), '='));
}

void Kaart::Persoon(const PersoonBlik& blik) {
  const Levensloop& leven = blik.leven;
  Kop("Persoonsnummer", blik.nr);
  Regel("Familienaam", blik.achternaam);
  Regel("Voornamen", blik.voornaam);
  uit_.LegeRegel();
  TweeGebeurtenissen({"Geboren", leven.geboorte, "Gedoopt", leven.doop, leven.gebCorr});
  uit_.LegeRegel();
  TweeGebeurtenissen({"Overleden", leven.overlijden, leven.crematie ? "Crematie" : "Begraven",
                      leven.begrafenis, leven.ovlCorr});
  uit_.LegeRegel();
  Huwtab huwtab{};
  // A list that can't be read to its end gives what it has.
  static_cast<void>(bron_.persoon.VulHuwtab(blik.nr, huwtab));
  Regel("Geslacht", blik.geslacht);
  Regel("Beroep(en)", blik.beroep);
  Regel("Eigen relatie(s)", Nummers(huwtab));
  Regel("Relatie ouders", NrTekst(blik.relNrOuders));
  Slot(blik.opmRecord, blik.opmCode);
}

// Number and name, and the lifetime below it. Record 1 can be read, but is nobody.
void Kaart::Partner(std::string_view label, std::int16_t nr) {
  std::string voor;
  std::string achter;
  if (nr >= kEersteNr) bron_.persoon.HeleNaam(nr, voor, achter, kOnbekend);
  const std::string naam = Samen({voor, achter});
  Regel(label, Samen({NrTekst(nr), naam.empty() ? kOnbekend : std::string_view(naam)}));
  // Who could not be read for his name is not read again.
  Vervolgregel(nr == 0 || !naam.empty() ? bron_.persoon.Periode(nr) : kGeenPeriode);
}

std::string_view BondLabel(std::string_view bond) {
  if (IsCode(bond, bond::kSamenwonen)) return "Samenwonen";
  if (IsCode(bond, bond::kPartnerschap)) return "Partnerschap";
  return "Wettig Huw.";
}

// The relation in the buffer.
void Kaart::Relatie(std::int16_t nr) {
  const RelatieLB77& relatie = bron_.relatie;
  const Verbintenis verbintenis = VerbintenisVan(relatie);
  const std::int16_t opmRecord = relatie.OpmRecord();
  const std::int16_t opmCode = relatie.OpmCode();
  Kop("Relatienummer", nr);
  Partner("Man", relatie.ManNr());
  Partner("Vrouw", relatie.VrouwNr());
  uit_.LegeRegel();
  EenGebeurtenis("Ondertrouw", {}, verbintenis.ondertrouw);
  TweeGebeurtenissen({BondLabel(verbintenis.bond), verbintenis.wettig,
                      verbintenis.scheiding ? "Scheiding" : "Kerk. Huw.", verbintenis.kerk,
                      verbintenis.corr});
  uit_.LegeRegel();
  Regel("Kind(eren)", Nummers(LeesKinderen(bron_.relatie, nr).plaatsen));
  Slot(opmRecord, opmCode);
}

// The number of a record that holds data; nothing for the admin record and for no record.
std::optional<std::int16_t> GewoonNr(std::int32_t nr) {
  return nr < kEersteNr ? std::nullopt : NaarInt16(nr);
}

}  // namespace

void SchrijfPersoonskaart(TekstSchrijver& uit, const Gegevens& gegevens, std::int32_t nr) {
  const auto welk = GewoonNr(nr);
  const auto blik = welk ? LeesPersoonBlik(gegevens.persoon, *welk) : std::nullopt;
  if (blik) {
    Kaart(uit, gegevens).Persoon(*blik);
  } else {
    uit.VolleRegel("Leesfout bij persoonsrecord " + GetalTekst(nr));
  }
}

void SchrijfRelatiekaart(TekstSchrijver& uit, const Gegevens& gegevens, std::int32_t nr) {
  const auto welk = GewoonNr(nr);
  if (welk && gegevens.relatie.Lees(*welk)) {
    Kaart(uit, gegevens).Relatie(*welk);
  } else {
    uit.VolleRegel("Leesfout bij relatierecord " + GetalTekst(nr));
  }
}

}  // namespace lb77
