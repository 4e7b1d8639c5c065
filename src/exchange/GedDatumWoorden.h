// Dates as people write them, brought into the form of the standard.
#pragma once

#include <string>
#include <string_view>

namespace lb77 {

// The text (Windows-1252) in capitals, with names of months in English, Dutch, German or French as
// the three letters of the standard, and ‘3-12-1950’, ‘3.12.1950’ and ‘1950-12-03’ as ‘3 DEC 1950’.
// Words that are neither stay: a name counts only between the day, if there is one, and the year,
// each a word by itself. A date with slashes is not guessed.
[[nodiscard]] std::string GedDatumWoorden(std::string_view tekst);

}  // namespace lb77
