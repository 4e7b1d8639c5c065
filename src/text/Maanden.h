// The names of the months as GEDCOM has them.
#pragma once

#include <array>
#include <string_view>

namespace lb77 {

// January first.
inline constexpr std::array<std::string_view, 12> kGedMaanden = {
    "JAN", "FEB", "MAR", "APR", "MAY", "JUN", "JUL", "AUG", "SEP", "OCT", "NOV", "DEC"};

// The month of a name in capitals, 1 to 12; 0 for any other word.
constexpr int GedMaand(std::string_view woord) {
  int nummer = 0;
  for (const std::string_view maand : kGedMaanden) {
    ++nummer;
    if (woord == maand) return nummer;
  }
  return 0;
}

}  // namespace lb77
