#include <gtest/gtest.h>

#include "text/Gezindte.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

Gezindten Lijst() {
  Gezindten lijst;
  lijst[1] = "NHNederlands Hervormd";
  lijst[2] = "  ";
  lijst[3] = "R Remonstrants";
  lijst[5] = "dgDoopsgezind ";
  lijst[6] = "X";
  lijst[20] = "GËGereformeerd én vrij"_w;
  return lijst;
}

TEST(GezindteNaamTest, VindtDeNaamZonderOpHoofdlettersTeLetten) {
  EXPECT_EQ(GezindteNaam("NH", Lijst()), "Nederlands Hervormd");
  EXPECT_EQ(GezindteNaam("nh", Lijst()), "Nederlands Hervormd");
  EXPECT_EQ(GezindteNaam("DG", Lijst()), "Doopsgezind");
}

TEST(GezindteNaamTest, VindtDeTwintigsteRijMetAccenten) {
  EXPECT_EQ(GezindteNaam("gë"_w, Lijst()), "Gereformeerd én vrij"_w);
}

TEST(GezindteNaamTest, VultEenCodeVanEenTekenAan) {
  EXPECT_EQ(GezindteNaam("R", Lijst()), "Remonstrants");
  EXPECT_EQ(GezindteNaam(" R ", Lijst()), "Remonstrants");
}

TEST(GezindteNaamTest, IsLeegVoorEenLegeCode) {
  EXPECT_EQ(GezindteNaam("", Lijst()), "");
  EXPECT_EQ(GezindteNaam("  ", Lijst()), "");
}

TEST(GezindteNaamTest, GeeftDeCodeZelfTerugAlsDieNietInDeLijstStaat) {
  EXPECT_EQ(GezindteNaam("RK", Lijst()), "RK");
  EXPECT_EQ(GezindteNaam("Q ", Lijst()), "Q");
}

TEST(GezindteNaamTest, IsLeegVoorEenRijZonderNaam) {
  EXPECT_EQ(GezindteNaam("X", Lijst()), "");
}

TEST(GezindteNaamTest, VergelijktAlleenDeEersteTweeTekens) {
  EXPECT_EQ(GezindteNaam("NHX", Lijst()), "Nederlands Hervormd");
}

TEST(GezindteCodeTest, VindtDeCodeZonderOpHoofdlettersTeLetten) {
  EXPECT_EQ(GezindteCode("nederlands hervormd", Lijst()), "NH");
  EXPECT_EQ(GezindteCode(" Doopsgezind ", Lijst()), "dg");
  EXPECT_EQ(GezindteCode("GEREFORMEERD ÉN VRIJ"_w, Lijst()), "GË"_w);
}

TEST(GezindteCodeTest, IsAltijdTweeTekensBreed) {
  EXPECT_EQ(GezindteCode("Remonstrants", Lijst()), "R ");
}

TEST(GezindteCodeTest, GeeftTweeBlanksVoorEenLegeOfOnbekendeNaam) {
  EXPECT_EQ(GezindteCode("", Lijst()), "  ");
  EXPECT_EQ(GezindteCode("   ", Lijst()), "  ");
  EXPECT_EQ(GezindteCode("Rooms-Katholiek", Lijst()), "  ");
}

TEST(GezindteCodeTest, SlaatEenRijVanHoogstensTweeTekensOver) {
  EXPECT_EQ(GezindteCode("X", Lijst()), "  ");
}

TEST(GezindteCodeTest, KomtVanDeNaamTerugBijDeCode) {
  EXPECT_EQ(GezindteCode(GezindteNaam("dg", Lijst()), Lijst()), "dg");
}

}  // namespace
}  // namespace lb77
