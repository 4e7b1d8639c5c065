// One line of a GEDCOM file, taken apart.
#pragma once

#include <string_view>

namespace lb77 {

// The parts are views on the line. `id` stands without its "@" signs and is empty for a line
// without one. With a `fout` the rest means nothing.
struct GedcomRegel {
  int niveau = 0;  // 0 to 99
  std::string_view id;
  std::string_view tag;
  std::string_view waarde;
  std::string_view fout;
};

[[nodiscard]] GedcomRegel GedRegel(std::string_view regel);

}  // namespace lb77
