// Unicode text of a file, line by line, to Windows-1252.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lb77 {

// Is every byte below 128?
[[nodiscard]] bool IsAscii(std::string_view tekst);

// The text in Windows-1252, in place of what `uit` held: the byte of the character, else a sensible
// transliteration, else "?", and then the character goes to the end of `kwijt`. A mark behind a letter
// that has an accented form makes that letter. A byte that is not valid UTF-8 is taken as
// Windows-1252.
void BestandstekstNaarWindows(std::string_view utf8, std::string& uit,
                              std::vector<char32_t>& kwijt);

// The text as valid UTF-8: a byte that was not is taken as Windows-1252.
[[nodiscard]] std::string HeelUtf8(std::string_view tekst);

// What the bytes of a text tell of UTF-8.
enum class Utf8Aard {
  Ascii,      // nothing
  Meerbytes,  // valid, with sequences of several bytes
  Ongeldig
};
[[nodiscard]] Utf8Aard AardVan(std::string_view tekst);

}  // namespace lb77
