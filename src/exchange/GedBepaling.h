// The qualifiers before a GEDCOM date, and the correction codes that they are.
#pragma once

#include <array>
#include <string_view>

#include "store/Codes.h"

namespace lb77 {

struct GedBepaling {
  std::string_view woord;
  char corr;
};

// All that are read. The first word of a code is the one to write.
inline constexpr std::array kGedBepalingen = {
    GedBepaling{"ABT", correctie::kCirca}, GedBepaling{"AFT", correctie::kNa},
    GedBepaling{"BEF", correctie::kVoor},  GedBepaling{"BET", correctie::kTussen},
    GedBepaling{"EST", correctie::kCirca}, GedBepaling{"CAL", correctie::kCirca},
};

}  // namespace lb77
