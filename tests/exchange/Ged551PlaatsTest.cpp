#include <gtest/gtest.h>

#include "exchange/Ged551Plaats.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

TEST(Ged551Plaats, EenProvinciecodeWordtProvincieEnLand) {
  EXPECT_EQ(Ged551Plaats("Delft", "ZH"), "Delft, Zuid-Holland, Nederland");
  EXPECT_EQ(Ged551Plaats("Delft", "zh"), "Delft, Zuid-Holland, Nederland");
  EXPECT_EQ(Ged551Plaats("Zeist", "U"), "Zeist, Utrecht, Nederland");
}

TEST(Ged551Plaats, EenLandcodeHeeftGeenProvincie) {
  EXPECT_EQ(Ged551Plaats("Gent", "B"), "Gent, , België"_w);
  EXPECT_EQ(Ged551Plaats("Boston", "VS"), "Boston, , Verenigde Staten");
}

TEST(Ged551Plaats, EenOnbekendeCodeBlijftStaan) {
  EXPECT_EQ(Ged551Plaats("Parijs", "XX"), "Parijs, XX");
}

TEST(Ged551Plaats, ZonderCodeBlijftDeNaam) {
  EXPECT_EQ(Ged551Plaats("Schwerin", ""), "Schwerin");
}

TEST(Ged551Plaats, EenBekendeCodeTussenHaakjesIsErEen) {
  EXPECT_EQ(Ged551Plaats("Delft (ZH)", ""), "Delft, Zuid-Holland, Nederland");
  EXPECT_EQ(Ged551Plaats("Gent (b)", ""), "Gent, , België"_w);
  EXPECT_EQ(Ged551Plaats("Delft (ZH)", "NH"), "Delft (ZH), Noord-Holland, Nederland");
  EXPECT_EQ(Ged551Plaats("Delft (oud)", ""), "Delft (oud)");
  EXPECT_EQ(Ged551Plaats("Delft (ZH) oost", ""), "Delft (ZH) oost");
  EXPECT_EQ(Ged551Plaats("Delft ()", ""), "Delft ()");
  EXPECT_EQ(Ged551Plaats(" (ZH)", ""), " (ZH)");
}

TEST(Ged551Plaats, EenKommaInDeNaamScheidtGeenDelen) {
  EXPECT_EQ(Ged551Plaats("Bergen, bij Alkmaar", "NH"),
            "Bergen; bij Alkmaar, Noord-Holland, Nederland");
  EXPECT_EQ(Ged551Plaats("Bergen", ",x"), "Bergen, ;x");
}

TEST(Ged551Plaats, ElkeCodeHeeftZijnGebied) {
  constexpr std::string_view kRijen[][2] = {
      {"GR", "Groningen"},     {"FR", "Friesland"},  {"DR", "Drenthe"},    {"OV", "Overijssel"},
      {"FL", "Flevoland"},     {"GE", "Gelderland"}, {"GL", "Gelderland"}, {"UT", "Utrecht"},
      {"NH", "Noord-Holland"}, {"ZE", "Zeeland"},    {"ZL", "Zeeland"},    {"NB", "Noord-Brabant"},
      {"L", "Limburg"},        {"LI", "Limburg"}};
  for (const auto& rij : kRijen) {
    EXPECT_EQ(Ged551Plaats("X", rij[0]), "X, " + std::string(rij[1]) + ", Nederland");
  }
  EXPECT_EQ(Ged551Plaats("X", "F"), "X, , Frankrijk");
  EXPECT_EQ(Ged551Plaats("X", "D"), "X, , Duitsland");
  EXPECT_EQ(Ged551Plaats("X", "DU"), "X, , Duitsland");
  EXPECT_EQ(Ged551Plaats("X", "GB"), "X, , Groot-Brittannië"_w);
  EXPECT_EQ(Ged551Plaats("X", "UK"), "X, , Groot-Brittannië"_w);
  EXPECT_EQ(Ged551Plaats("X", "US"), "X, , Verenigde Staten");
}

}  // namespace
}  // namespace lb77
