#include "entry/WijzigPersoon.h"

#include "entry/HuwRegels.h"
#include "entry/Invoer.h"
#include "entry/Koppelingen.h"
#include "entry/OpmTekst.h"
#include "entry/VolgersBewaker.h"
#include "entry/ZoekPersoon.h"
#include "store/Handeling.h"
#include "store/PersoonVelden.h"
#include "text/Datum.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::string_view kTussen = "T";
constexpr std::string_view kMannelijk = "M";

// What tells one parent from the other.
constexpr PersoonVakSoort kOuderSoort{};

Koppelingen Koppel(Hoofdmodule& hoofd) {
  return {hoofd.Persoon, hoofd.Relatie, hoofd.volgers, hoofd.gesprek};
}

}  // namespace

struct WijzigPersoon::Ouder {
  PersoonVak& vak;
  std::string_view geslacht;
  std::string_view naam;  // in messages
  std::int16_t inRelatie;
};

WijzigPersoon::Ouder WijzigPersoon::Vader() {
  return {Pa, "M", "Vader", Hoofd().Relatie.ManNr()};
}

WijzigPersoon::Ouder WijzigPersoon::Moeder() {
  return {Ma, "V", "Moeder", Hoofd().Relatie.VrouwNr()};
}

WijzigPersoon::WijzigPersoon(Hoofdmodule& hoofd)
    : InvoerFormulier("WijzigPersoon", "Wijzig Persoon", hoofd),
      RelNrOuders(*this, "RelNrOuders", "Relatie ouders:", BestandSoort::Relaties,
                  Vervolgtest::GeenVervolg),
      Pa(*this, "Pa", kOuderSoort),
      Ma(*this, "Ma", kOuderSoort) {
  ZetHulpOnderwerp("personen");
  ZetEersteVeld(Geslacht);
  BindVelden();
  Geslacht.ZetFilter(InHoofdletters);
  Geslacht.BijBetreden([this] { OudGeslacht = Geslacht.Tekst(); });
  Geslacht.BijVerlaten([this] { return GeslachtVerlaten(); });
  for (CorrectieVak* corr : {&GebCorr, &OvlCorr}) {
    corr->BijVerlaten([this] {
      ToonPeriodes();
      return true;
    });
  }
  RelNrOuders.BijVerlaten([this] { return RelNrOudersVerlaten(); });
  AlgPersOpmTekst.ZetAlleenLezen(true);
  Opslaan.BijKlik([this] { OpslaanKlik(); });
  BackButton.BijKlik([this] { BackButtonKlik(); });
}

// In the order in which they are stored.
void WijzigPersoon::BindVelden() {
  namespace veld = persoonveld;
  velden_.Bind(
      veld::Geslacht,
      [this](const std::string& waarde) { Geslacht.ZetTekst(waarde.empty() ? "O" : waarde); },
      [this] { return Geslacht.Tekst(); });
  velden_.Bind(veld::Voornaam, VoorNm);
  velden_.Bind(veld::Achternaam, AchterNm);
  velden_.Bind(veld::GebCorr, GebCorr);
  velden_.Bind(veld::GebDagMaand, GebDatum);
  velden_.Bind(veld::GebPlaatsNr, GebPlts);
  velden_.Bind(veld::DoopDagMaand, DoopDatum);
  velden_.Bind(veld::DoopPlaatsNr, DoopPlts);
  velden_.Bind(veld::Religie, Religie);
  velden_.Bind(veld::OvlCorr, OvlCorr);
  velden_.Bind(veld::OvDagMaand, OvlDatum);
  velden_.Bind(veld::OvlPlaatsNr, OvlPlts);
  velden_.BindKeuze(veld::BegrCrem, BegrLabel);
  velden_.Bind(veld::BegrDagMaand, BegrDatum);
  velden_.Bind(veld::BegrPlaatsNr, BegrPlts);
  velden_.Bind(veld::beroep, BeroepTekst);
  velden_.Bind(
      veld::RelNrOuders,
      [this](const std::string& waarde) { RelNrOuders.ToonNr(Getal16(waarde)); },
      [this] { return GetalTekst(RelNrOuders.Nr()); });
}

