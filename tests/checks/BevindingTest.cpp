// The names of the kinds of finding.
#include <gtest/gtest.h>

#include <set>
#include <string_view>

#include "checks/Bevinding.h"

namespace lb77 {
namespace {

TEST(BevindingToets, ElkeSoortHeeftEenEigenNaam) {
  std::set<std::string_view> namen;
  const int aantal = static_cast<int>(BevindingSoort::LosseOpmerking) + 1;
  for (int i = 0; i < aantal; ++i) namen.insert(SoortNaam(static_cast<BevindingSoort>(i)));
  EXPECT_EQ(namen.size(), static_cast<std::size_t>(aantal));
  EXPECT_EQ(SoortNaam(BevindingSoort::Ongebruikt), "Plaats wordt niet gebruikt");
}

}  // namespace
}  // namespace lb77
