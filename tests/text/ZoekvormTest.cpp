#include <gtest/gtest.h>

#include "text/Letterlijk.h"
#include "text/Zoekvorm.h"

namespace lb77 {
namespace {

TEST(ZoekvormTest, KastEnAccentenTellenNiet) {
  EXPECT_EQ(Zoekvorm("Van Oranje-Nassau 1584"), "van oranje-nassau 1584");
  EXPECT_EQ(Zoekvorm("ÀÁÂÃÄÅÇÈÉÊËÌÍÎÏÑÒÓÔÕÖØÙÚÛÜÝŠŽŸÐ"_w), "aaaaaaceeeeiiiinoooooouuuuyszyd");
  EXPECT_EQ(Zoekvorm("àáâãäåçèéêëìíîïñòóôõöøùúûüýšžÿð"_w), "aaaaaaceeeeiiiinoooooouuuuyszyd");
}

TEST(ZoekvormTest, EenLetterDieErTweeIsWordtErTwee) {
  EXPECT_EQ(Zoekvorm("Weiß"_w), "weiss");
  EXPECT_EQ(Zoekvorm("ÆæŒœÞþ"_w), "aeaeoeoethth");
}

TEST(ZoekvormTest, ElkSoortApostrofIsDezelfde) {
  EXPECT_EQ(Zoekvorm("’t ‘t ´t `t"_w), "'t 't 't 't");
}

TEST(ZoekvormTest, VindVormGeeftDePlaatsInDeTekstZelf) {
  const Zoekplek plek = VindVorm("Jan Weißmüller"_w, "weissmu");
  EXPECT_EQ(plek.begin, 4U);
  EXPECT_EQ(plek.lengte, 6U);
}

TEST(ZoekvormTest, VindVormZoektVanafEenPlaats) {
  EXPECT_EQ(VindVorm("jan en Jan", "jan", 1).begin, 7U);
  EXPECT_FALSE(VindVorm("jan en Jan", "jan", 8).Gevonden());
}

TEST(ZoekvormTest, WatErNietStaatWordtNietGevonden) {
  EXPECT_FALSE(VindVorm("jan", "").Gevonden());
  EXPECT_FALSE(VindVorm("", "a").Gevonden());
  EXPECT_FALSE(VindVorm("jan", "jans").Gevonden());
  EXPECT_FALSE(VindVorm("ß"_w, "t").Gevonden());
}

// Half of a letter that is two is found with the whole of it.
TEST(ZoekvormTest, EenVormDieHalverwegeEenDubbeleLetterEindigtPast) {
  EXPECT_EQ(VindVorm("Weiß"_w, "weis").lengte, 4U);
}

}  // namespace
}  // namespace lb77
