// Religion and kind of marriage, from the words of a GEDCOM file to a code.
#pragma once

#include <string>
#include <string_view>

#include "text/Gezindte.h"

namespace lb77 {

// The two-character code of a converted text: "0" when it is empty, else the code of the
// denomination of that name, else the first two characters of the text.
// A denomination that is found by a code of one character gives two blanks.
[[nodiscard]] std::string GedGezindte(std::string_view tekst, const Gezindten& gezindten);

}  // namespace lb77
