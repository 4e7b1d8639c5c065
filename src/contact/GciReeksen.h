// The series of a run: a surname in a place over a span of years.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "text/Getallen.h"

namespace lb77 {

struct GciReeks {
  std::string naam;
  std::int16_t plaats = 0;  // place number of the set; later a row of GciPlaatsen
  std::int16_t van = 0;     // years
  std::int16_t tot = 0;
  std::int16_t aantal = 1;   // persons
  std::int16_t laatste = 0;  // the last person counted
};

// More series than a full set has events; damaged names could make thousands of each.
inline constexpr std::size_t kMeesteReeksen = 1000000;

inline constexpr std::string_view kTeVeelReeksen = "Het maximum van 1000000 reeksen is bereikt";
inline constexpr std::string_view kTeVeelPersonen =
    "Het maximum van 32767 personen in een reeks is bereikt";

// The table that the scan fills.
class GciReeksen {
 public:
  explicit GciReeksen(std::size_t hoogstens = kMeesteReeksen) : hoogstens_(hoogstens) {}

  // Counts an event for the series of that name and place. Nothing happens without a name, a year or
  // a place, and for an uncertain place. kept: no gap is bridged here, so a year joins the series of
  // that very year alone; what lies near it is joined behind the sort. False when the table is full.
  [[nodiscard]] bool ReeksBij(std::string_view naam, std::int16_t plaats, std::int16_t jaar,
                              std::int16_t persoon);

  [[nodiscard]] int Aantal() const { return static_cast<int>(tabel_.size()); }
  // The table in the order in which its series were met; this one is empty after it.
  [[nodiscard]] std::vector<GciReeks> Neem();

 private:
  std::size_t hoogstens_;
  std::vector<GciReeks> tabel_;
  std::unordered_map<std::string, std::uint32_t> namen_;
  std::unordered_map<std::uint64_t, std::size_t> opSleutel_;  // name, place, year: its series
};

}  // namespace lb77
