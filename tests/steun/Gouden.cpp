#include "steun/Gouden.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "steun/Plekken.h"
#include "steun/TijdelijkeMap.h"

namespace lb77 {

void VerwachtGouden(std::string_view naam, std::string_view bytes) {
  const auto verwacht = BronMap() / "tests" / "gouden" / naam;
  const auto gekregen = BouwMap() / "gouden" / naam;
  if (std::filesystem::exists(verwacht) && LeesBytes(verwacht) == bytes) return;
  SchrijfBytes(gekregen, bytes);
  ADD_FAILURE() << "differs from tests/gouden/" << naam << "; what came out: " << gekregen;
}

}  // namespace lb77
