// The first pass of the import: an empty record for each person and each relation of the file.
#pragma once

#include "exchange/ImpLoop.h"
#include "exchange/RegelLezer.h"

namespace lb77 {

// Reads the file from where the reader stands, hands out the record numbers in file order, and
// fills the two id tables. Lines above level 0 are only checked.
[[nodiscard]] ImpUitslag ImpAnalyse(ImpLoop& loop, RegelLezer& lezer);

}  // namespace lb77
