// Code page 437, the text of the record files, to and from Windows-1252.
#pragma once

#include <string>
#include <string_view>

namespace lb77 {

// Stored text to Windows-1252, byte for byte. A byte without an equivalent passes unchanged.
std::string DosNaarWindows(std::string_view dos);

// Windows-1252 to stored text. What code page 437 lacks becomes a fallback of one or more
// characters, so the result may be longer. The round trip isn't exact and isn't meant to be.
std::string WindowsNaarDos(std::string_view windows);

}  // namespace lb77
