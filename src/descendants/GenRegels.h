// The rules by which a child of a descendant report is followed.
#pragma once

#include <cstdint>

#include "descendants/GenOpties.h"
#include "store/PersoonLB77.h"
#include "store/RelatieLB77.h"

namespace lb77 {

// Did somebody reach more than `grens` years? Dates as jjjjmmdd, 0 for one that is not known. Who has
// no known years did. kept: with as many years as `grens` the months decide, and in the same month the
// halves of the centuries in which the two years lie.
[[nodiscard]] bool OuderDan(std::int32_t geb, std::int32_t doop, std::int32_t ovl,
                            std::int32_t begr, int grens);

// Is this child to get an entry of his own? True for one who can't be read. Both buffers change.
[[nodiscard]] bool VolgKind(std::int16_t kindNr, const GenOpties& opties, PersoonLB77& persoon,
                            RelatieLB77& relatie);

}  // namespace lb77
