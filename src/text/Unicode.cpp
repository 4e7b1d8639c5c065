#include "text/Unicode.h"

#include <algorithm>
#include <cstddef>

#include "text/Merken.h"
#include "text/Translitteratie.h"
#include "text/Utf8.h"
#include "text/Utf8Uit.h"

namespace lb77 {

namespace {

// `vervanging` stands in for what cannot be written; without it that ends the conversion.
std::optional<std::string> ZetOm(std::string_view utf8,
                                 const std::optional<std::string>& vervanging) {
  std::string uit;
  for (std::size_t i = 0; i < utf8.size();) {
    const Utf8Teken gelezen = LeesUtf8(utf8, i);
    i += std::max<std::size_t>(gelezen.lengte, 1);
    const bool leesbaar = gelezen.lengte != 0;
    if (leesbaar && ZetMerkOpLetter(uit, gelezen.codepunt)) continue;
    std::optional<std::string> windows;
    if (leesbaar) windows = CodepuntNaarWindows(gelezen.codepunt);
    if (!windows) windows = vervanging;
    if (!windows) return std::nullopt;
    uit += *windows;
  }
  return uit;
}

}  // namespace

std::optional<std::string> CodepuntNaarWindows(char32_t codepunt) {
  if (const auto teken = TekenVan(codepunt)) return std::string(1, *teken);
  if (const auto tekst = Translitteratie(codepunt)) return std::string(*tekst);
  return std::nullopt;
}

std::optional<std::string> Utf8NaarWindows(std::string_view utf8) {
  return ZetOm(utf8, std::nullopt);
}

std::string Utf8NaarWindowsRuim(std::string_view utf8) {
  return ZetOm(utf8, "?").value_or("");
}

std::string WindowsNaarUtf8(std::string_view windows) {
  std::string uit;
  uit.reserve(windows.size());
  for (const char teken : windows) VoegUtf8Toe(uit, CodepuntVan(teken));
  return uit;
}

}  // namespace lb77