void WijzigPersoon::BijLaden() {
  if (!NeemRecord()) {
    Hoofd().volgers.HuidigPersoonNr = -1;
    Sluit();
    return;
  }
  PersoonLB77& persoon = Hoofd().Persoon;
  const std::int16_t opmCode = persoon.OpmCode();
  const std::int16_t opmRecord = persoon.OpmRecord();
  oudeOuders_ = persoon.RelNrOuders();
  RecordNr.ZetTekst(GetalTekst(nr_));
  velden_.Toon(persoon);
  OudGeslacht = Geslacht.Tekst();
  ToonOuders(oudeOuders_);
  ToonPartners();
  ToonOpmerking(opmCode, opmRecord);
  ToonPeriodes();
  Hoofd().volgers.HuidigPersoonNr = nr_;
}

bool WijzigPersoon::NeemRecord() {
  nr_ = Hoofd().volgers.HuidigPersoonNr;
  bestaat_ = nr_ != -1;
  return bestaat_ ? NeemBestaand() : NeemNieuw();
}

bool WijzigPersoon::NeemBestaand() {
  PersoonLB77& persoon = Hoofd().Persoon;
  if (nr_ < 2 || nr_ > persoon.AantalRecords()) {
    Hoofd().gesprek.Waarschuw("Het opgegeven Persoonsnummer komt niet voor");
    return false;
  }
  if (!persoon.Lees(nr_)) {
    Hoofd().gesprek.Fout("Leesfout bij persoonsrecord " + GetalTekst(nr_));
    return false;
  }
  if (persoon.IsVolgRecord()) {
    Hoofd().gesprek.Waarschuw("Het opgegeven record is een vervolgrecord");
    return false;
  }
  return true;
}

bool WijzigPersoon::NeemNieuw() {
  const std::int32_t nieuw = std::max<std::int32_t>(Hoofd().Persoon.AantalRecords() + 1, 2);
  if (nieuw > kMaxRecords) {
    Hoofd().gesprek.Fout(kMaximumBereikt);
    return false;
  }
  nr_ = static_cast<std::int16_t>(nieuw);
  Hoofd().Persoon.LeegPersBuffer();
  return true;
}

void WijzigPersoon::ToonOuders(std::int16_t relatie) {
  RelatieLB77& bron = Hoofd().Relatie;
  const bool bekend = relatie > 0 && bron.Lees(relatie);
  Pa.Toon(bekend ? bron.ManNr() : std::int16_t{0});
  Ma.Toon(bekend ? bron.VrouwNr() : std::int16_t{0});
}

void WijzigPersoon::ToonPartners() {
  std::vector<HuwRegel> regels;
  if (bestaat_) regels = LeesHuwRegels(Hoofd().Persoon, Hoofd().Relatie, Hoofd().gesprek, nr_);
  Partners.Elk([&](int nummer, PartnerRij& rij) {
    const auto plaats = static_cast<std::size_t>(nummer - 1);
    rij.Toon(plaats < regels.size() ? &regels[plaats] : nullptr);
  });
}

void WijzigPersoon::ToonOpmerking(std::int16_t opmCode, std::int16_t opmRecord) {
  AlgPersOpmTekst.ZetTekst(
      OpmTekst(Hoofd().Opmerking, opmCode, opmRecord, rubriek::kAlgemeenPersoon, 1));
}

// With "T" the second date ends the period, and what belongs to a second event is not there.
void WijzigPersoon::ToonPeriodes() {
  const bool geboren = GebCorr.Tekst() != kTussen;
  DoopLabel.ZetZichtbaar(geboren);
  DoopPlts.ZetZichtbaar(geboren);
  ReligieLabel.ZetZichtbaar(geboren);
  Religie.ZetZichtbaar(geboren);
  BegrPlts.ZetZichtbaar(OvlCorr.Tekst() != kTussen);
}

bool WijzigPersoon::GeslachtIsVast() const {
  return Geslacht.Tekst() != OudGeslacht && Partners(1).HeeftRelatie();
}

bool WijzigPersoon::Weiger(Bediening& veld, std::string_view melding) {
  Hoofd().gesprek.Waarschuw(melding);
  ZetFocus(veld);
  return false;
}

