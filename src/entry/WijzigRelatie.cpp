#include "entry/WijzigRelatie.h"

#include <cstdlib>
#include <utility>

#include "app/NietVeilig.h"
#include "entry/Invoer.h"
#include "entry/KaartVelden.h"
#include "entry/KindActies.h"
#include "entry/Koppelingen.h"
#include "entry/RecordToets.h"
#include "entry/VolgersBewaker.h"
#include "store/Handeling.h"
#include "store/RelatieVelden.h"
#include "store/Rubrieken.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::string_view kMan = "Man";
constexpr std::string_view kVrouw = "Vrouw";
constexpr std::string_view kPartner1 = "Partner1";
constexpr std::string_view kPartner2 = "Partner2";

// The remarks in the order in which they are listed.
constexpr RubriekNaam kOpmRegels[] = {
    {relatierubriek::kOtrDatum, "Otr Datum"},
    {relatierubriek::kOtrPlaats, "Otr Plaats"},
    {relatierubriek::kWetHuwDatum, "Wet Huw Datum"},
    {relatierubriek::kWetHuwPlaats, "Wet Huw Plaats"},
    {relatierubriek::kHuwSoort, "Soort Huwelijk"},
    {relatierubriek::kKHuwDatum, "Kerk Huw Datum"},
    {relatierubriek::kKHuwPlaats, "Kerk Huw Plaats"},
    {relatierubriek::kReligie, "Religie"},
    {relatierubriek::kAlgemeen, "Algemeen"},
};

}  // namespace

struct WijzigRelatie::Partner {
  PersoonVak& vak;
  std::string_view naam;     // in messages, and above the fields
  std::int16_t andereSekse;  // the IsMan that asks whether this one is meant
  std::string_view andereNaam;
  std::int16_t oud;       // who it was on the record
  std::int16_t deAndere;  // the other partner as he stands there now
  Bediening& hierna;
};

WijzigRelatie::Partner WijzigRelatie::DeMan() {
  return {Man, kMan, 0, kVrouw, OudeMan, Vrouw.Nr(), Vrouw.RecordNr};
}

WijzigRelatie::Partner WijzigRelatie::DeVrouw() {
  return {Vrouw, kVrouw, 1, kMan, OudeVrouw, Man.Nr(), OtrDatum};
}

RelatieOpmRij::RelatieOpmRij(Formulier& formulier, int nummer)
    : OpmLabel(formulier, Genummerd("OpmLabel", nummer)),
      OpmTekst(formulier, Genummerd("OpmTekst", nummer)) {}

WijzigRelatie::WijzigRelatie(Hoofdmodule& hoofd)
    : InvoerFormulier("WijzigRelatie", "Wijzig Relatie", hoofd) {
  ZetHulpOnderwerp("relaties");
  ZetEersteVeld(Man.RecordNr);
  ZetLeesnamen();
  BindVelden();
  for (PersoonVak* partner : {&Man, &Vrouw}) {
    partner->RecordNr.BijBetreden([this, partner] { OudeTekst = partner->RecordNr.Tekst(); });
  }
  Man.RecordNr.BijVerlaten([this] { return RecordNrVerlaten(DeMan()); });
  Vrouw.RecordNr.BijVerlaten([this] { return RecordNrVerlaten(DeVrouw()); });
  HuwCorr.BijVerlaten([this] { return HuwCorrVerlaten(); });
  Opslaan.BijKlik([this] { OpslaanKlik(); });
  BackButton.BijKlik([this] { BackButtonKlik(); });
}

void WijzigRelatie::ZetLeesnamen() {
  const std::pair<Bediening*, std::string_view> namen[] = {
      {&Man.RecordNr, "Nummer van de eerste partner"},
      {&Man.VoorNm, "Voornamen van de eerste partner"},
      {&Man.AchterNm, "Achternaam van de eerste partner"},
      {&Vrouw.RecordNr, "Nummer van de tweede partner"},
      {&Vrouw.VoorNm, "Voornamen van de tweede partner"},
      {&Vrouw.AchterNm, "Achternaam van de tweede partner"},
      {&OtrDatum, "Datum van ondertrouw"},
      {&OtrPlts.Nm, "Plaats van ondertrouw"},
      {&OtrPlts.Nr, "Nummer van de plaats van ondertrouw"},
      {&HuwCorr, "Correctie van de huwelijksdatum"},
      {&WetHuwDatum, "Datum van het wettelijk huwelijk"},
      {&WHuwPlts.Nm, "Plaats van het wettelijk huwelijk"},
      {&WHuwPlts.Nr, "Nummer van de plaats van het wettelijk huwelijk"},
      {&KHuwDatum, "Datum van het kerkelijk huwelijk of de scheiding"},
      {&KHuwPlts.Nm, "Plaats van het kerkelijk huwelijk of de scheiding"},
      {&KHuwPlts.Nr, "Nummer van de plaats van het kerkelijk huwelijk of de scheiding"},
  };
  for (const auto& [bediening, naam] : namen) bediening->ZetLeesnaam(naam);
}

