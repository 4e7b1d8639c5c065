#include <gtest/gtest.h>

#include "exchange/GedPlaatsNaam.h"

namespace lb77 {
namespace {

TEST(GedPlaatsNaamTest, ANameWithoutMarksIsTrimmed) {
  EXPECT_EQ(GedPlaatsNaam(" Den Haag "), "Den Haag");
}

TEST(GedPlaatsNaamTest, MarksOfUncertaintyAreLost) {
  EXPECT_EQ(GedPlaatsNaam("verm. Utrecht"), "Utrecht");
  EXPECT_EQ(GedPlaatsNaam("Utrecht(?)"), "Utrecht");
  EXPECT_EQ(GedPlaatsNaam("Utrecht (?)"), "Utrecht");
  EXPECT_EQ(GedPlaatsNaam("Utrecht?"), "Utrecht");
  EXPECT_EQ(GedPlaatsNaam("Utrecht ???"), "Utrecht");
  EXPECT_EQ(GedPlaatsNaam("verm. Utrecht (?)"), "Utrecht");
}

TEST(GedPlaatsNaamTest, OnlyTheMarkAtTheEndIsTaken) {
  EXPECT_EQ(GedPlaatsNaam("Utrecht?(?)"), "Utrecht?");
  EXPECT_EQ(GedPlaatsNaam("Utrecht (?) stad"), "Utrecht (?) stad");
}

TEST(GedPlaatsNaamTest, TheWordNeedsItsBlankAndItsCase) {
  EXPECT_EQ(GedPlaatsNaam("verm.Utrecht"), "verm.Utrecht");
  EXPECT_EQ(GedPlaatsNaam("Verm. Utrecht"), "Verm. Utrecht");
}

TEST(GedPlaatsNaamTest, NothingButMarksIsNoName) {
  for (const std::string_view tekst : {"", "  ", "?", "???", "(?)", "verm. ?", "verm. (?)"}) {
    EXPECT_EQ(GedPlaatsNaam(tekst), "") << tekst;
  }
}

}  // namespace
}  // namespace lb77
