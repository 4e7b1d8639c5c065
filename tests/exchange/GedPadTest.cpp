#include <gtest/gtest.h>

#include "exchange/GedPad.h"

namespace lb77 {
namespace {

TEST(GedPadTest, EenLabelKomtAchterHetPadErboven) {
  GedPad pad;
  pad.Zet(0, "INDI");
  pad.Zet(1, "BIRT");
  pad.Zet(2, "DATE");
  EXPECT_EQ(pad.Van(0), "INDI");
  EXPECT_EQ(pad.Ouder(2), "INDI-BIRT");
  EXPECT_EQ(pad.Van(2), "INDI-BIRT-DATE");
}

TEST(GedPadTest, EenRegelVervangtDeVorigeVanZijnNiveau) {
  GedPad pad;
  pad.Zet(0, "INDI");
  pad.Zet(1, "BIRT");
  pad.Zet(1, "DEAT");
  EXPECT_EQ(pad.Van(1), "INDI-DEAT");
}

TEST(GedPadTest, EenOvergeslagenNiveauHoudtWatEenEerdereRegelNaliet) {
  GedPad pad;
  pad.Zet(0, "INDI");
  pad.Zet(1, "BIRT");
  pad.Zet(0, "FAM");
  pad.Zet(2, "DATE");
  EXPECT_EQ(pad.Van(2), "INDI-BIRT-DATE");
}

TEST(GedPadTest, EenNiveauDatGeenRegelHadIsLeeg) {
  GedPad pad;
  pad.Zet(3, "DATE");
  EXPECT_EQ(pad.Ouder(3), "");
  EXPECT_EQ(pad.Van(3), "-DATE");
}

TEST(GedPadTest, NiveausLopenTotNegenennegentig) {
  GedPad pad;
  for (int level = 0; level <= 99; ++level) pad.Zet(level, "A");
  EXPECT_EQ(pad.Van(99).size(), 199U);
}

}  // namespace
}  // namespace lb77
