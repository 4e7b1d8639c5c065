#include "text/Bestandstekst.h"

#include <algorithm>
#include <cstddef>

#include "text/Merken.h"
#include "text/Translitteratie.h"
#include "text/Unicode.h"
#include "text/Utf8.h"
#include "text/Utf8Uit.h"

namespace lb77 {

namespace {

// The character at a place; a byte that is not valid UTF-8 is one of Windows-1252.
Utf8Teken LeesTeken(std::string_view tekst, std::size_t plaats) {
  const Utf8Teken teken = LeesUtf8(tekst, plaats);
  return teken.lengte != 0 ? teken : Utf8Teken{CodepuntVan(tekst[plaats]), 1};
}

}  // namespace

bool IsAscii(std::string_view tekst) {
  // without a way out halfway, so that the compiler takes many bytes at a time
  unsigned samen = 0;
  for (const char teken : tekst) samen |= static_cast<unsigned char>(teken);
  return samen < 0x80;
}

void BestandstekstNaarWindows(std::string_view utf8, std::string& uit,
                              std::vector<char32_t>& kwijt) {
  uit.clear();
  uit.reserve(utf8.size());
  for (std::size_t i = 0; i < utf8.size();) {
    const std::size_t begin = i;
    while (i < utf8.size() && static_cast<unsigned char>(utf8[i]) < 0x80) ++i;
    uit.append(utf8, begin, i - begin);
    if (i == utf8.size()) break;
    const Utf8Teken teken = LeesTeken(utf8, i);
    i += teken.lengte;
    if (const auto byte = TekenVan(teken.codepunt)) {
      uit += *byte;
    } else if (ZetMerkOpLetter(uit, teken.codepunt)) {
      continue;
    } else if (const auto tekst = Translitteratie(teken.codepunt)) {
      uit += *tekst;
    } else {
      uit += '?';
      kwijt.push_back(teken.codepunt);
    }
  }
}

std::string HeelUtf8(std::string_view tekst) {
  std::string uit;
  for (std::size_t i = 0; i < tekst.size();) {
    const Utf8Teken teken = LeesTeken(tekst, i);
    i += teken.lengte;
    VoegUtf8Toe(uit, teken.codepunt);
  }
  return uit;
}

Utf8Aard AardVan(std::string_view tekst) {
  if (IsAscii(tekst)) return Utf8Aard::Ascii;
  for (std::size_t i = 0; i < tekst.size();) {
    const Utf8Teken teken = LeesUtf8(tekst, i);
    if (teken.lengte == 0) return Utf8Aard::Ongeldig;
    i += teken.lengte;
  }
  return Utf8Aard::Meerbytes;
}

}  // namespace lb77
