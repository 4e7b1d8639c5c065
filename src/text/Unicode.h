// Windows-1252 to and from Unicode, for the two front ends.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace lb77 {

// Windows-1252 bytes 128 to 159; the other bytes are their own code point. Source: Microsoft's
// table cp1252. Its five undefined bytes stand for the C1 controls of the same number, so that
// every byte has a code point and comes back as itself.
inline constexpr std::array<char32_t, 32> kWindows128Tot159 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  // 128
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  // 136
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  // 144
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,  // 152
};

// The Unicode code point of a Windows-1252 byte.
constexpr char32_t CodepuntVan(char teken) {
  const auto byte = static_cast<unsigned char>(teken);
  return byte >= 128 && byte < 160 ? kWindows128Tot159[byte - 128U] : char32_t{byte};
}

// The Windows-1252 byte that is exactly this character; nothing when there is none.
constexpr std::optional<char> TekenVan(char32_t codepunt) {
  if (codepunt < 128 || (codepunt >= 160 && codepunt < 256)) return static_cast<char>(codepunt);
  for (std::size_t i = 0; i < kWindows128Tot159.size(); ++i) {
    if (kWindows128Tot159[i] == codepunt) return static_cast<char>(128 + i);
  }
  return std::nullopt;
}

// The Windows-1252 text for one character: its own byte, or a sensible transliteration (the base
// letter, plain quotes and dashes, a ligature's letters). Marks without width give "".
// Nothing when the character cannot be written at all.
std::optional<std::string> CodepuntNaarWindows(char32_t codepunt);

// UTF-8 to Windows-1252 as CodepuntNaarWindows tells; a letter followed by combining marks
// becomes the accented letter where that exists. Nothing when a character cannot be written
// or the bytes are not valid UTF-8.
std::optional<std::string> Utf8NaarWindows(std::string_view utf8);

// The same, with "?" for each character that cannot be written and each invalid byte.
std::string Utf8NaarWindowsRuim(std::string_view utf8);

// Windows-1252 to UTF-8. Every byte has an equivalent.
std::string WindowsNaarUtf8(std::string_view windows);

}  // namespace lb77
