// Places by their name, as the commands find them.
#pragma once

#include <string>
#include <string_view>

#include "app/Hoofdmodule.h"
#include "cli/Bediener.h"

namespace lb77 {

// Has the search that a form makes for a place come to the one that is meant: the only one that begins
// with `naam`, else the only one that has just that name, else the one with that number, whose name
// stands in `naam` then. The answers to its questions are held ready for `formulier`. What nothing
// begins with is left to the form. False, and told, when more than one may be meant, and for the
// number of no place.
[[nodiscard]] bool VindPlaats(Hoofdmodule& hoofd, Bediener& bediener, std::string_view formulier,
                              std::string& naam);

}  // namespace lb77
