#include "text/Unicode.h"

#include <algorithm>
#include <cstddef>

#include "text/Accenten.h"
#include "text/Translitteratie.h"
#include "text/Utf8.h"

namespace lb77 {

namespace {

// A combining mark of Unicode and its letters.
struct Samenvoeging {
  char32_t merk = 0;
  const Accentletters& letters;
};

constexpr std::array kSamenvoegingen = {
    Samenvoeging{0x0300, kGravis}, Samenvoeging{0x0301, kAcutus}, Samenvoeging{0x0302, kCircumflex},
    Samenvoeging{0x0303, kTilde},  Samenvoeging{0x0308, kUmlaut}, Samenvoeging{0x030A, kRing},
    Samenvoeging{0x030C, kHacekS}, Samenvoeging{0x030C, kHacekZ}, Samenvoeging{0x0327, kCedille},
};

// Puts the mark on the last letter of `uit`; False when there is no such letter.
[[nodiscard]] bool ZetMerkOpLetter(std::string& uit, char32_t merk) {
  if (uit.empty()) return false;
  for (const Samenvoeging& rij : kSamenvoegingen) {
    if (rij.merk != merk) continue;
    if (const auto gevormd = rij.letters.Met(uit.back())) {
      uit.back() = *gevormd;
      return true;
    }
  }
  return false;
}

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

void VoegUtf8Toe(std::string& uit, char32_t codepunt) {
  const auto voegToe = [&](char32_t byte) { uit += static_cast<char>(byte); };
  if (codepunt < 0x80) {
    voegToe(codepunt);
  } else if (codepunt < 0x800) {
    voegToe(0xC0U | (codepunt >> 6U));
    voegToe(0x80U | (codepunt & 0x3FU));
  } else {
    voegToe(0xE0U | (codepunt >> 12U));
    voegToe(0x80U | ((codepunt >> 6U) & 0x3FU));
    voegToe(0x80U | (codepunt & 0x3FU));
  }
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
