#include <gtest/gtest.h>

#include "exchange/GedGezindte.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

Gezindten Lijst() {
  Gezindten lijst;
  lijst[1] = "NHNederlands Hervormd";
  lijst[3] = "B Burgerlijk";
  lijst[4] = "RK";
  lijst[20] = "WGWaals Gereformé"_w;
  return lijst;
}

TEST(GedGezindteTest, DeCodeVanEenNaam) {
  EXPECT_EQ(GedGezindte("Nederlands Hervormd", Lijst()), "NH");
}

TEST(GedGezindteTest, GrootEnKleinTellenNiet) {
  EXPECT_EQ(GedGezindte(" nederlands HERVORMD ", Lijst()), "NH");
}

TEST(GedGezindteTest, AlleTwintigRegelsWordenDoorzocht) {
  EXPECT_EQ(GedGezindte("waals gereformÉ"_w, Lijst()), "WG");
}

TEST(GedGezindteTest, EenOnbekendeNaamLaatTweeTekensNa) {
  EXPECT_EQ(GedGezindte("Luthers", Lijst()), "Lu");
  EXPECT_EQ(GedGezindte("RK", Lijst()), "RK");
}

TEST(GedGezindteTest, EenOnbekendeNaamVanEenTekenWordtAangevuld) {
  EXPECT_EQ(GedGezindte("X", Lijst()), "X ");
}

TEST(GedGezindteTest, EenCodeVanEenTekenGaatVerloren) {
  EXPECT_EQ(GedGezindte("Burgerlijk", Lijst()), "  ");
}

TEST(GedGezindteTest, EenLegeTekstIsNul) {
  EXPECT_EQ(GedGezindte("", Lijst()), "0");
  EXPECT_EQ(GedGezindte("   ", Lijst()), "0");
}

}  // namespace
}  // namespace lb77
