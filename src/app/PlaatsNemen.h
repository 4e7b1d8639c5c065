// Files that were written beside their places take them together, or not at all.
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <span>
#include <string>

#include "app/HeelBestand.h"
#include "store/SysteemFout.h"

namespace lb77 {

// Where a file is written until it is whole.
[[nodiscard]] std::filesystem::path Ernaast(const std::filesystem::path& plaats);
// Where the file that had the place waits until all new ones have theirs.
[[nodiscard]] std::filesystem::path Opzij(const std::filesystem::path& plaats);

// The file that could not take its place, and why. All others have given theirs back; `terug` is why
// the one at `nietTerug` could not, and success when all did.
struct PlaatsFout {
  std::size_t welke = 0;
  SysteemFout fout;
  std::size_t nietTerug = 0;
  SysteemFout terug;
};

// Each file is brought to the disk, and takes its place when all before it have. A failure leaves the
// earlier files where they were.
[[nodiscard]] std::optional<PlaatsFout> NeemPlaatsen(
    std::span<const std::filesystem::path> plaatsen, Bestandswerk& werk);

// What a message says of a file that could not be put back, a line behind it; empty when all were.
[[nodiscard]] std::string NietTerugTekst(const PlaatsFout& fout,
                                         std::span<const std::filesystem::path> plaatsen);

// Removes what is left beside the places. A file that has its place, or never came, is none.
void RuimErnaast(std::span<const std::filesystem::path> plaatsen, Bestandswerk& werk);

}  // namespace lb77
