// A set of random records whose fields lie at their limits.
#pragma once

#include "steun/ProefSet.h"

namespace lb77 {

// Fills an empty set; a seed gives the same set everywhere. Names, places and remarks of all
// characters that a record keeps, dates that are none, codes without a meaning, free slots between
// links, as many relations, children and remarks as fit.
void VulMetToeval(ProefSet& set, unsigned zaad);

}  // namespace lb77