// In the order in which they are stored.
void WijzigRelatie::BindVelden() {
  namespace veld = relatieveld;
  const auto bindPartner = [this](const Veld& nummer, PersoonVak& vak) {
    velden_.Bind(
        nummer,
        [&vak](const std::string& waarde) {
          vak.Toon(static_cast<std::int16_t>(Getalwaarde(waarde)));
        },
        [&vak] { return vak.RecordNr.Tekst(); });
  };
  bindPartner(veld::ManNr, Man);
  bindPartner(veld::VrouwNr, Vrouw);
  velden_.Bind(veld::OtrPlaatsNr, OtrPlts);
  velden_.Bind(veld::OtrDagMaand, OtrDatum);
  velden_.BindKeuze(veld::HuwSwPs, WetHuwLabel);
  velden_.Bind(veld::HuwCorr, HuwCorr);
  velden_.Bind(veld::HuwSoort, HuwSoort);
  velden_.Bind(veld::WetHuwPlaatsNr, WHuwPlts);
  velden_.Bind(veld::WetHuwDagMaand, WetHuwDatum);
  velden_.Bind(veld::Religie, Religie);
  velden_.Bind(veld::KHuwPlaatsNr, KHuwPlts);
  velden_.Bind(veld::KHuwDagMaand, KHuwDatum);
  velden_.BindKeuze(veld::KHuwSch, KHuwLabel);
}

void WijzigRelatie::BijLaden() {
  if (!NeemRecord()) {
    Hoofd().volgers.HuidigRelatieNr = -1;
    Sluit();
    return;
  }
  const RelatieLB77& relatie = Hoofd().Relatie;
  PersoonLB77& persoon = Hoofd().Persoon;
  const std::int16_t opmCode = relatie.OpmCode();
  const std::int16_t opmRecord = relatie.OpmRecord();
  OudeMan = relatie.ManNr();
  OudeVrouw = relatie.VrouwNr();
  RecordNr.ZetTekst(GetalTekst(nr_));
  velden_.Toon(relatie);
  const bool verschillend = persoon.IsMan(OudeMan) != persoon.IsMan(OudeVrouw);
  ToonPartnerLabels(verschillend ? kMan : kPartner1, verschillend ? kVrouw : kPartner2);
  ToonOpmerkingen(opmCode, opmRecord);
  ToonKindertal();
  Hoofd().volgers.HuidigRelatieNr = nr_;
}

bool WijzigRelatie::NeemRecord() {
  nr_ = Hoofd().volgers.HuidigRelatieNr;
  bestaat_ = nr_ != -1;
  return bestaat_ ? NeemBestaand() : NeemNieuw();
}

bool WijzigRelatie::NeemBestaand() {
  return LeesHoofdrecord(Hoofd().gesprek, Hoofd().Relatie, nr_, {kRelatieKomtNietVoor, {}});
}

bool WijzigRelatie::NeemNieuw() {
  RelatieLB77& relatie = Hoofd().Relatie;
  const std::int32_t nieuw = relatie.AantalRecords() + 1;
  if (nieuw < 2) return false;  // not counted, and told
  if (nieuw > kMaxRecords) {
    Hoofd().gesprek.Fout(kMaximumBereikt);
    return false;
  }
  nr_ = static_cast<std::int16_t>(nieuw);
  relatie.LeegRelBuffer();
  return true;
}

void WijzigRelatie::ToonPartnerLabels(std::string_view man, std::string_view vrouw) {
  ManLabel.ZetBijschrift(man);
  VrouwLabel.ZetBijschrift(vrouw);
}

