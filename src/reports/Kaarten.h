// The cards of persons and relations: every field of a record, behind its label.
#pragma once

#include <cstdint>

#include "output/TekstSchrijver.h"
#include "store/Gegevens.h"

namespace lb77 {

// One card, as wide as the right margin of `uit`. A number that no record has, and that of the admin
// record, gives one line instead. The buffers and the trackers of persons, relations and places
// change.
void SchrijfPersoonskaart(TekstSchrijver& uit, const Gegevens& gegevens, std::int32_t nr);
void SchrijfRelatiekaart(TekstSchrijver& uit, const Gegevens& gegevens, std::int32_t nr);

}  // namespace lb77