bool WijzigPersoon::GeslachtVerlaten() {
  const std::string& geslacht = Geslacht.Tekst();
  if (geslacht != "O" && geslacht != "M" && geslacht != "V") {
    Hoofd().gesprek.Waarschuw(
        "Alleen O (Onbekend), M (Mannelijk) of V (Vrouwelijk) toegestaan");
    return false;
  }
  if (!GeslachtIsVast()) return true;
  // Once told, Opslaan may say it once more and put it right.
  if (geweigerd_ == geslacht && Doel() == &Opslaan) return true;
  geweigerd_ = geslacht;
  Hoofd().gesprek.Meld(BerichtSoort::Geen,
                       "Geslacht wijzigen niet toegestaan: er zijn al relaties");
  return false;
}

// The focus goes to the button that leads back: the parents are known now.
bool WijzigPersoon::RelNrOudersVerlaten() {
  const std::int16_t relatie = RelNrOuders.Nr();
  if (relatie != 0 && !Hoofd().Relatie.Lees(relatie)) return false;
  ToonOuders(relatie);
  if (relatie != 0) ZetFocus(BackButton);
  return true;
}

void WijzigPersoon::OpslaanKlik() {
  Handeling handeling(Hoofd().bestanden, "Persoon " + GetalTekst(nr_) + " gewijzigd: " + NaamVan());
  const bool goed = MagGeslacht() && IsChronologisch() && ZoekOpNaam(Vader()) &&
                    ZoekOpNaam(Moeder()) && HoortBijNaam(Vader()) && HoortBijNaam(Moeder()) &&
                    VindRelatie() && KlopptRelatie() && MaakLos() && MaakVast() && Schrijf();
  if (const SysteemFout fout = handeling.Voltooi()) MeldNietVeilig(Hoofd().gesprek, fout);
  if (goed) Sluit();
}

bool WijzigPersoon::MagGeslacht() {
  if (!GeslachtIsVast()) return true;
  Hoofd().gesprek.Waarschuw("Persoon heeft al relatie(s).\nGeslacht niet te wijzigen");
  Geslacht.ZetTekst(OudGeslacht);
  ZetFocus(Geslacht);
  return false;
}

bool WijzigPersoon::IsChronologisch() {
  struct Paar {
    const DatumVak& eerst;
    const DatumVak& later;
    std::string_view melding;
  };
  const Paar paren[] = {
      {GebDatum, DoopDatum, "Geboorte is na de doop !"},
      {GebDatum, OvlDatum, "Geboorte is na het overlijden !"},
      {GebDatum, BegrDatum, "Geboorte is na het begraven !"},
      {DoopDatum, OvlDatum, "Doop is na het overlijden !"},
      {DoopDatum, BegrDatum, "Doop is na het begraven !"},
      {OvlDatum, BegrDatum, "Overlijden is na het begraven !"},
  };
  for (const Paar& paar : paren) {
    if (!DatumIsNa(paar.eerst.Tekst(), paar.later.Tekst())) continue;
    if (!Hoofd().gesprek.Vraag(std::string(paar.melding) + "\nCorrigeren ?")) continue;
    ZetFocus(GebDatum);
    return false;
  }
  return true;
}

bool WijzigPersoon::ZoekOpNaam(const Ouder& ouder) {
  if (!ouder.vak.RecordNr.Tekst().empty()) return true;
  std::string voor = ouder.vak.VoorNm.Tekst();
  std::string achter = ouder.vak.AchterNm.Tekst();
  const VolgersBewaker bewaker(Hoofd().volgers);
  const std::int16_t nr = ZoekPersoonOpNaam(Hoofd(), voor, achter, ouder.geslacht);
  ouder.vak.VoorNm.ZetTekst(voor);
  ouder.vak.AchterNm.ZetTekst(achter);
  ouder.vak.RecordNr.ZetTekst(NrTekst(nr));
  if (nr > 0 || (voor.empty() && achter.empty())) return true;
  ZetFocus(ouder.vak.VoorNm);
  return false;
}

bool WijzigPersoon::HoortBijNaam(const Ouder& ouder) {
  if (ouder.vak.RecordNr.Tekst().empty()) return true;
  std::string voor;
  std::string achter;
  std::string tekst;
  HaalNaam(Hoofd().Persoon, ouder.vak.Nr(), voor, achter, tekst);
  if (Trim(voor) == Trim(ouder.vak.VoorNm.Tekst()) &&
      Trim(achter) == Trim(ouder.vak.AchterNm.Tekst())) {
    return true;
  }
  return Weiger(ouder.vak.VoorNm,
                "Recordnr " + std::string(ouder.naam) + " hoort niet bij Naam");
}

