// The value of a NAME line.
#pragma once

#include <string_view>

namespace lb77 {

// All parts lie in the value, not converted.
struct GedNaamDelen {
  std::string_view voornaam;    // at most 30 bytes, trimmed
  std::string_view achternaam;  // at most 25 bytes, trimmed
  std::string_view rest;        // what stands behind the second "/"
  bool afgekapt = false;        // a name was longer than that
};

// Splits ‘Jan /Jansen/ rest’. A value without slashes is a surname.
[[nodiscard]] GedNaamDelen GedNaam(std::string_view waarde);

}  // namespace lb77
