#include "app/Startblad.h"

#include <algorithm>
#include <optional>

#include "app/AantalTekst.h"
#include "app/GezienBestand.h"
#include "store/Hoofdrecords.h"
#include "store/Journaal.h"
#include "store/Paden.h"
#include "store/SetPaden.h"
#include "text/Getallen.h"

namespace lb77 {

namespace {

// The highest record number by the length of the file, which is right whatever the file itself says.
std::int32_t Laatste(Bestandenset& bestanden, BestandSoort soort) {
  const std::uint64_t records = bestanden.Bestand(soort).Lengte() / RecordLengteVan(soort);
  return static_cast<std::int32_t>(
      std::min<std::uint64_t>(records, static_cast<std::uint64_t>(kMaxRecords)));
}

// "12  Willem van Oranje (1533-1584)", without years that nobody knows; nothing for a number that has
// no person.
std::optional<std::string> PersoonRij(PersoonLB77& persoon, std::int16_t nr) {
  if (!persoon.Lees(nr) || persoon.IsVolgRecord()) return std::nullopt;
  std::string jaren = persoon.Periode(nr);
  std::erase(jaren, ' ');
  return GetalTekst(nr) + "  " + persoon.NaamVoluit() + (jaren == "-" ? "" : " (" + jaren + ")");
}

}  // namespace

Startblad::Startblad(Formulier& formulier, Hoofdmodule& hoofd)
    : StartKop(formulier, "StartKop"),
      StartTelling(formulier, "StartTelling"),
      StartWijziging(formulier, "StartWijziging"),
      ZoekButton(formulier, "ZoekButton", "Persoon &zoeken"),
      InvoerButton(formulier, "InvoerButton", "&Invoeren en wijzigen"),
      KwstButton(formulier, "KwstButton", "&Kwartierstaat"),
      KopieButton(formulier, "KopieButton", "Veiligheidskopie &maken"),
      GezienLijst(formulier, "GezienLijst", "Laatst bekeken:"),
      StartUitleg(formulier, "StartUitleg",
                  "Er is geen familie geopend. Kies hoe u wilt beginnen:"),
      Wegen(formulier),
      OpenButton(formulier, "OpenButton", "&Familie openen die er al is"),
      hoofd_(hoofd) {
  GezienLijst.BijDubbelklik([this] { GezienLijstDubbelklik(); });
}

void Startblad::GezienLijstDubbelklik() const {
  const int index = GezienLijst.Index();
  if (index >= 0 && bijPersoon_) bijPersoon_(inLijst_.at(static_cast<std::size_t>(index)));
}

void Startblad::WerkBij() {
  const bool actief = hoofd_.SetActief();
  StartTelling.ZetZichtbaar(actief);
  StartWijziging.ZetZichtbaar(actief);
  for (Knop* knop : {&ZoekButton, &InvoerButton, &KwstButton, &KopieButton}) {
    knop->ZetZichtbaar(actief);
  }
  StartUitleg.ZetZichtbaar(!actief);
  Wegen.ZetZichtbaar(!actief);
  OpenButton.ZetZichtbaar(!actief && hoofd_.Ini.AantalBestandenSets() > 0);
  if (actief) {
    ToonSet();
  } else {
    StartKop.ZetBijschrift("LB77 voor Windows");
    GezienLijst.ZetZichtbaar(false);
  }
}

// The record that a dialog below stands on stays where it is.
void Startblad::ToonSet() {
  const Volgers volgers = hoofd_.volgers;
  const std::string& naam = hoofd_.ActieveSetNaam;
  const std::string omschrijving = hoofd_.Ini.BestandenSetOms(hoofd_.Ini.BestandenSetIndex(naam));
  StartKop.ZetBijschrift(omschrijving.empty() ? naam : omschrijving + " (" + naam + ")");
  StartTelling.ZetBijschrift(TellingTekst());
  StartWijziging.ZetBijschrift(WijzigingTekst());
  Onthoud();
  ToonGezien();
  hoofd_.volgers.HuidigPersoonNr = volgers.HuidigPersoonNr;
  hoofd_.volgers.HuidigRelatieNr = volgers.HuidigRelatieNr;
}

template <class Tel>
int Startblad::Geteld(BestandSoort soort, Tel tel) {
  Telling& telling = tellingen_.at(IndexVan(soort));
  const std::uint64_t stand = hoofd_.bestanden.Stand(soort);
  if (telling.stand != stand) telling = {stand, tel(Laatste(hoofd_.bestanden, soort))};
  return telling.aantal;
}

std::string Startblad::TellingTekst() {
  const int personen = Geteld(BestandSoort::Personen, [this](std::int32_t laatste) {
    PersoonLB77 persoon(hoofd_.MaakOpslag());
    return AantalHoofdrecords(persoon, laatste);
  });
  const int relaties = Geteld(BestandSoort::Relaties, [this](std::int32_t laatste) {
    RelatieLB77 relatie(hoofd_.MaakOpslag());
    return AantalHoofdrecords(relatie, laatste);
  });
  // Record 1 is no place.
  const int plaatsen = std::max(Laatste(hoofd_.bestanden, BestandSoort::Plaatsen) - 1, 0);
  return AantalTekst(personen, "persoon", "personen") + ", " +
         AantalTekst(relaties, "relatie", "relaties") + ", " +
         AantalTekst(plaatsen, "plaats", "plaatsen");
}

std::string Startblad::WijzigingTekst() const {
  const auto& journaal = hoofd_.bestanden.HetJournaal();
  const auto laatste = journaal ? journaal->LaatsteTeOngedaan() : std::nullopt;
  if (laatste) {
    const auto tijd = LeesTijdstip(laatste->tijd);
    return "Laatste wijziging: " + laatste->label + " (" +
           (tijd ? DagEnUurTekst(*tijd) : laatste->tijd) + ")";
  }
  // A set that was made elsewhere has no journal, and a new one nothing to tell of.
  const auto moment = LaatsteBestand();
  return moment ? "Laatst gewijzigd op " + DagTekst(*moment) + "."
                : std::string("Er is nog niets gewijzigd.");
}

std::optional<Tijdstip> Startblad::LaatsteBestand() const {
  const SetPaden paden = SetPaden::Van(hoofd_.Ini.DataDir(), hoofd_.ActieveSetNaam);
  std::optional<Tijdstip> laatste;
  bool gevuld = false;
  for (const BestandSoort soort : kBestandSoorten) {
    gevuld = gevuld || hoofd_.bestanden.Bestand(soort).Lengte() > RecordLengteVan(soort);
    laatste = std::max(laatste, WijzigMoment(VindPad(PadVanSoort(paden, soort))));
  }
  return gevuld ? laatste : std::nullopt;
}

void Startblad::Onthoud() {
  const std::string& naam = hoofd_.ActieveSetNaam;
  Gezien& gezien = hoofd_.gezien;
  if (gezienVan_ != naam || gezien.Nummers().empty()) {
    gezienVan_ = naam;
    bewaard_ = LeesGezien(hoofd_.programmaMap, naam);
    if (gezien.Nummers().empty()) gezien.Zet(bewaard_);
  }
  if (gezien.Nummers() == bewaard_ || !hoofd_.instellingen.bewaren) return;
  bewaard_ = gezien.Nummers();
  SchrijfGezien(hoofd_.programmaMap, naam, bewaard_);
}

void Startblad::ToonGezien() {
  PersoonLB77 persoon(hoofd_.MaakOpslag());
  std::vector<std::string> rijen;
  inLijst_.clear();
  for (const std::int16_t nr : hoofd_.gezien.Nummers()) {
    if (auto rij = PersoonRij(persoon, nr)) {
      rijen.push_back(std::move(*rij));
      inLijst_.push_back(nr);
    }
  }
  if (GezienLijst.Rijen() != rijen) GezienLijst.ZetRijen(std::move(rijen));
  GezienLijst.ZetZichtbaar(!inLijst_.empty());
}

}  // namespace lb77
