#include <gtest/gtest.h>

#include <string_view>

#include "store/PlatformUitvoer.h"

using namespace lb77;

TEST(HeleTekens, EenTekstDieAfIsIsHeel) {
  for (const std::string_view tekst :
       {"", "a", "Zo\xC3\xAB", "\xE2\x82\xAC", "x\xF0\x9F\x91\xAA"}) {
    EXPECT_EQ(HeleTekens(tekst), tekst.size()) << tekst;
  }
}

TEST(HeleTekens, HetBeginVanEenTekenWachtOpDeRest) {
  EXPECT_EQ(HeleTekens("Zo\xC3"), 2U);
  EXPECT_EQ(HeleTekens("\xC3"), 0U);
  EXPECT_EQ(HeleTekens("a\xE2"), 1U);
  EXPECT_EQ(HeleTekens("a\xE2\x82"), 1U);
  EXPECT_EQ(HeleTekens("a\xF0"), 1U);
  EXPECT_EQ(HeleTekens("a\xF0\x9F\x91"), 1U);
}

// It would wait for ever.
TEST(HeleTekens, WatGeenTekenWordtWachtNergensOp) {
  EXPECT_EQ(HeleTekens("a\x80"), 2U);
  EXPECT_EQ(HeleTekens("\x80\x80\x80\x80\x80"), 5U);
  EXPECT_EQ(HeleTekens("a\xC3\xAB\xAB"), 4U);
}