void WijzigRelatie::ToonOpmerkingen(std::int16_t opmCode, std::int16_t opmRecord) {
  Opmerkingen.Elk([&](int nummer, RelatieOpmRij& rij) {
    const auto& [rubriek, naam] = kOpmRegels[nummer - 1];
    const bool heeft = (std::abs(int{opmCode}) & RubriekBits(rubriek)) != 0;
    rij.OpmLabel.ZetBijschrift(std::string(heeft ? ">> " : "- ") + std::string(naam));
    rij.OpmTekst.ZetTekst(Hoofd().Opmerking.OpmerkingTekst(opmCode, opmRecord, rubriek, 1, false));
  });
}

// Up to the first empty place, as far as the list can be read.
void WijzigRelatie::ToonKindertal() {
  RelatieLB77& relatie = Hoofd().Relatie;
  std::int16_t aantal = 0;
  if (bestaat_ && relatie.Lees(nr_)) {
    Kindtab tab = LeesKinderen(relatie, Hoofd().gesprek, nr_);
    aantal = AantalBezet(PlaatsenVan(tab));
  }
  Kindertal.ZetTekst(KindertalTekst(aantal));
}

bool WijzigRelatie::Weiger(Bediening& veld, std::string_view melding) {
  Hoofd().gesprek.Waarschuw(melding);
  ZetFocus(veld);
  return false;
}

bool WijzigRelatie::HuwCorrVerlaten() {
  KHuwPlts.ZetZichtbaar(!HuwCorr.IsTussen());
  return true;
}

// What was accepted counts as what stood there: the focus may come back without an event.
bool WijzigRelatie::RecordNrVerlaten(const Partner& partner) {
  const std::string tekst = partner.vak.RecordNr.Tekst();
  if (tekst == OudeTekst) return true;
  ToonPartnerLabels(kMan, kVrouw);
  if (!tekst.empty() && !(RecordNrGeldig(Hoofd().MaakGegevens(), Hoofd().gesprek, tekst,
                                         BestandSoort::Personen, Vervolgtest::GeenVervolg) &&
                          MagSekse(partner))) {
    return false;
  }
  partner.vak.Toon(partner.vak.Nr());
  OudeTekst = partner.vak.RecordNr.Tekst();
  if (!tekst.empty()) ZetFocus(partner.hierna);
  return true;
}

// A couple of one sex is the user's own choice; somebody of whom it is not known is no partner here.
bool WijzigRelatie::MagSekse(const Partner& partner) {
  const std::int16_t sekse = Hoofd().Persoon.IsMan(partner.vak.Nr());
  if (sekse == -1) {
    Hoofd().gesprek.Waarschuw("Persoon met onbekend Geslacht niet toegestaan");
    return false;
  }
  if (sekse != partner.andereSekse) return true;
  const std::string vraag =
      "Opgegeven Persoon is een " + std::string(partner.andereNaam) + ". Doorgaan ?";
  if (Hoofd().gesprek.Bericht(BerichtSoort::Uitroep, Knoppen::JaNee, vraag) != Antwoord::Ja) {
    return false;
  }
  ToonPartnerLabels(kPartner1, kPartner2);
  return true;
}

std::string WijzigRelatie::Omschrijving() const {
  const auto naam = [](const PersoonVak& vak) {
    const std::string heel(Trim(vak.VoorNm.Tekst() + " " + vak.AchterNm.Tekst()));
    return heel.empty() ? std::string("<onbekend>") : heel;
  };
  return "Relatie " + GetalTekst(nr_) + (bestaat_ ? " gewijzigd: " : " toegevoegd: ") + naam(Man) +
         " en " + naam(Vrouw);
}

void WijzigRelatie::OpslaanKlik() {
  Handeling handeling(Hoofd().bestanden, Omschrijving());
  if (IsInOrde() && Schrijf()) {
    Koppel(DeMan());
    Koppel(DeVrouw());
    Hoofd().volgers.HuidigRelatieNr = nr_;
    Sluit();
  }
  MeldNietVeilig(Hoofd().gesprek, handeling.Voltooi());
}

bool WijzigRelatie::IsInOrde() {
  const VolgersBewaker bewaker(Hoofd().volgers);
  return IsChronologisch() && ZoekOpNaam(Man) && ZoekOpNaam(Vrouw) && HoortBijNaam(DeMan()) &&
         HoortBijNaam(DeVrouw()) && HeeftPlaats(DeMan()) && HeeftPlaats(DeVrouw());
}

