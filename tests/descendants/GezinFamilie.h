// A family on which a family sheet shows all that it can tell.
#pragma once

#include <cstdint>

#include "steun/BouwFamilie.h"

namespace lb77 {

// The numbers of the records that tests ask for.
struct GezinFamilie {
  std::int16_t man = 0;
  std::int16_t vrouw = 0;
  std::int16_t relatie = 0;
  std::int16_t tweede = 0;  // a relation of the man without a partner
  std::int16_t oudste = 0;  // a son with two marriages
};

// Persons, relations, places and remarks in an empty set.
[[nodiscard]] GezinFamilie BouwGezinFamilie(BouwFamilie& bouw);

}  // namespace lb77
