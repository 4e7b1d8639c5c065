// One date of a GEDCOM file, without a qualifier.
#pragma once

#include <string_view>

#include "text/Datum.h"

namespace lb77 {

// Reads a date in capitals; the form follows from its length. A `dag` of -1 tells that it can't be
// read; a part that is not given is 0.
[[nodiscard]] DatumDelen GedDatumDeel(std::string_view tekst);

// Does a date that could be read hold all of its text? Not so with a second year (‘1750/51’) and with
// what the length alone let pass.
[[nodiscard]] bool IsHeleDatum(std::string_view tekst);

}  // namespace lb77
