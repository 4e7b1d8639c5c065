// Controls in rows, told as tables.
#pragma once

#include <string>
#include <vector>

#include "forms/Bediening.h"

namespace lb77 {

// A line for each control. Two or more families of controls that stand together and have the same
// numbers are a table however they were declared: a heading "= (*) Nr Naam", and for each number
// "= (1) "12" "Jansen"". A cell that is hidden is "-", a disabled one ends in "[uit]"; numbers of
// which all cells are hidden share the line "= (4-15) [verborgen]". In UTF-8.
[[nodiscard]] std::vector<std::string> BedieningenRegels(
    const std::vector<Bediening*>& bedieningen);

}  // namespace lb77
