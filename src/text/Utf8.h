// Reading one UTF-8 sequence, at compile time as well as at run time.
#pragma once

#include <cstddef>
#include <string_view>

namespace lb77 {

// One decoded sequence. `lengte` is its number of bytes; 0 when the bytes are not valid UTF-8.
struct Utf8Teken {
  char32_t codepunt = 0;
  std::size_t lengte = 0;
};

// Decodes the sequence that starts at `plaats` (which lies inside `tekst`). Overlong forms,
// surrogates, numbers above U+10FFFF and sequences that are cut short are not valid.
constexpr Utf8Teken LeesUtf8(std::string_view tekst, std::size_t plaats) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(tekst[plaats + i]); };
  const unsigned eerste = byte(0);
  if (eerste < 0x80) return {eerste, 1};
  const std::size_t lengte = eerste >= 0xF0 ? 4 : eerste >= 0xE0 ? 3 : 2;
  if (eerste < 0xC2 || eerste > 0xF4 || tekst.size() - plaats < lengte) return {};
  char32_t waarde = eerste & (0x7FU >> lengte);
  for (std::size_t i = 1; i < lengte; ++i) {
    if ((byte(i) & 0xC0U) != 0x80U) return {};
    waarde = (waarde << 6U) | (byte(i) & 0x3FU);
  }
  const char32_t laagste = lengte == 4 ? 0x10000 : lengte == 3 ? 0x800 : 0x80;
  const bool surrogaat = waarde >= 0xD800 && waarde <= 0xDFFF;
  if (waarde < laagste || waarde > 0x10FFFF || surrogaat) return {};
  return {waarde, lengte};
}

}  // namespace lb77
