#include "forms/Weergave.h"

namespace lb77 {

std::string Tekstpagina::Waarde() const {
  std::string uit;
  for (const std::string& regel : regels_) {
    if (&regel != &regels_.front()) uit += '\n';
    uit += regel;
  }
  return uit;
}

}  // namespace lb77
