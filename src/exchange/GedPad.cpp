#include "exchange/GedPad.h"

namespace lb77 {

void GedPad::Zet(int level, std::string_view tag) {
  std::string& pad = paden_[static_cast<std::size_t>(level)];
  if (level == 0) {
    pad = tag;
    return;
  }
  pad = Ouder(level);
  pad += '-';
  pad += tag;
}

}  // namespace lb77
