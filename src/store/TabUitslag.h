// What came of filling a table of links: VulHuwtab and VulKindtab.
#pragma once

#include <cstdint>

namespace lb77 {

// A table that is not whole holds what could be read, and must never be written back: the links
// that are missing from it would be lost.
struct [[nodiscard]] TabUitslag {
  std::int16_t aantal = 0;  // the links, as the function counts them
  bool heel = false;        // True when every record was read and is what its link says
};

}  // namespace lb77
