#include <gtest/gtest.h>

#include "exchange/OpmRubrieken.h"

namespace lb77 {
namespace {

TEST(OpmRubriekenTest, EenPadDatGeenRijHeeftIsAlgemeenVoorZijnRecord) {
  EXPECT_EQ(AlgemeneRubriek("INDI-BURI"), 4096);
  EXPECT_EQ(AlgemeneRubriek("INDIX"), 4096);
  EXPECT_EQ(AlgemeneRubriek("FAM-MARB"), -256);
  EXPECT_EQ(AlgemeneRubriek("FAMILY"), -256);
}

TEST(OpmRubriekenTest, NotitiesVanAndereRecordsHebbenGeenRubriek) {
  for (const std::string_view pad : {"", "HEAD", "SOUR-INDI", "NOTE", "IND", "FA"}) {
    EXPECT_EQ(AlgemeneRubriek(pad), 0) << pad;
  }
}

TEST(OpmRubriekenTest, EenRubriekIsEenBit) {
  for (const OpmRubriek& rij : AlleOpmRubrieken()) {
    const int bit = rij.rubriek < 0 ? -rij.rubriek : rij.rubriek;
    EXPECT_TRUE(bit > 0 && (bit & (bit - 1)) == 0) << rij.pad;
    EXPECT_EQ(rij.rubriek < 0, rij.pad.starts_with("FAM")) << rij.pad;
  }
}

}  // namespace
}  // namespace lb77
