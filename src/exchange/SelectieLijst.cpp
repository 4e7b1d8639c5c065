#include "exchange/SelectieLijst.h"

namespace lb77 {

bool SelectieLijst::Voeg(std::int16_t nr) {
  if (nr < 1 || Bevat(nr)) return true;
  if (nummers_.size() >= kHoogsteAantal) return false;
  nummers_.push_back(nr);
  leden_.set(static_cast<std::size_t>(nr));
  return true;
}

bool SelectieLijst::Bevat(std::int16_t nr) const {
  return nr > 0 && leden_.test(static_cast<std::size_t>(nr));
}

void SelectieLijst::Wis() {
  nummers_.clear();
  leden_.reset();
}

}  // namespace lb77
