#include <gtest/gtest.h>

#include "exchange/EigenPaden.h"

namespace lb77 {
namespace {

TEST(EigenPaden, EenPlaatsnummerHeeftZijnBepalingAlsTekst) {
  EXPECT_EQ(PlaatsZekerheid(2), "");
  EXPECT_EQ(PlaatsZekerheid(10000), "");
  EXPECT_EQ(PlaatsZekerheid(10001), "verm.");
  EXPECT_EQ(PlaatsZekerheid(20000), "verm.");
  EXPECT_EQ(PlaatsZekerheid(20001), "(?)");
  EXPECT_EQ(PlaatsZekerheid(30000), "(?)");
  EXPECT_EQ(PlaatsZekerheid(32767), "verm. (?)");
  EXPECT_EQ(PlaatsZekerheid(-5), "");
}

TEST(EigenPaden, EenBepalingKomtBijHetNummer) {
  EXPECT_EQ(MetBepaling(2, ""), 2);
  EXPECT_EQ(MetBepaling(2, "verm."), 10002);
  EXPECT_EQ(MetBepaling(10000, "(?)"), 30000);
  EXPECT_EQ(MetBepaling(2767, "verm. (?)"), 32767);
}

TEST(EigenPaden, EenBepalingDieNietKanBlijftWeg) {
  EXPECT_EQ(MetBepaling(2768, "verm. (?)"), 2768);
  EXPECT_EQ(MetBepaling(0, "verm."), 0);
  EXPECT_EQ(MetBepaling(2, "misschien"), 2);
}

TEST(EigenPaden, TweeApenstaartjesZijnErEen) {
  EXPECT_EQ(MetEnkeleAt("a@@b"), "a@b");
  EXPECT_EQ(MetEnkeleAt("@@@@"), "@@");
  EXPECT_EQ(MetEnkeleAt("@@@"), "@@");
  EXPECT_EQ(MetEnkeleAt("a@"), "a@");
  EXPECT_EQ(MetEnkeleAt(""), "");
}

TEST(EigenPaden, EenGebeurtenisHeetZoalsHaarEersteRegelZegt) {
  GedPad pad;
  pad.Zet(0, "FAM");
  pad.Zet(1, "MARR");
  EXPECT_FALSE(NoemGebeurtenis(pad, GedRegel("2 DATE 1900")));
  EXPECT_TRUE(NoemGebeurtenis(pad, GedRegel("2 _LBALS _LBKERK")));
  EXPECT_EQ(pad.Van(1), "FAM-_LBKERK");
  EXPECT_TRUE(IsGenoemd(pad.Van(1)));
  EXPECT_FALSE(IsGenoemd("FAM-MARR"));
}

// A record stays what it is.
TEST(EigenPaden, EenRecordKrijgtGeenAndereNaam) {
  GedPad pad;
  pad.Zet(0, "FAM");
  EXPECT_FALSE(NoemGebeurtenis(pad, GedRegel("1 _LBALS INDI")));
  EXPECT_EQ(pad.Van(0), "FAM");
}

}  // namespace
}  // namespace lb77
