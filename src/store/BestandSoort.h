// The four record files of a set, by number, and a record of one of them.
#pragma once

#include <array>
#include <compare>
#include <cstddef>
#include <cstdint>

namespace lb77 {

// The files by their file number.
enum class BestandSoort { Personen = 1, Relaties, Opmerkingen, Plaatsen };

// All four, in the order of opening.
inline constexpr std::array kBestandSoorten = {BestandSoort::Personen, BestandSoort::Relaties,
                                               BestandSoort::Opmerkingen, BestandSoort::Plaatsen};

// Its place in a table of four, from 0.
constexpr std::size_t IndexVan(BestandSoort soort) {
  return static_cast<std::size_t>(soort) - 1;
}

// The length of a record in bytes: 128, 64, 96, 27.
constexpr std::size_t RecordLengteVan(BestandSoort soort) {
  constexpr std::array<std::size_t, 4> kLengten = {128, 64, 96, 27};
  return kLengten.at(IndexVan(soort));
}

// A record of a set; numbers count from 1.
struct RecordPlek {
  BestandSoort soort = BestandSoort::Personen;
  std::int32_t nr = 0;

  // NOLINTNEXTLINE(modernize-use-nullptr): the 0 that it sees is the compiler's own
  [[nodiscard]] auto operator<=>(const RecordPlek&) const = default;
};

// Its first byte in the file.
constexpr std::uint64_t BeginVan(const RecordPlek& plek) {
  return static_cast<std::uint64_t>(plek.nr - 1) * RecordLengteVan(plek.soort);
}

}  // namespace lb77
