#include "checks/BevindingLijst.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <map>
#include <set>
#include <string_view>
#include <utility>

#include "checks/Controleur.h"

namespace lb77 {

BevindingLijst::BevindingLijst(std::vector<Bevinding> gevonden, BuitenLijst buiten)
    : buiten_(buiten) {
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

// A text tells its record, so that a finding is known by its text; lines that read alike are counted.
void BevindingLijst::Hertoets(Controleur& regels) {
  std::set<std::int32_t> nummers;
  std::multimap<std::string_view, Regel*> bekend;
  for (Regel& regel : regels_) {
    nummers.insert(regel.bevinding.plek.nr);
    bekend.emplace(regel.bevinding.tekst, &regel);
    regel.hersteld = true;
  }
  std::vector<Regel> nieuw;
  buiten_.opLaatste = 0;
  regels.Begin(regels.Laatste());
  for (const std::int32_t nr : nummers) {
    regels.Toets(static_cast<std::int16_t>(nr), [&](Bevinding bevinding) {
      const auto oud = bekend.lower_bound(bevinding.tekst);
      if (oud != bekend.end() && oud->first == bevinding.tekst) {
        oud->second->hersteld = false;
        bekend.erase(oud);
      } else if (regels_.size() + nieuw.size() < kMeeste) {
        nieuw.push_back({std::move(bevinding)});
      } else {
        ++buiten_.opLaatste;
      }
    });
  }
  std::ranges::move(nieuw, std::back_inserter(regels_));
  Orden();
}

}  // namespace lb77
