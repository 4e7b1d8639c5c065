// The fixture that plays a script against a program and compares its transcript.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <source_location>
#include <string>
#include <string_view>

#include "script/Speler.h"

namespace lb77 {

// The lines of a raw literal without the blanks around them, each ended by a line feed.
[[nodiscard]] std::string TranscriptRegels(std::string_view tekst);

// Scripts and transcripts are written as raw literals: blanks around a line and blank lines do not
// count. Each text that appears is added to getoond.txt in the build folder.
class SpeelToets : public ::testing::Test {
 protected:
  using Programma = std::function<void(Gesprek&)>;
  using Plek = std::source_location;

  // Plays the script. The transcript stands in verslag_ then, each line ended by a line feed.
  SpeelUitslag Speel(std::string_view draaiboek, const Programma& programma);

  // Plays the script to its end and expects this transcript, and that nothing held ready was left.
  void Verwacht(std::string_view draaiboek, const Programma& programma, std::string_view verslag,
                const Plek& plek = Plek::current());

  // Expects that the script cannot be played, with `reden` as (part of) the reason.
  void VerwachtFout(std::string_view draaiboek, const Programma& programma, std::string_view reden,
                    const Plek& plek = Plek::current());

  // The lines of a raw literal without the blanks around them, each ended by a line feed.
  [[nodiscard]] static std::string Regels(std::string_view tekst) {
    return TranscriptRegels(tekst);
  }

  // Relative paths of `bestand` are resolved against it.
  std::filesystem::path basismap_;
  bool echo_ = false;  // instructions stand in the transcript
  std::string verslag_;
};

// The program that shows one form of kind F, made with `args`.
template <class F, class... Args>
std::function<void(Gesprek&)> Toont(Args&... args) {
  return [&args...](Gesprek& gesprek) {
    F formulier(args...);
    gesprek.ToonModaal(formulier);
  };
}

// Adds texts that appeared, in UTF-8, to getoond.txt; the script player's hook does so by itself.
void NoteerGetoond(std::string_view utf8);

}  // namespace lb77
