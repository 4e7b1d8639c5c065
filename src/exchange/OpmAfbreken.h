// A text of any length as the lines of a remark.
#pragma once

#include <string_view>

#include "store/OpmLB77.h"

namespace lb77 {

// At most 10 lines of at most 80 characters, broken at blanks; what does not fit is dropped.
// kept: a word that is longer than a line ends the remark, and nothing from there on is taken.
[[nodiscard]] OpmRegels BreekAf(std::string_view tekst);
// Is nothing dropped of it?
[[nodiscard]] bool PastGeheel(std::string_view tekst);

}  // namespace lb77
