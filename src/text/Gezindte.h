// Denominations: the user's list of codes and names.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace lb77 {

// The denominations of the settings, index 1 to 20 (0 is not used). An entry is two characters
// of code, then the name; an empty entry is a free row.
using Gezindten = std::array<std::string, 21>;

// The name of a denomination; the code itself when the list does not have it, the empty text for
// an empty code. Upper and lower case are not told apart.
std::string GezindteNaam(std::string_view code, const Gezindten& gezindten);

// The code, always two characters, of a denomination's name; two blanks when the list does not
// have it. Upper and lower case are not told apart.
std::string GezindteCode(std::string_view naam, const Gezindten& gezindten);

}  // namespace lb77
