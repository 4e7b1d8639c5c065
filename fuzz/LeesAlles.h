// Reads all that the record classes and the phrases of the reports can read.
#pragma once

#include "Sessie.h"

namespace lb77::fuzz {

// All records that the files have room for, some numbers beside them, and what they refer to; and
// what the checks of the files say of them.
void LeesAlles(Hoofdmodule& hoofd, const SetBytes& bytes);

// Remarks, a place and records added as entry and import do; what refuses has told why.
void SchrijfIets(Hoofdmodule& hoofd);

}  // namespace lb77::fuzz
