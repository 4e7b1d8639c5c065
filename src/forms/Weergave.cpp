#include "forms/Weergave.h"

namespace lb77 {

void Wissellabel::ZetIndex(int index) {
  index_ = index >= 0 && index < static_cast<int>(teksten_.size()) ? index : 0;
  ZetBijschrift(teksten_[static_cast<std::size_t>(index_)]);
}

std::string Tekstpagina::Waarde() const {
  std::string uit;
  for (const std::string& regel : regels_) {
    if (&regel != &regels_.front()) uit += '\n';
    uit += regel;
  }
  return uit;
}

}  // namespace lb77
