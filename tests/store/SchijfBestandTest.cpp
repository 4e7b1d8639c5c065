#include <gtest/gtest.h>

#include <array>
#include <string>

#include "steun/TijdelijkeMap.h"
#include "store/SchijfBestand.h"

using namespace lb77;

namespace {

struct SchijfBestandTest : ::testing::Test {
  SchijfBestandTest() { EXPECT_FALSE(bestand.Open(map / "r")); }
  TijdelijkeMap map;
  SchijfBestand bestand{4};
  std::array<char, 4> doel{};
};

}  // namespace

TEST_F(SchijfBestandTest, RecordsTellenVanafEen) {
  EXPECT_FALSE(bestand.Schrijf(1, std::string_view("aaaa")));
  EXPECT_FALSE(bestand.Schrijf(3, std::string_view("cccc")));
  EXPECT_EQ(LeesBytes(map / "r"), std::string("aaaa\0\0\0\0cccc", 12));
  EXPECT_EQ(bestand.Lees(3, doel).gelezen, 4U);
  EXPECT_EQ(std::string(doel.data(), 4), "cccc");
  EXPECT_EQ(bestand.Lengte(), 12U);
  EXPECT_EQ(bestand.RecordLengte(), 4U);
}

TEST_F(SchijfBestandTest, ErWordtNooitMeerDanEenRecordGelezen) {
  SchrijfBytes(map / "r", "aaaabbbb");
  std::array<char, 100> ruim{};
  EXPECT_EQ(bestand.Lees(1, ruim).gelezen, 4U);
}

TEST_F(SchijfBestandTest, RecordNulIsErNiet) {
  EXPECT_EQ(bestand.Lees(0, doel).fout.tekst, "Onjuist recordnummer");
  EXPECT_EQ(bestand.Schrijf(-1, doel).tekst, "Onjuist recordnummer");
  EXPECT_EQ(bestand.Lengte(), 0U);
}

TEST_F(SchijfBestandTest, WijzigingenTelDeSchrijfacties) {
  EXPECT_EQ(bestand.Wijzigingen(), 0U);
  ASSERT_FALSE(bestand.Schrijf(1, doel));
  static_cast<void>(bestand.Lees(1, doel));
  EXPECT_EQ(bestand.Wijzigingen(), 1U);
  EXPECT_FALSE(bestand.Veiligstellen());
  EXPECT_FALSE(bestand.Veiligstellen());
  EXPECT_EQ(bestand.Wijzigingen(), 1U);
}
