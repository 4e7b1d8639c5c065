// A number with its noun.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "text/Getallen.h"

namespace lb77 {

// "1 persoon", "2 personen".
[[nodiscard]] inline std::string AantalTekst(std::int32_t aantal, std::string_view een,
                                             std::string_view meer) {
  return GetalTekst(aantal) + " " + std::string(aantal == 1 ? een : meer);
}

}  // namespace lb77
