// Bars that tell in which periods the descendants of a person lived.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "forms/Tekening.h"
#include "pictures/Lettermaat.h"

namespace lb77 {

// One bar: how many there were, and of how many that is certain.
struct Tijdstaaf {
  std::string periode;
  std::int64_t aantal = 0;
  std::int64_t zeker = 0;
};

struct TijdKeuzen {
  bool kleur = true;  // else grey
  std::string titel;
  std::string onder;  // below the bars
};

// The bars from left to right, each with its number above it.
[[nodiscard]] Tekening MaakTijdbeeld(const std::vector<Tijdstaaf>& staven, const TijdKeuzen& keuzen,
                                     const Lettermaat& maat);

}  // namespace lb77
