// Combining marks of Unicode and the accented letters of Windows-1252.
#pragma once

#include <string>

namespace lb77 {

// Puts a mark on the last letter of a Windows-1252 text. False, and nothing done, when it is no mark
// or there is no such letter.
[[nodiscard]] bool ZetMerkOpLetter(std::string& uit, char32_t merk);

}  // namespace lb77
