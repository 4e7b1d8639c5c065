// A family of four full generations for charts and sheets, and how tests make trees by rule.
#pragma once

#include <cstdint>
#include <vector>

#include "steun/BouwFamilie.h"

namespace lb77 {

// The proband, his parents, grandparents and great-grandparents: every way in which a date, a place or
// a name can be known or not. Place p of a sheet is persoon[p].
struct KwstStamboom {
  std::vector<std::int16_t> persoon;
  std::int16_t verre = 0;  // the father of great-grandmother 13, beyond the fourth generation
};

// Persons, relations and places in an empty set.
[[nodiscard]] KwstStamboom BouwKwstStamboom(BouwFamilie& bouw);

// The proband of a full tree of so many generations; person k + 1 is position k.
[[nodiscard]] std::int16_t BouwVolleBoom(BouwFamilie& bouw, int generaties);

}  // namespace lb77
