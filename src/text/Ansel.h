// ANSEL (ANSI Z39.47), the text of GEDCOM files, to and from Windows-1252.
#pragma once

#include <string>
#include <string_view>

namespace lb77 {

// Windows-1252 to ANSEL; an accent comes before its letter. A byte without a row passes unchanged.
std::string WindowsNaarAnsel(std::string_view windows);

// ANSEL to Windows-1252. A mark combines with the letter behind it; a mark that cannot be written
// leaves its name in angle brackets, an unassigned byte "?_" + its number + "_?".
std::string AnselNaarWindows(std::string_view ansel);

}  // namespace lb77
