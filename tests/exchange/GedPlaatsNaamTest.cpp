#include <gtest/gtest.h>

#include "exchange/GedPlaatsNaam.h"

namespace lb77 {
namespace {

TEST(GedPlaatsNaamTest, EenNaamZonderTekensWordtGetrimd) {
  EXPECT_EQ(GedPlaatsNaam(" Den Haag "), "Den Haag");
}

TEST(GedPlaatsNaamTest, TekensVanTwijfelGaanVerloren) {
  EXPECT_EQ(GedPlaatsNaam("verm. Utrecht"), "Utrecht");
  EXPECT_EQ(GedPlaatsNaam("Utrecht(?)"), "Utrecht");
  EXPECT_EQ(GedPlaatsNaam("Utrecht (?)"), "Utrecht");
  EXPECT_EQ(GedPlaatsNaam("Utrecht?"), "Utrecht");
  EXPECT_EQ(GedPlaatsNaam("Utrecht ???"), "Utrecht");
  EXPECT_EQ(GedPlaatsNaam("verm. Utrecht (?)"), "Utrecht");
}

TEST(GedPlaatsNaamTest, AlleenHetTekenAanHetEindGaatEraf) {
  EXPECT_EQ(GedPlaatsNaam("Utrecht?(?)"), "Utrecht?");
  EXPECT_EQ(GedPlaatsNaam("Utrecht (?) stad"), "Utrecht (?) stad");
}

TEST(GedPlaatsNaamTest, HetWoordHeeftZijnSpatieEnKleineLettersNodig) {
  EXPECT_EQ(GedPlaatsNaam("verm.Utrecht"), "verm.Utrecht");
  EXPECT_EQ(GedPlaatsNaam("Verm. Utrecht"), "Verm. Utrecht");
}

TEST(GedPlaatsNaamTest, NietsDanTekensIsGeenNaam) {
  for (const std::string_view tekst : {"", "  ", "?", "???", "(?)", "verm. ?", "verm. (?)"}) {
    EXPECT_EQ(GedPlaatsNaam(tekst), "") << tekst;
  }
}

}  // namespace
}  // namespace lb77
