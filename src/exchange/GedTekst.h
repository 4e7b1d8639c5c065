// The character set of a GEDCOM file, and what its texts become.
#pragma once

#include <string>
#include <string_view>

#include "text/Gezindte.h"

namespace lb77 {

// As the HEAD line says; Onbekend until that line was read, and without conversion then.
enum class GedTekenset { Onbekend, Ascii, Ansel, Cp437, Cp850, Win1252 };

// Of the value of a CHAR line.
[[nodiscard]] GedTekenset GedTekensetVan(std::string_view waarde);

// The text in Windows-1252. Sets without a conversion leave it as it is.
[[nodiscard]] std::string GedTekst(std::string_view tekst, GedTekenset tekenset);

// The code of a denomination or a kind of marriage: two characters, those of the list when it names
// `naam`, else the first two of `naam`; two blanks for a code that is shorter.
[[nodiscard]] std::string GedGezindteCode(std::string_view naam, const Gezindten& gezindten);

// A place name without its marks of doubt: "verm. " in front, "(?)" or question marks behind.
[[nodiscard]] std::string_view GedPlaatsNaam(std::string_view naam);

}  // namespace lb77
