// Persons by their name, as the commands find them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "app/Hoofdmodule.h"
#include "cli/Bediener.h"
#include "store/PersoonLB77.h"
#include "text/Namen.h"

namespace lb77 {

// The persons with `deel` somewhere in their first names and surname, from the lowest number on.
// Case and accents do not count, nor do the prefixes of a surname, unless `deel` has nothing else;
// an asterisk at its end is no letter.
[[nodiscard]] std::vector<std::int16_t> ZoekPersonen(PersoonLB77& persoon,
                                                     const Voorvoegsels& voorvoegsels,
                                                     std::string_view deel);

// Puts the number of the only person with that name in the place of a word with letters; a number is
// left to the form. False, and told, when nobody has the name, or more than one.
[[nodiscard]] bool VindPersoon(Hoofdmodule& hoofd, Bediener& bediener, std::string& woord);

// Number, lifetime and name on one line, in UTF-8 and without a line end.
[[nodiscard]] std::string PersoonRegel(PersoonLB77& persoon, std::int16_t nr);

}  // namespace lb77
