// The accented letters of Windows-1252, by accent.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "text/Letterlijk.h"

namespace lb77 {

// The letters that exist with one accent, above the same letters without it.
struct Accentletters {
  std::string_view letters;
  std::string_view kaal;

  // The bare letter with the accent; nothing when Windows-1252 has no such letter.
  constexpr std::optional<char> Met(char letter) const {
    const std::size_t plaats = kaal.find(letter);
    if (plaats == std::string_view::npos) return std::nullopt;
    return letters[plaats];
  }
};

inline constexpr Accentletters kGravis{"ÀÈÌÒÙàèìòù"_w, "AEIOUaeiou"};
inline constexpr Accentletters kAcutus{"ÁÉÍÓÚÝáéíóúý"_w, "AEIOUYaeiouy"};
inline constexpr Accentletters kCircumflex{"ÂÊÎÔÛâêîôû"_w, "AEIOUaeiou"};
inline constexpr Accentletters kTilde{"ÃÑÕãñõ"_w, "ANOano"};
inline constexpr Accentletters kUmlaut{"ÄËÏÖÜŸäëïöüÿ"_w, "AEIOUYaeiouy"};
inline constexpr Accentletters kRing{"Åå"_w, "Aa"};
inline constexpr Accentletters kCedille{"Çç"_w, "Cc"};
inline constexpr Accentletters kHacekS{"Šš"_w, "Ss"};
inline constexpr Accentletters kHacekZ{"Žž"_w, "Zz"};

}  // namespace lb77
