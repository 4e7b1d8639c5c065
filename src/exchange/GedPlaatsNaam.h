// A place name of a GEDCOM file without its marks of uncertainty.
#pragma once

#include <string_view>

namespace lb77 {

// The name in a converted text, trimmed: without "verm. " before it and "(?)" or question marks
// behind it. Empty when nothing is left. The view lies in the text.
// kept: the uncertainty is lost, as a place number of an imported person never carries one.
[[nodiscard]] std::string_view GedPlaatsNaam(std::string_view tekst);

}  // namespace lb77
