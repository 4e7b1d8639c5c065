// What holds in every set that the program itself has filled.
#pragma once

#include "Sessie.h"

namespace lb77::fuzz {

// Whole records as many as record 1 counts, all readable; links to records that are there; chains
// of remarks that end, with the rubrics that their owner names. Throws std::logic_error.
void EisSamenhang(Hoofdmodule& hoofd, const SetBytes& bytes);

}  // namespace lb77::fuzz
