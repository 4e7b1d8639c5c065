#include "entry/WijzigPersoon.h"

#include <cstddef>
#include <vector>

#include "app/NietVeilig.h"
#include "entry/HuwRegels.h"
#include "entry/RecordToets.h"
#include "entry/VolgersBewaker.h"
#include "store/Codes.h"
#include "store/Handeling.h"
#include "store/PersoonVelden.h"
#include "store/Rubrieken.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::string_view kGeslachten = "OMV";
constexpr std::string_view kVader(&geslacht::kMan, 1);
constexpr std::string_view kMoeder(&geslacht::kVrouw, 1);
}  // namespace

WijzigPersoon::WijzigPersoon(Hoofdmodule& hoofd, std::int16_t ouders)
    : InvoerFormulier("WijzigPersoon", "Wijzig Persoon", hoofd), ouders_(ouders) {
  ZetHulpOnderwerp("personen");
  ZetEersteVeld(Geslacht);
  ZetLeesnamen();
  BindVelden();
  Geslacht.ZetFilter(InHoofdletters);
  Geslacht.BijBetreden([this] { GeslachtBetreden(); });
  Geslacht.BijVerlaten([this] { return GeslachtVerlaten(); });
  for (CorrectieVak* corr : {&GebCorr, &OvlCorr}) {
    corr->BijVerlaten([this] { return CorrVerlaten(); });
  }
  RelNrOuders.BijVerlaten([this] { return RelNrOudersVerlaten(); });
  Opslaan.BijKlik([this] { OpslaanKlik(); });
  BackButton.BijKlik([this] { BackButtonKlik(); });
}

