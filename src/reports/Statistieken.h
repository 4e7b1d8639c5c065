// The three statistics as they are written: branches, family names, periods.
#pragma once

#include <cstdint>
#include <map>

#include "reporting/Verloop.h"

namespace lb77 {

class RecordBron;
class TekstSchrijver;

// Each reads its part of the file and writes its report. What can't be read is passed over in
// silence.

// The children of a person who can be read, each with all descendants below him.
[[nodiscard]] Uitslag SchrijfTakken(std::int16_t stamouder, RecordBron& bron, TekstSchrijver& uit,
                                    const Verloop& verloop);

// The surnames of the file that at least `minimum` persons bear. `verloop` is shown how many
// surnames there are so far.
[[nodiscard]] Uitslag SchrijfFamilies(int minimum, RecordBron& bron, TekstSchrijver& uit,
                                      const Verloop& verloop);

// How many of the descendants of a person were born or died in a period, and of how many both is
// known; who is one in two ways counts twice.
struct Periodetelling {
  std::int64_t aantal = 0;
  std::int64_t zeker = 0;
};

struct Tijdbalk {
  std::map<int, Periodetelling> periodes;  // by the first year; where there is nobody there is none
  std::int64_t afstammelingen = 0;
};

inline constexpr int kTijdbalkPeriode = 50;  // years

// Counts them, himself included. False when it was stopped.
[[nodiscard]] bool TelTijdbalk(std::int16_t stamouder, RecordBron& bron, const Verloop& verloop,
                               Tijdbalk& tijdbalk);

// When a person who can be read and his descendants lived, by half centuries.
[[nodiscard]] Uitslag SchrijfTijdbalk(std::int16_t stamouder, RecordBron& bron, TekstSchrijver& uit,
                                      const Verloop& verloop);

}  // namespace lb77
