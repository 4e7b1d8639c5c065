#include "checks/Bevindingen.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include "checks/NaarRecord.h"
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
  BevindingenLijst.BijToets([this](ToetsGebeurtenis& toets) { BevindingenLijstToets(toets); });
  BevindingenLijst.BijDubbelklik([this] { BevindingenLijstDubbelklik(); });
  KaartButton.BijKlik([this] { KaartButtonKlik(); });
  BackButton.BijKlik([this] { Sluit(); });
  ZetEersteVeld(BevindingenLijst);
}

void Bevindingen::BijLaden() {
  const std::size_t meer = lijst_.NietInLijst();
  MeerLabel.ZetBijschrift(GetalTekst(static_cast<std::int64_t>(meer)) +
                          " bevindingen meer staan alleen in het verslag");
  MeerLabel.ZetZichtbaar(meer > 0);
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
    rijen.push_back((regel.hersteld ? "[hersteld] " : "") + regel.bevinding.tekst);
    getoond_.push_back(regel.bevinding);
  }
  BevindingenLijst.ZetRijen(std::move(rijen));
  BevindingenLijst.ZetIndex(0);
  Open.ZetTekst(GetalTekst(open));
}

void Bevindingen::SoortBoxWijziging() {
  VulLijst();
}

void Bevindingen::BevindingenLijstToets(ToetsGebeurtenis& toets) {
  if (toets.code != toets::kEnter && toets.code != toets::kNumEnter) return;
  toets.verwerkt = true;
  KaartButtonKlik();
}

void Bevindingen::BevindingenLijstDubbelklik() {
  KaartButtonKlik();
}

void Bevindingen::KaartButtonKlik() {
  const int index = BevindingenLijst.Index();
  if (index < 0) {
    hoofd_.gesprek.Waarschuw("Geen bevinding gekozen");
    return;
  }
  const Bevinding bevinding = getoond_.at(static_cast<std::size_t>(index));
  const Standen voor = StandenVan(hoofd_.bestanden);
  ToonKaartVan(hoofd_, bevinding.kaart);
  if (StandenVan(hoofd_.bestanden) == voor) return;
  lijst_.Hertoets(regels_);
  VulSoorten();
  VulLijst();
  const auto zelfde = std::ranges::find(getoond_, bevinding);
  if (zelfde != getoond_.end()) {
    BevindingenLijst.ZetIndex(static_cast<int>(zelfde - getoond_.begin()));
  }
}

}  // namespace lb77
