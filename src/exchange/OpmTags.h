// Tags that the second pass leaves to the third, which makes remarks of their lines.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

#include "exchange/EigenPaden.h"

namespace lb77 {

// ADOP is one for what stands below it.
constexpr bool WordtOpmerking(std::string_view tag) {
  constexpr std::array<std::string_view, 8> kTags = {"_COMM", "_ALIA", "RFN",  "AFN",
                                                     "SOUR",  "CAUS",  "TYPE", "ADOP"};
  return std::ranges::find(kTags, tag) != kTags.end();
}

// A tag of our own, below a note and behind its text.
constexpr bool HoortBijOpmerking(std::string_view tag) {
  return tag == eigen::kRubriek || tag == eigen::kProg;
}

constexpr bool IsVervolgTag(std::string_view tag) {
  return tag == "CONC" || tag == "CONT";
}

}  // namespace lb77
