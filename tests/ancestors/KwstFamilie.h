// A family on which the ancestor report shows all that it can tell.
#pragma once

#include <cstdint>

#include "steun/BouwFamilie.h"

namespace lb77 {

// The numbers of the persons whom tests ask for.
struct KwstFamilie {
  std::int16_t proband = 0;
  std::int16_t vader = 0;
  std::int16_t moeder = 0;
  std::int16_t grootvader = 0;  // of both parents: they were half brother and sister's children
};

// Persons, relations, places and remarks in an empty set.
[[nodiscard]] KwstFamilie BouwKwstFamilie(BouwFamilie& bouw);

}  // namespace lb77
