#include "checks/Bevindingen.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include "checks/CorrOpmAlg.h"
#include "checks/CorrPlts.h"
#include "checks/CorrVerwijzingen.h"
#include "checks/LaatsteRecord.h"
#include "entry/KaartVelden.h"
#include "entry/ToonPersoon.h"
#include "entry/ToonPlaatsen.h"
#include "entry/ToonRelatie.h"
#include "entry/VolgersBewaker.h"
#include "forms/Hersteld.h"
#include "forms/Kaart.h"
#include "text/Getallen.h"

namespace lb77 {

namespace {

using Standen = std::array<std::uint64_t, kBestandSoorten.size()>;

Standen StandenVan(const Bestandenset& bestanden) {
  Standen uit{};
  std::ranges::transform(kBestandSoorten, uit.begin(),
                         [&](BestandSoort soort) { return bestanden.Stand(soort); });
  return uit;
}

std::string MetAantal(std::string_view naam, std::size_t aantal) {
  return std::string(naam) + " (" + GetalTekst(static_cast<std::int64_t>(aantal)) + ")";
}

}  // namespace

Bevindingen::Bevindingen(Hoofdmodule& hoofd, Controleur& regels, BevindingLijst& lijst)
    : Formulier("Bevindingen", "Bevindingen"), hoofd_(hoofd), regels_(regels), lijst_(lijst) {
  ZetHulpOnderwerp("controle");
  SoortBox.BijWijziging([this] { SoortBoxWijziging(); });
  BevindingenLijst.BijKlik([this] { BevindingenLijstKlik(); });
  BevindingenLijst.BijDubbelklik([this] { BevindingenLijstDubbelklik(); });
  KaartButton.BijKlik([this] { KaartButtonKlik(); });
  CorrigeerButton.BijKlik([this] { CorrigeerButtonKlik(); });
  BackButton.BijKlik([this] { Sluit(); });
  ZetEersteVeld(BevindingenLijst);
}

void Bevindingen::BijLaden() {
  VulSoorten();
  VulLijst();
}

// The kind that was chosen stays chosen as long as it is there.
void Bevindingen::VulSoorten() {
  const std::optional<BevindingSoort> gekozen = Gekozen();
  std::vector<std::string> rijen{MetAantal("Alle soorten", lijst_.Regels().size())};
  soorten_.clear();
  int index = 0;
  for (const BevindingLijst::SoortTelling& telling : lijst_.Soorten()) {
    rijen.push_back(MetAantal(SoortNaam(telling.soort), telling.aantal));
    soorten_.push_back(telling.soort);
    if (gekozen == telling.soort) index = static_cast<int>(soorten_.size());
  }
  SoortBox.ZetRijen(std::move(rijen));
  SoortBox.ZetIndex(index);
}

std::optional<BevindingSoort> Bevindingen::Gekozen() const {
  const int keus = SoortBox.Index();
  if (keus < 1) return std::nullopt;
  return soorten_.at(static_cast<std::size_t>(keus) - 1);
}

void Bevindingen::VulLijst() {
  const std::optional<BevindingSoort> gekozen = Gekozen();
  std::vector<std::string> rijen;
  std::int64_t open = 0;
  getoond_.clear();
  for (const BevindingLijst::Regel& regel : lijst_.Regels()) {
    if (!regel.hersteld) ++open;
    if (gekozen && *gekozen != regel.bevinding.soort) continue;
    rijen.push_back(std::string(regel.hersteld ? kHersteld : "") + regel.bevinding.tekst);
    getoond_.push_back(regel.bevinding);
  }
  BevindingenLijst.ZetRijen(std::move(rijen));
  BevindingenLijst.ZetIndex(0);
  Open.ZetTekst(GetalTekst(open));
  const std::size_t meer = lijst_.NietInLijst();
  MeerLabel.ZetBijschrift(GetalTekst(static_cast<std::int64_t>(meer)) +
                          (meer == 1 ? " bevinding meer staat" : " bevindingen meer staan") +
                          " alleen in het verslag");
  MeerLabel.ZetZichtbaar(meer > 0);
}

void Bevindingen::SoortBoxWijziging() {
  VulLijst();
}

void Bevindingen::BevindingenLijstKlik() {
  KaartButtonKlik();
}

// A script clicks no list, but it double-clicks one.
void Bevindingen::BevindingenLijstDubbelklik() {
  KaartButtonKlik();
}

void Bevindingen::KaartButtonKlik() {
  Herstel([this](const Bevinding& bevinding) { ToonKaart(bevinding.kaart); });
}

void Bevindingen::CorrigeerButtonKlik() {
  Herstel([this](const Bevinding& bevinding) { ToonCorrectie(bevinding.plek); });
}

void Bevindingen::Herstel(const std::function<void(const Bevinding&)>& toon) {
  const int index = BevindingenLijst.Index();
  if (index < 0) return;
  const Bevinding bevinding = getoond_.at(static_cast<std::size_t>(index));
  const Standen voor = StandenVan(hoofd_.bestanden);
  const VolgersBewaker bewaker(hoofd_.volgers);
  toon(bevinding);
  if (StandenVan(hoofd_.bestanden) == voor) return;
  lijst_.Hertoets(regels_);
  VulSoorten();
  VulLijst();
  const auto zelfde = std::ranges::find(getoond_, bevinding);
  if (zelfde != getoond_.end()) {
    BevindingenLijst.ZetIndex(static_cast<int>(zelfde - getoond_.begin()));
  }
}

// A number that no record has would be taken for a new one.
template <class Record>
bool Bevindingen::Bestaat(Record& record, const RecordPlek& plek, std::string_view komtNietVoor) {
  return LeesOfMeld(hoofd_.gesprek, record, hoofd_.bestanden.Bestand(plek.soort), plek.nr,
                    komtNietVoor);
}

void Bevindingen::ToonCorrectie(const RecordPlek& plek) {
  const auto nr = static_cast<std::int16_t>(plek.nr);
  switch (plek.soort) {
    case BestandSoort::Personen:
      hoofd_.volgers.HuidigPersoonNr = nr;
      hoofd_.gesprek.Toon<CorrVerwijzingen>(kCorrPrsAlg, hoofd_);
      break;
    case BestandSoort::Relaties:
      hoofd_.volgers.HuidigRelatieNr = nr;
      hoofd_.gesprek.Toon<CorrVerwijzingen>(kCorrRelAlg, hoofd_);
      break;
    case BestandSoort::Plaatsen:
      hoofd_.gesprek.Toon<CorrPltsAlg>(hoofd_, nr);
      break;
    case BestandSoort::Opmerkingen:
      hoofd_.volgers.HuidigOpmNr = nr;
      hoofd_.gesprek.Toon<CorrOpmAlg>(hoofd_);
      break;
  }
}

void Bevindingen::ToonKaart(const RecordPlek& plek) {
  const auto nr = static_cast<std::int16_t>(plek.nr);
  switch (plek.soort) {
    case BestandSoort::Personen:
      if (Bestaat(hoofd_.Persoon, plek, kPersoonKomtNietVoor)) {
        LoopKaarten(hoofd_.gesprek, ToonPersoonVraag(hoofd_, nr));
      }
      break;
    case BestandSoort::Relaties:
      if (Bestaat(hoofd_.Relatie, plek, kRelatieKomtNietVoor)) {
        LoopKaarten(hoofd_.gesprek, ToonRelatieVraag(hoofd_, nr));
      }
      break;
    case BestandSoort::Plaatsen:
      // The page begins at the place in the buffer.
      if (Bestaat(hoofd_.Plaats, plek, "Het opgegeven Plaatsnummer komt niet voor")) {
        hoofd_.gesprek.Toon<ToonPlaatsen>(hoofd_);
      }
      break;
    case BestandSoort::Opmerkingen:
      break;  // has no card
  }
}

}  // namespace lb77
