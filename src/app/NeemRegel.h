// The lines of a text file of ours.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace lb77 {

// Takes the next line from `rest`; its end, LF or CR LF, goes with it.
[[nodiscard]] inline std::string_view NeemRegel(std::string_view& rest) {
  const std::size_t eind = std::min(rest.find('\n'), rest.size());
  std::string_view regel = rest.substr(0, eind);
  if (regel.ends_with('\r')) regel.remove_suffix(1);
  rest.remove_prefix(std::min(eind + 1, rest.size()));
  return regel;
}

}  // namespace lb77
