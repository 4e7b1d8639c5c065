#include "exchange/ImpVelden.h"

#include <algorithm>

namespace lb77 {

namespace {

// The values of a line that had nothing to give.
bool IsNiets(std::string_view waarde) {
  return waarde.empty() || waarde == "0" || waarde == "00-00-0000";
}

}  // namespace

void ImpVelden::Zet(std::string_view veld, std::string_view waarde, std::int32_t regel,
                    const Kwijt& kwijt) {
  const auto eind = velden_.begin() + static_cast<std::ptrdiff_t>(aantal_);
  auto rij = std::ranges::find(velden_.begin(), eind, veld, &Veld::naam);
  if (rij == eind) {
    if (aantal_ == velden_.size()) velden_.emplace_back();
    rij = velden_.begin() + static_cast<std::ptrdiff_t>(aantal_++);
    rij->naam = veld;
    rij->waarde = waarde;
    rij->regels.clear();
  } else if (rij->waarde != waarde) {
    if (!IsNiets(rij->waarde)) {
      for (const std::int32_t eerdere : rij->regels) kwijt(eerdere);
    }
    rij->waarde = waarde;
    rij->regels.clear();
  }
  rij->regels.push_back(regel);
}

}  // namespace lb77
