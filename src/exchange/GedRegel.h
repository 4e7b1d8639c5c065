// One line of a GEDCOM file, split up.
#pragma once

#include <cstddef>
#include <string_view>

namespace lb77 {

inline constexpr int kHoogsteLevel = 99;
inline constexpr std::size_t kLangsteTag = 255;

// The parts of a line. The views lie in the line; `fout` is empty when the line could be split.
struct GedDelen {
  int level = 0;            // 0 to kHoogsteLevel
  std::string_view id;      // without its "@" signs
  std::string_view tag;     // at most kLangsteTag bytes: paths are made of it
  std::string_view waarde;  // blanks included
  std::string_view fout;
};

// Splits a line at its blanks (byte 32). Of a line that is no GEDCOM only `fout` has a meaning.
[[nodiscard]] GedDelen GedRegel(std::string_view regel);

}  // namespace lb77