// In the order in which they are stored.
void WijzigPersoon::BindVelden() {
  namespace veld = persoonveld;
  Geslacht.ZetMaxLengte(veld::Geslacht.breedte);
  velden_.Bind(
      veld::Geslacht,
      [this](const std::string& waarde) {
        Geslacht.ZetTekst(waarde.empty() ? std::string(1, geslacht::kOnbekend) : waarde);
      },
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
  velden_.Bind(veld::RelNrOuders, RelNrOuders);
}

void WijzigPersoon::BijLaden() {
  if (!NeemRecord()) {
    Hoofd().volgers.HuidigPersoonNr = -1;
    Sluit();
    return;
  }
  const PersoonLB77& persoon = Hoofd().Persoon;
  const std::int16_t opmCode = persoon.OpmCode();
  const std::int16_t opmRecord = persoon.OpmRecord();
  oudeOuders_ = persoon.RelNrOuders();
  losgemaakt_ = geweigerd_ = false;
  RecordNr.ZetTekst(GetalTekst(nr_));
  velden_.Toon(persoon);
  OudGeslacht = Geslacht.Tekst();
  ToonOuders(oudeOuders_);
  ToonPartners();
  AlgPersOpmTekst.ZetTekst(
      Hoofd().Opmerking.OpmerkingTekst(opmCode, opmRecord, persoonrubriek::kAlgemeen, 1, false));
  ToonPeriodes();
  if (ouders_ > 0 && !bestaat_) VulAlsKind();
  Hoofd().volgers.HuidigPersoonNr = nr_;
}

// The surname is the father's, until the user types another.
void WijzigPersoon::VulAlsKind() {
  RelNrOuders.ToonNr(ouders_);
  ToonOuders(ouders_);
  PersoonLB77& persoon = Hoofd().Persoon;
  if (Pa.Nr() > 1 && persoon.Lees(Pa.Nr())) AchterNm.ZetTekst(persoon.AchterNaamTrue());
}

bool WijzigPersoon::NeemRecord() {
  nr_ = Hoofd().volgers.HuidigPersoonNr;
  bestaat_ = nr_ != -1;
  return bestaat_ ? NeemBestaand() : NeemVrijNummer();
}

bool WijzigPersoon::NeemBestaand() {
  return LeesHoofdrecord(Hoofd().gesprek, Hoofd().Persoon, nr_, {kPersoonKomtNietVoor, {}});
}

// The number behind the last record, and an empty buffer, for a person who has none yet.
bool WijzigPersoon::NeemVrijNummer() {
  const std::int32_t vrij = Hoofd().Persoon.AantalRecords() + 1;
  if (vrij < 2) return false;  // not counted, and told
  if (vrij > kMaxRecords) {
    Hoofd().gesprek.Fout(kMaximumBereikt);
    return false;
  }
  nr_ = static_cast<std::int16_t>(vrij);
  Hoofd().Persoon.LeegPersBuffer();
  RecordNr.ZetTekst(GetalTekst(nr_));
  return true;
}

void WijzigPersoon::ToonPartners() {
  std::vector<HuwRegel> regels;
  if (bestaat_) regels = LeesHuwRegels(Hoofd().Persoon, Hoofd().Relatie, Hoofd().gesprek, nr_);
  Partners.Elk([&](int nummer, HuwWijzigRij& rij) {
    const auto plaats = static_cast<std::size_t>(nummer - 1);
    if (plaats < regels.size()) {
      rij.Toon(regels[plaats]);
    } else {
      rij.Verberg();
    }
  });
}

// With "T" the second date ends the period, and what belongs to a second event is not there.
void WijzigPersoon::ToonPeriodes() {
  const bool gedoopt = !GebCorr.IsTussen();
  DoopLabel.ZetZichtbaar(gedoopt);
  DoopPlts.ZetZichtbaar(gedoopt);
  ReligieLabel.ZetZichtbaar(gedoopt);
  Religie.ZetZichtbaar(gedoopt);
  BegrPlts.ZetZichtbaar(!OvlCorr.IsTussen());
}

bool WijzigPersoon::GeslachtIsVast() const {
  return Geslacht.Tekst() != OudGeslacht && !Partners(1).RelNrP.Tekst().empty();
}

bool WijzigPersoon::Weiger(Bediening& veld, std::string_view melding) {
  Hoofd().gesprek.Waarschuw(melding);
  ZetFocus(veld);
  return false;
}

void WijzigPersoon::GeslachtBetreden() {
  OudGeslacht = Geslacht.Tekst();
  geweigerd_ = false;
}

// The text of a function key has passed no filter. A damaged letter that nobody touched is let go.
bool WijzigPersoon::GeslachtVerlaten() {
  if (Geslacht.Tekst() == OudGeslacht) return true;
  const std::string geslacht = Hoofdletters(Geslacht.Tekst());
  Geslacht.ZetTekst(geslacht);
  if (geslacht.size() != 1 || kGeslachten.find(geslacht) == std::string_view::npos) {
    Hoofd().gesprek.Waarschuw("Alleen O (Onbekend), M (Mannelijk) of V (Vrouwelijk) toegestaan");
    return false;
  }
  if (!GeslachtIsVast()) return true;
  // Opslaan says it again, and puts the old letter back.
  if (geweigerd_ && Doel() == &Opslaan) return true;
  geweigerd_ = true;
  Hoofd().gesprek.Meld(BerichtSoort::Geen,
                       "Geslacht wijzigen niet toegestaan: er zijn al relaties");
  return false;
}

bool WijzigPersoon::CorrVerlaten() {
  ToonPeriodes();
  return true;
}

std::string WijzigPersoon::Omschrijving() const {
  const std::string naam(Trim(VoorNm.Tekst() + " " + AchterNm.Tekst()));
  return "Persoon " + GetalTekst(nr_) + (bestaat_ ? " gewijzigd: " : " toegevoegd: ") +
         (naam.empty() ? "<onbekend>" : naam);
}

void WijzigPersoon::OpslaanKlik() {
  Handeling handeling(Hoofd().bestanden, Omschrijving());
  if (IsInOrde() && Schrijf()) Sluit();
  MeldNietVeilig(Hoofd().gesprek, handeling.Voltooi());
}

// The checks read other records, and take the trackers along.
bool WijzigPersoon::IsInOrde() {
  const VolgersBewaker bewaker(Hoofd().volgers);
  return MagGeslacht() && IsChronologisch() && ZoekOpNaam(Pa, kVader) && ZoekOpNaam(Ma, kMoeder) &&
         HoortBijNaam(Pa, "Vader") && HoortBijNaam(Ma, "Moeder") && VindRelatie() &&
         KloptRelatie() && HeeftNummer() && MaakLos() && MaakVast();
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
  for (const auto& [eerst, later, melding] : paren) {
    if (!WilCorrigeren(Hoofd().gesprek, eerst, later, melding)) continue;
    ZetFocus(GebDatum);
    return false;
  }
  return true;
}

// A continuation record of a parent may have taken the number that was meant for this person, in
// this try or in one before it, and nobody else may become the child.
bool WijzigPersoon::HeeftNummer() {
  const bool metOuders = RelNrOuders.Nr() > 0;
  if (bestaat_ || (!metOuders && !Hoofd().Persoon.Lees(nr_))) return true;
  if (!NeemVrijNummer()) return false;
  if (!metOuders || !Hoofd().Persoon.Lees(nr_)) return true;
  Hoofd().gesprek.Fout("Persoonsrecord " + GetalTekst(nr_) + " bestaat al");
  return false;
}

// The checks have read other records: this one is read again. The dialog is done, also when it
// can't be written.
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
  } else if (velden_.Gewijzigd()) {
    velden_.ZetGewijzigde(persoon);
  } else {
    return true;
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
