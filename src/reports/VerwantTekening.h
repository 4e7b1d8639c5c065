// The drawing of a chain of kinship: a row a generation, the oldest on top.
#pragma once

#include <string>
#include <vector>

#include "reports/Verwanten.h"

namespace lb77 {

// The lines of the drawing of a chain that runs from the second person back to the first one. Left
// stands the first person, and to the right it goes on to the second: a partner in the next column,
// as does who comes down another way than it went up. None when the sheet would be larger than
// anybody can look at.
[[nodiscard]] std::vector<std::string> TekenVerwantschap(const std::vector<VerwantEntry>& keten);

}  // namespace lb77
