// Which rows of the table of places a user sees, page by page.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "contact/GciTabellen.h"

namespace lb77 {

// What is empty lets everything pass.
struct GciFilter {
  std::string naam;  // how a name begins; a star at its end says so, too
  std::string prov;  // codes
  std::string land;
  bool aan = true;
};

// Up to `hoogstens` rows that pass, from row `vanaf` on or before it, in their order.
[[nodiscard]] std::vector<std::int16_t> RijenVanaf(const GciPlaatsen& plaatsen,
                                                   const GciFilter& filter, int vanaf,
                                                   std::size_t hoogstens);
[[nodiscard]] std::vector<std::int16_t> RijenVoor(const GciPlaatsen& plaatsen,
                                                  const GciFilter& filter, int vanaf,
                                                  std::size_t hoogstens);

}  // namespace lb77
