// The three statistics as they are written: branches, family names, periods.
#pragma once

#include <cstdint>

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

// When a person who can be read and his descendants lived, by half centuries.
[[nodiscard]] Uitslag SchrijfTijdbalk(std::int16_t stamouder, RecordBron& bron, TekstSchrijver& uit,
                                      const Verloop& verloop);

}  // namespace lb77
