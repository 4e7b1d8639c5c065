#include <gtest/gtest.h>

#include "descendants/GenLabel.h"

namespace lb77 {
namespace {

TEST(GenLabel, DeStamouderHeeftGeenLetter) {
  EXPECT_EQ(GenLabel(1, 0, false), "I");
}

TEST(GenLabel, DeLetterTeltDeHoofdpersonenVanEenGeneratie) {
  EXPECT_EQ(GenLabel(2, 1, false), "IIa");
  EXPECT_EQ(GenLabel(2, 26, false), "IIz");
  EXPECT_EQ(GenLabel(14, 2, false), "XIVb");
}

TEST(GenLabel, VanafZevenentwintigZijnHetTweeLetters) {
  EXPECT_EQ(GenLabel(3, 27, false), "IIIaa");
  EXPECT_EQ(GenLabel(3, 52, false), "IIIaz");
  EXPECT_EQ(GenLabel(3, 53, false), "IIIba");
  EXPECT_EQ(GenLabel(3, 675, false), "IIIyy");
  EXPECT_EQ(GenLabel(3, 676, false), "IIIyz");
  EXPECT_EQ(GenLabel(3, 677, false), "IIIza");
  EXPECT_EQ(GenLabel(3, 702, false), "IIIzz");
}

TEST(GenLabel, NaZzKomenErDrieLetters) {
  EXPECT_EQ(GenLabel(2, 703, false), "IIaaa");
  EXPECT_EQ(GenLabel(2, 728, false), "IIaaz");
  EXPECT_EQ(GenLabel(2, 729, false), "IIaba");
  EXPECT_EQ(GenLabel(2, 1999, false), "IIbxw");
}

TEST(GenLabel, UitgelijndStaanDeLettersOnderElkaar) {
  EXPECT_EQ(GenLabel(1, 0, true), "     I");
  EXPECT_EQ(GenLabel(4, 3, true), "    IVc");
  EXPECT_EQ(GenLabel(28, 30, true), "XXVIIIad");
}

TEST(GenLabel, EenTeLangRomeinsGetalVerliestUitgelijndZijnLinkerkant) {
  EXPECT_EQ(GenLabel(78, 1, true), "XXVIIIa");
  EXPECT_EQ(GenLabel(78, 1, false), "LXXVIIIa");
}

}  // namespace
}  // namespace lb77
