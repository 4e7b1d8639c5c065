// Dates as the prescribed GEDCOM file has them.
#pragma once

#include <string>
#include <string_view>

namespace lb77 {

// The number jjjjmmdd as text in GEDCOM form: "18900312" gives ‘12 MAR 1890’. Shorter numbers have
// zeros in front, of a longer one the last eight digits count.
// kept: a month that is none becomes three blanks, and no date at all "0000".
[[nodiscard]] std::string GedcomDatum(std::string_view jjjjmmdd);

// The word before a date, with its blank: "BEF ", "ABT ", "AFT ", "BET "; empty for a code that has
// none.
[[nodiscard]] std::string GedcomDatumPrefix(std::string_view correctiecode);

// A date with its correction code; `tweede` ends the period of "between".
[[nodiscard]] std::string GedcomDatumMetCode(std::string_view correctiecode,
                                             std::string_view eerste, std::string_view tweede);

}  // namespace lb77
