// What window and command alike tell of undoing and of safety copies.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "text/Pad.h"

namespace lb77 {

inline constexpr std::string_view kAlOngedaan = "Deze bewerking is al ongedaan gemaakt";
// The label of the action follows.
inline constexpr std::string_view kOngedaanGemaakt = "Ongedaan gemaakt: ";
// The reason follows.
inline constexpr std::string_view kKopieNietGemaakt = "De veiligheidskopie is niet gemaakt\n";
inline constexpr std::string_view kKopieNietTerug = "De veiligheidskopie is niet teruggezet\n";
inline constexpr std::string_view kTekstNietTerug = "De map TEKST is niet geheel teruggezet\n";
inline constexpr std::string_view kPlaatsNietBewaard = "De plaats is niet bewaard\n";

// Of a place for the copies.
[[nodiscard]] inline std::string DirectoryErNiet(const std::filesystem::path& plek) {
  return "De directory " + PadTekst(plek) + " is er niet";
}

}  // namespace lb77
