#include "checks/BevindingLijst.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <utility>

#include "checks/Controleur.h"

namespace lb77 {

BevindingLijst::BevindingLijst(std::vector<Bevinding> gevonden, std::size_t aantal)
    : nietInLijst_(aantal - std::min(aantal, gevonden.size())) {
  regels_.reserve(gevonden.size());
  for (Bevinding& bevinding : gevonden) regels_.push_back({std::move(bevinding)});
  Orden();
}

void BevindingLijst::Orden() {
  std::ranges::stable_sort(regels_, {}, [](const Regel& regel) {
    return std::pair(regel.bevinding.soort, regel.bevinding.plek.nr);
  });
}

std::vector<BevindingLijst::SoortTelling> BevindingLijst::Soorten() const {
  std::vector<SoortTelling> uit;
  for (const Regel& regel : regels_) {
    const BevindingSoort soort = regel.bevinding.soort;
    if (uit.empty() || uit.back().soort != soort) uit.push_back({soort, 0});
    ++uit.back().aantal;
  }
  return uit;
}

// A text tells its record, so that a finding is known by its text.
void BevindingLijst::Hertoets(Controleur& regels) {
  std::set<std::int32_t> nummers;
  for (const Regel& regel : regels_) nummers.insert(regel.bevinding.plek.nr);
  std::map<std::string, Bevinding> nu;
  regels.Begin(regels.Laatste());
  for (const std::int32_t nr : nummers) {
    regels.Toets(static_cast<std::int16_t>(nr), [&nu](Bevinding bevinding) {
      std::string tekst = bevinding.tekst;
      nu.emplace(std::move(tekst), std::move(bevinding));
    });
  }
  std::set<std::string> gebleven;
  for (Regel& regel : regels_) {
    regel.hersteld = !nu.contains(regel.bevinding.tekst);
    if (!regel.hersteld) gebleven.insert(regel.bevinding.tekst);
  }
  for (auto& [tekst, bevinding] : nu) {
    if (!gebleven.contains(tekst)) regels_.push_back({std::move(bevinding)});
  }
  Orden();
}

}  // namespace lb77
