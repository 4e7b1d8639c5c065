// A person in a GEDCOM 5.5.1 file.
#pragma once

#include <cstdint>

#include "exchange/Ged551Mee.h"
#include "exchange/Ged551Velden.h"

namespace lb77 {

// Writes the lines of person `nr`, which goes along. False when it cannot be read after all: its first
// line stands alone then, as others link to it.
[[nodiscard]] bool SchrijfGed551Persoon(std::int16_t nr, Ged551Velden& velden,
                                        const Ged551Mee& mee);

}  // namespace lb77
