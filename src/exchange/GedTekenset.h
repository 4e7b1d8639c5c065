// The character set of a GEDCOM file, and the conversion of its texts.
#pragma once

#include <string>
#include <string_view>

namespace lb77 {

// Geen: no CHAR line has been read yet; its texts pass as they are.
enum class GedTekenset { Geen, ASCII, ANSEL, CP437, CP850, WIN1252 };

// The character set that the value of a CHAR line names; any name that is not known is ASCII.
[[nodiscard]] GedTekenset GedTekensetVan(std::string_view waarde);

// Converts a text to Windows-1252. ASCII, WIN1252 and Geen leave it as it is.
[[nodiscard]] std::string GedNaarWindows(GedTekenset tekenset, std::string_view tekst);

}  // namespace lb77
