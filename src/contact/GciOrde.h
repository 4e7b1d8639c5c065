// What becomes of the series of a run once each has its row in the table of places.
#pragma once

#include <vector>

#include "contact/GciOpties.h"
#include "contact/GciReeksen.h"
#include "contact/GciTabellen.h"

namespace lb77 {

// By name in capitals, then country, province and name of the place, the Dutch ones behind the
// others; the series of one name and place by their years.
void OrdenReeksen(std::vector<GciReeks>& reeksen, const GciPlaatsen& plaatsen);

// Joins neighbours of the same name and place with at most `maxGat` years between them. False when
// that makes a series of more persons than can be counted.
[[nodiscard]] bool VoegReeksenSamen(std::vector<GciReeks>& reeksen, int maxGat);

// Cuts the series at the last year, and drops those behind it, those of too few persons, and those of
// too short a span.
void ZeefReeksen(std::vector<GciReeks>& reeksen, const GciOpties& opties);

// The names in capitals.
void ZetHoofdletters(std::vector<GciReeks>& reeksen);

}  // namespace lb77
