// The lines of the input on their way to the rest file.
#pragma once

#include <cstdint>
#include <limits>

#include "exchange/ImpLoop.h"
#include "exchange/RegelLezer.h"

namespace lb77 {

// The line that was read last comes by; one of level 0 has been given to ImpLoop::Kop, which told `soort`.
void NeemInRest(ImpLoop& loop, const RegelLezer& lezer, const GedDelen& delen, GedSoort soort);
// Writes it when it was not stored whole.
void SchrijfInRest(ImpLoop& loop, const RegelLezer& lezer);

inline constexpr std::int32_t kGeenRegel = std::numeric_limits<std::int32_t>::max();

// Writes of the lines that the reader still has those that were not stored whole, all from line `vanaf`
// of the file on, and what stands behind the end of the records. The counts of the pass stay.
void LeesInRest(ImpLoop& loop, RegelLezer& lezer, std::int32_t vanaf = kGeenRegel);
// The same of the whole file.
void LeesAllesInRest(ImpLoop& loop, RegelLezer& lezer, std::int32_t vanaf);
// The same when the end of the records has come by.
void LeesSlotInRest(ImpLoop& loop, RegelLezer& lezer);

}  // namespace lb77
