// A family on which the descendant reports show all that they can tell.
#pragma once

#include <cstdint>

#include "steun/BouwFamilie.h"

namespace lb77 {

// The numbers of the persons whom tests ask for.
struct GenFamilie {
  std::int16_t stamouder = 0;
  std::int16_t zoon = 0;     // who marries twice
  std::int16_t dochter = 0;  // who has a child without a man
  std::int16_t kind = 0;     // of a cousin marriage: reached twice
};

// Persons, relations, places and remarks in an empty set.
[[nodiscard]] GenFamilie BouwGenFamilie(BouwFamilie& bouw);

}  // namespace lb77
