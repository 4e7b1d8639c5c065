#include <gtest/gtest.h>

#include "forms/Toets.h"

namespace lb77 {
namespace {

TEST(Toets, EenLetterHeeftDeCodeVanZijnHoofdletter) {
  EXPECT_EQ(ToetsVanTeken('p').code, 'P');
  EXPECT_FALSE(ToetsVanTeken('p').shift);
  EXPECT_EQ(ToetsVanTeken('P').code, 'P');
  EXPECT_TRUE(ToetsVanTeken('P').shift);
  EXPECT_EQ(ToetsVanTeken('p').teken, 'p');
}

TEST(Toets, CijfersEnDeBlankHebbenHunEigenCode) {
  EXPECT_EQ(ToetsVanTeken('7').code, '7');
  EXPECT_EQ(ToetsVanTeken(' ').code, toets::kSpatie);
}

TEST(Toets, EenRegeleindeIsDeEntertoets) {
  EXPECT_EQ(ToetsVanTeken('\n').code, toets::kEnter);
  EXPECT_EQ(ToetsVanTeken('\n').teken, '\n');
}

// Their bytes are the codes of End, the arrows, Insert, Delete and the function keys.
TEST(Toets, LeestekensHebbenNietDeCodeVanEenAndereToets) {
  for (const char teken : {'!', '"', '#', '$', '%', '&', '\'', '(', '-', '.', '`', '{', '\xE9'}) {
    EXPECT_EQ(ToetsVanTeken(teken).code, 0) << teken;
    EXPECT_EQ(ToetsVanTeken(teken).teken, teken);
    EXPECT_FALSE(ToetsVanTeken(teken).verwerkt);
  }
}

}  // namespace
}  // namespace lb77
