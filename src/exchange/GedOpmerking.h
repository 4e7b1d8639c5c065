// Remarks of a GEDCOM file: where they belong, and how they are wrapped.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lb77 {

// The rubric of a note under the path `ouder`, positive for a person, negative for a relation; 0
// when it is dropped. `voorvoegsel` stands before its value.
struct GedRubriek {
  std::int16_t rubriek = 0;
  std::string_view voorvoegsel;
};
[[nodiscard]] GedRubriek GedRubriekVan(std::string_view ouder);

// The text in at most ten lines of at most eighty characters. What does not fit is dropped; kept: a
// word that is longer than a line ends the text.
[[nodiscard]] std::vector<std::string> GedOpmRegels(std::string_view tekst);

}  // namespace lb77
