// The words behind `lb77`.
#pragma once

#include <filesystem>
#include <optional>
#include <ostream>
#include <span>
#include <string>

namespace lb77 {

struct Aanroep {
  std::optional<int> status;                 // set when there is nothing to run: all has been said
  std::optional<std::filesystem::path> map;  // the program's directory
  std::optional<std::filesystem::path> bestand;  // a GEDCOM file to read, absolute
};

// Answers a question for help or the version on `uit`, which needs no screen. False for all else.
[[nodiscard]] bool BeantwoordAanroep(std::span<const std::string> woorden, std::ostream& uit);

// Reads the words, in UTF-8. What is wrong with them goes to `fout`, with status 2.
[[nodiscard]] Aanroep LeesAanroep(std::span<const std::string> woorden, std::ostream& fout);

}  // namespace lb77
