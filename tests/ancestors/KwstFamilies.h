// Small families, each drawn for one rule of the ancestor reports.
#pragma once

#include <cstdint>

#include "steun/BouwFamilie.h"

namespace lb77 {

// Each gives the proband.

// The parents are cousins by way of grandparents 8 and 9, and 9 has a father.
[[nodiscard]] std::int16_t BouwNeefEnNicht(BouwFamilie& bouw);
// Of every person one parent is known: his father, of him the mother, of her the father.
[[nodiscard]] std::int16_t BouwHalveOuders(BouwFamilie& bouw);
// The proband, his father and his mother have brothers and sisters; some of them married twice.
[[nodiscard]] std::int16_t BouwBroersEnZussen(BouwFamilie& bouw);
// The twenty-seventh of twenty-eight children.
[[nodiscard]] std::int16_t BouwGrootGezin(BouwFamilie& bouw);
// The proband married thrice, his father had a relation with nobody known besides his marriage, his
// mother married again.
[[nodiscard]] std::int16_t BouwHertrouwden(BouwFamilie& bouw);

}  // namespace lb77