bool WijzigPersoon::VindRelatie() {
  if (!RelNrOuders.Tekst().empty() || (Pa.Nr() == 0 && Ma.Nr() == 0)) return true;
  const std::int16_t relatie = Koppel(Hoofd()).ZoekRelatie(Pa.Nr(), Ma.Nr());
  if (relatie == 0) {
    ZetFocus(Pa.RecordNr);
    return false;
  }
  RelNrOuders.ToonNr(relatie);
  // A continuation record of a parent may have taken the number that was meant for this person.
  if (!bestaat_ && Hoofd().Persoon.Lees(nr_)) {
    nr_ = static_cast<std::int16_t>(Hoofd().Persoon.AantalRecords() + 1);
    RecordNr.ZetTekst(GetalTekst(nr_));
  }
  return true;
}

bool WijzigPersoon::KlopptRelatie() {
  const std::int16_t relatie = RelNrOuders.Nr();
  if (relatie <= 0) return true;
  const std::string nummer = " " + GetalTekst(relatie);
  if (!Hoofd().Relatie.Lees(relatie)) {
    return Weiger(RelNrOuders, "Fout bij het lezen van Relatie" + nummer);
  }
  for (const Ouder& ouder : {Vader(), Moeder()}) {
    if (ouder.vak.Nr() == ouder.inRelatie) continue;
    return Weiger(ouder.vak.RecordNr,
                  std::string(ouder.naam) + " komt niet voor in Relatie" + nummer);
  }
  return true;
}

// The old parents stand there again, as on the record.
void WijzigPersoon::HerstelOuders() {
  RelNrOuders.ToonNr(oudeOuders_);
  ToonOuders(oudeOuders_);
  ZetFocus(RelNrOuders);
}

bool WijzigPersoon::MaakLos() {
  if (losgemaakt_ || oudeOuders_ <= 0 || RelNrOuders.Nr() == oudeOuders_) return true;
  if (!Hoofd().gesprek.Vraag("Moet de koppeling met de ouders verbroken worden ?")) {
    HerstelOuders();
    return false;
  }
  losgemaakt_ = Koppel(Hoofd()).VerplaatsKind(nr_, oudeOuders_, 0);
  if (losgemaakt_) return true;
  Hoofd().gesprek.Waarschuw("Fout bij het verbreken van de koppeling met de ouders");
  HerstelOuders();
  return false;
}

bool WijzigPersoon::MaakVast() {
  const std::int16_t nieuw = RelNrOuders.Nr();
  if (nieuw <= 0 || (nieuw == oudeOuders_ && !losgemaakt_)) return true;
  if (Koppel(Hoofd()).VerplaatsKind(nr_, 0, nieuw)) return true;
  Hoofd().gesprek.Waarschuw("Fout bij het koppelen aan de ouders");
  return false;
}

// The checks have read other records: this one is read again.
bool WijzigPersoon::Schrijf() {
  PersoonLB77& persoon = Hoofd().Persoon;
  Volgers& volgers = Hoofd().volgers;
  volgers.HuidigPersoonNr = nr_;
  const bool nieuw = !bestaat_;
  if (nieuw && !persoon.Nieuw(nr_)) return false;
  bestaat_ = true;
  if (!persoon.Lees(nr_)) return true;
  if (nieuw) {
    velden_.ZetAlle(persoon);
  } else {
    velden_.ZetGewijzigde(persoon);
  }
  if (!persoon.Schrijf(nr_)) {
    Hoofd().gesprek.Meld(BerichtSoort::Geen, "Fout bij het schrijven van het Persoonsrecord");
    volgers.HuidigPersoonNr = volgers.PersBufNr = -1;
  }
  return true;
}

void WijzigPersoon::BackButtonKlik() {
  Volgers& volgers = Hoofd().volgers;
  volgers.PersBufNr = volgers.RelBufNr = volgers.PlaatsBufNr = -1;
  volgers.HuidigPersoonNr = bestaat_ ? nr_ : std::int16_t{-1};
  Sluit();
}

}  // namespace lb77
