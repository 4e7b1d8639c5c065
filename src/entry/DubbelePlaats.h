// A place may not have the name and the province of another one.
#pragma once

#include <cstdint>
#include <string_view>

#include "forms/Gesprek.h"
#include "store/PlaatsLB77.h"

namespace lb77 {

// May place `nr` (0: one that is to be made) have this name and province beside the places 2 to
// `laatste`? The same name and province are refused; the same name with another province is asked,
// once for each. Names compare as they would be stored, upper and lower case told apart. The buffer
// of `plaats` changes.
[[nodiscard]] bool MagPlaatsHeten(PlaatsLB77& plaats, Gesprek& gesprek, std::int16_t nr,
                                  std::string_view naam, std::string_view prov,
                                  std::int16_t laatste);

}  // namespace lb77