bool WijzigRelatie::IsChronologisch() {
  struct Paar {
    DatumVak& eerst;
    const DatumVak& later;
    std::string_view melding;
  };
  const bool kerk = KHuwLabel.Index() == 0;
  const Paar paren[] = {
      {OtrDatum, WetHuwDatum, "Ondertrouw is na het wettelijk huwelijk."},
      {OtrDatum, KHuwDatum, "Ondertrouw is na het kerkelijk huwelijk."},
      {WetHuwDatum, KHuwDatum,
       kerk ? "Wettelijk huwelijk is na het kerkelijk huwelijk."
            : "Wettelijk huwelijk is na de scheiding."},
  };
  for (const auto& [eerst, later, melding] : paren) {
    if (!WilCorrigeren(Hoofd().gesprek, eerst, later, melding)) continue;
    ZetFocus(eerst);
    return false;
  }
  return true;
}

bool WijzigRelatie::ZoekOpNaam(PersoonVak& partner) {
  if (partner.VulNrUitNaam("*")) return true;
  ZetFocus(partner.VoorNm);
  return false;
}

bool WijzigRelatie::HoortBijNaam(const Partner& partner) {
  return partner.vak.NrHoortBijNaam() ||
         Weiger(partner.vak.VoorNm,
                "Recordnr " + std::string(partner.naam) + " hoort niet bij Naam");
}

// kept: a relation that is among the five itself is refused as well.
bool WijzigRelatie::HeeftPlaats(const Partner& partner) {
  const std::int16_t nr = partner.vak.Nr();
  if (nr <= 0) return true;
  PersoonLB77& persoon = Hoofd().Persoon;
  bool gelezen = persoon.Lees(nr);
  if (gelezen && persoon.relatie3() >= 0) return true;
  if (gelezen) {
    const auto vervolg = NaarInt16(-std::int32_t{persoon.relatie3()});
    gelezen = vervolg && persoon.Lees(*vervolg);
  }
  if (!gelezen) {
    ZetFocus(partner.vak.RecordNr);
    return false;
  }
  if (persoon.relatie3() <= 0) return true;
  return Weiger(partner.vak.RecordNr, "De " + std::string(partner.naam) + " heeft al 5 relaties.");
}

// The checks have read other records: this one is read again. What follows is done also when it
// can't be written.
bool WijzigRelatie::Schrijf() {
  RelatieLB77& relatie = Hoofd().Relatie;
  Volgers& volgers = Hoofd().volgers;
  volgers.HuidigRelatieNr = nr_;
  const bool nieuw = !bestaat_;
  if (nieuw && !relatie.Nieuw(nr_)) return false;
  bestaat_ = true;
  if (!relatie.Lees(nr_)) return true;
  if (nieuw) {
    velden_.ZetAlle(relatie);
  } else if (velden_.Gewijzigd()) {
    velden_.ZetGewijzigde(relatie);
    // kept: a record that is changed gets a mark of the three that there are.
    relatie.Zet(relatieveld::HuwSwPs.naam, GetalTekst(WetHuwLabel.Index()));
  } else {
    return true;
  }
  if (!relatie.Schrijf(nr_)) {
    Hoofd().gesprek.Meld(BerichtSoort::Geen, "Fout bij het schrijven van het Relatierecord");
    volgers.HuidigRelatieNr = volgers.RelBufNr = -1;
  }
  return true;
}

// Brings the lists of the old and the new person in step. Who only changed places with the other
// partner keeps the relation.
void WijzigRelatie::Koppel(const Partner& partner) {
  const std::int16_t nr = partner.vak.Nr();
  if (nr == partner.oud) return;
  const VolgersBewaker bewaker(Hoofd().volgers);
  Koppelingen werk = Koppelwerk(Hoofd());
  if (partner.oud > 0 && partner.oud != partner.deAndere &&
      !werk.HaalRelatieUit(partner.oud, nr_)) {
    Hoofd().gesprek.Waarschuw("Loskoppelen van oude " + std::string(partner.naam) + " is mislukt");
  }
  // A full list stays as it is, without a word.
  if (nr > 0) static_cast<void>(werk.VoegRelatieToe(nr, nr_));
}

void WijzigRelatie::BackButtonKlik() {
  Volgers& volgers = Hoofd().volgers;
  volgers.PersBufNr = volgers.RelBufNr = volgers.PlaatsBufNr = -1;
  volgers.HuidigRelatieNr = bestaat_ ? nr_ : std::int16_t{-1};
  Sluit();
}

}  // namespace lb77
