// The reference tables in memory.
#include <gtest/gtest.h>

#include "contact/ContactToets.h"
#include "contact/GciTabellen.h"

namespace lb77 {
namespace {

using Rijen = std::vector<std::int16_t>;

TEST(GciPlaatsen, HebbenHunKolommenZonderBlanco) {
  const GciPlaatsen plaatsen({PlaatsRij("Delft", "ZH", "NL"), "kort"});
  EXPECT_EQ(plaatsen.Aantal(), 2);
  EXPECT_EQ(plaatsen.Naam(1), "Delft");
  EXPECT_EQ(plaatsen.Prov(1), "ZH");
  EXPECT_EQ(plaatsen.Land(1), "NL");
  EXPECT_EQ(plaatsen.Naam(2), "kort");
  EXPECT_EQ(plaatsen.Prov(2), "");
  EXPECT_EQ(plaatsen.Land(2), "");
}

TEST(GciPlaatsen, VolleKolommenStotenAanElkaar) {
  const GciPlaatsen plaatsen({"abcdefghijklmnopqrstuvwxyABCDEF"});
  EXPECT_EQ(plaatsen.Naam(1), "abcdefghijklmnopqrstuvwxy");
  EXPECT_EQ(plaatsen.Prov(1), "ABC");
  EXPECT_EQ(plaatsen.Land(1), "DEF");
}

TEST(GciPlaatsen, VindenAlleRijenVanEenNaamInElkeKast) {
  const GciPlaatsen plaatsen({PlaatsRij("Bergen", "NH", "NL"), PlaatsRij("Delft", "ZH", "NL"),
                              PlaatsRij("BERGEN", "LI", "NL"), PlaatsRij("Li\xE8ge", "", "B")});
  EXPECT_EQ(plaatsen.MetNaam(" bergen "), (Rijen{1, 3}));
  EXPECT_EQ(plaatsen.MetNaam("LI\xC8GE"), Rijen{4});
  EXPECT_EQ(plaatsen.MetNaam("Berg"), Rijen{});
}

TEST(GciPlaatsen, EenRijErbijIsAfgekaptEnMeteenTeVinden) {
  GciPlaatsen plaatsen({PlaatsRij("Delft", "ZH", "NL")});
  EXPECT_EQ(plaatsen.VoegToe("Een plaats met een heel lange naam", "ABCD", "N"), 2);
  EXPECT_EQ(plaatsen.Naam(2), "Een plaats met een heel l");
  EXPECT_EQ(plaatsen.Prov(2), "ABC");
  EXPECT_EQ(plaatsen.Land(2), "N");
  EXPECT_EQ(plaatsen.MetNaam("EEN PLAATS MET EEN HEEL L"), Rijen{2});
}

TEST(GciPlaatsen, ZijnVolBijHetHoogsteNummer) {
  GciPlaatsen plaatsen(std::vector<std::string>(32766, "Delft"));
  EXPECT_EQ(plaatsen.VoegToe("Breda", "NB", "NL"), 32767);
  EXPECT_EQ(plaatsen.VoegToe("Breda", "NB", "NL"), 0);
  EXPECT_EQ(plaatsen.Aantal(), 32767);
}

TEST(GciCodes, VindenOpCodeEnOpNaam) {
  const GciCodes codes(
      {CodeRij("ZH", "Zuid-Holland"), CodeRij("BLG", "Li\xE8ge"), CodeRij("ZH", "Nog een"), "X"});
  EXPECT_EQ(codes.MetCode("zh "), "ZH");
  EXPECT_EQ(codes.MetCode("ZHX"), std::nullopt);
  EXPECT_EQ(codes.MetNaam("zuid-holland"), "ZH");
  EXPECT_EQ(codes.MetNaam("LI\xC8GE"), "BLG");
  EXPECT_EQ(codes.MetNaam("Zuid"), std::nullopt);
  EXPECT_EQ(codes.NaamVan("zh"), "Zuid-Holland");
  EXPECT_EQ(codes.NaamVan("blg"), "Li\xE8ge");
  EXPECT_EQ(codes.NaamVan("X"), "");
  EXPECT_EQ(codes.NaamVan("Y"), std::nullopt);
}

TEST(GciPlaatsen, KentDeCodesVanZijnProvincies) {
  const GciPlaatsen plaatsen({PlaatsRij("Delft", "", "NL"), PlaatsRij("Cleve", "DNW", "D"),
                              PlaatsRij("Jakarta", "DJR", "RI")});
  EXPECT_EQ(plaatsen.MetProv(" djr "), "DJR");
  EXPECT_EQ(plaatsen.MetProv("DNW"), "DNW");
  EXPECT_EQ(plaatsen.MetProv(""), "");  // also the first row
  EXPECT_EQ(plaatsen.MetProv("DN"), std::nullopt);
  EXPECT_EQ(plaatsen.MetProv("NL"), std::nullopt);
}

}  // namespace
}  // namespace lb77
