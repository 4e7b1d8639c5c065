// The chains as a whole, beside walks of one step at a time.
#include <gtest/gtest.h>

#include <cstddef>

#include "checks/OpmSchakels.h"

namespace lb77 {
namespace {

using Volgende = std::vector<std::int16_t>;

bool Loopt(const Volgende& volgende, std::int16_t begin, std::int16_t nr) {
  for (std::size_t stap = 0; stap < volgende.size(); ++stap) {
    if (begin <= 0 || static_cast<std::size_t>(begin) >= volgende.size()) return false;
    if (begin == nr) return true;
    begin = volgende[static_cast<std::size_t>(begin)];
  }
  return false;
}

TEST(OpmSchakelsToets, ZonderRecordsIsErNietsTeBereiken) {
  EXPECT_FALSE(OpmSchakels({}).Bereikt(1, 1));
  EXPECT_FALSE(OpmSchakels({0}).Bereikt(0, 0));
  EXPECT_FALSE(OpmSchakels({0, 0}).Bereikt(-1, 1));
  EXPECT_TRUE(OpmSchakels({0, 0}).Bereikt(1, 1));
}

TEST(OpmSchakelsToets, EenKringBereiktZichzelfHelemaal) {
  const OpmSchakels schakels({0, 2, 3, 1, 3, 4});
  for (std::int16_t van = 1; van <= 3; ++van) {
    for (std::int16_t naar = 1; naar <= 3; ++naar) EXPECT_TRUE(schakels.Bereikt(van, naar));
    EXPECT_FALSE(schakels.Bereikt(van, 4));
    EXPECT_TRUE(schakels.Bereikt(5, van));
  }
  EXPECT_TRUE(OpmSchakels({0, 1}).Bereikt(1, 1));
}

TEST(OpmSchakelsToets, GeeftVoorElkPaarHetzelfdeAlsStapVoorStapLopen) {
  std::uint32_t toeval = 7;
  for (int ronde = 0; ronde < 300; ++ronde) {
    Volgende volgende(12);
    for (std::int16_t& nr : volgende) {
      toeval = toeval * 1664525u + 1013904223u;
      nr = static_cast<std::int16_t>(static_cast<int>((toeval >> 16) % 15) - 1);
    }
    const OpmSchakels schakels(volgende);
    for (std::int16_t van = -1; van < 14; ++van) {
      for (std::int16_t naar = 1; naar < 12; ++naar) {
        ASSERT_EQ(schakels.Bereikt(van, naar), Loopt(volgende, van, naar))
            << ronde << ": " << van << " " << naar;
      }
    }
  }
}

TEST(OpmSchakelsToets, EenKetenVanAlleRecordsKostNietMeerDanEenGang) {
  Volgende volgende(32768);
  for (std::size_t nr = 1; nr < volgende.size(); ++nr) {
    volgende[nr] = static_cast<std::int16_t>(nr - 1);
  }
  const OpmSchakels schakels(volgende);
  for (std::int32_t nr = 1; nr < 32767; ++nr) {
    ASSERT_TRUE(schakels.Bereikt(32767, static_cast<std::int16_t>(nr)));
    ASSERT_FALSE(schakels.Bereikt(1, static_cast<std::int16_t>(nr + 1)));
  }
}

}  // namespace
}  // namespace lb77
