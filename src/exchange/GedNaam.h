// The value of a NAME line: given names, surname between slashes, and what stands behind it.
#pragma once

#include <string_view>

namespace lb77 {

// Views on the value, trimmed; given names cut to 30 and surname to 25 characters.
struct GedcomNaam {
  std::string_view voornaam;
  std::string_view achternaam;
  std::string_view rest;
};

// Without a slash, or with one as the last character only, all of it is the surname.
[[nodiscard]] GedcomNaam GedNaam(std::string_view waarde);

}  // namespace lb77
