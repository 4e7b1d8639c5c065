#include <gtest/gtest.h>

#include <array>

#include "steun/FaalBestand.h"
#include "steun/TijdelijkeMap.h"

using namespace lb77;

namespace {

struct Faalproef : ::testing::Test {
  std::string bytes;
  Storing storing;
  FaalBestand bestand{std::make_unique<GeheugenBestand>(bytes, 4), storing};
  std::array<char, 4> record{'a', 'b', 'c', 'd'};
  std::array<char, 4> gelezen{};
};

}  // namespace

TEST_F(Faalproef, ZonderStoringGaatAllesDoor) {
  EXPECT_FALSE(bestand.Schrijf(2, record));
  EXPECT_EQ(bytes, std::string("\0\0\0\0abcd", 8));
  EXPECT_EQ(bestand.Lees(2, gelezen).gelezen, 4U);
  EXPECT_EQ(gelezen, record);
  EXPECT_FALSE(bestand.Veiligstellen());
  EXPECT_EQ(bestand.Lengte(), 8U);
  EXPECT_EQ(bestand.RecordLengte(), 4U);
  EXPECT_EQ(storing.teller, 3);
}

TEST_F(Faalproef, AlleenDeGekozenOperatieMislukt) {
  storing.bij = 2;
  EXPECT_FALSE(bestand.Schrijf(1, record));
  EXPECT_FALSE(storing.Geweest());
  EXPECT_EQ(bestand.Schrijf(2, record).tekst, kSchrijfStoring);
  EXPECT_TRUE(storing.Geweest());
  EXPECT_FALSE(bestand.Schrijf(3, record));
  EXPECT_EQ(bytes, std::string("abcd\0\0\0\0abcd", 12));
}

TEST_F(Faalproef, EenBlijvendeStoringBlijft) {
  storing = {.bij = 1, .blijvend = true};
  EXPECT_EQ(bestand.Lees(1, gelezen).fout.tekst, kLeesStoring);
  EXPECT_TRUE(bestand.Schrijf(1, record));
  EXPECT_TRUE(bestand.Veiligstellen());
}

TEST_F(Faalproef, EenKorteSchrijfactieLaatDeHelftAchter) {
  storing = {.bij = 1, .kort = true};
  EXPECT_EQ(bestand.Schrijf(1, record).nummer, kSchijfVol);
  EXPECT_EQ(bytes, "ab");
}

TEST_F(Faalproef, EenGrootteDieNietTeVertellenIsIsNul) {
  EXPECT_FALSE(bestand.Schrijf(1, record));
  storing.zonderLengte = true;
  EXPECT_EQ(bestand.Lengte(), 0U);
}

TEST_F(Faalproef, OokMislukteSchrijfactiesTellenAlsWijziging) {
  storing.bij = 1;
  EXPECT_TRUE(bestand.Schrijf(1, record));
  EXPECT_EQ(bestand.Wijzigingen(), 1U);
  EXPECT_FALSE(bestand.Schrijf(1, record));
  EXPECT_EQ(bestand.Wijzigingen(), 2U);
}

TEST(GeheugenBestandTest, LeestVoorbijHetEindeNietsEnEenHalfRecordHalf) {
  std::string bytes = "abcdef";
  GeheugenBestand bestand(bytes, 4);
  std::array<char, 4> gelezen{};
  EXPECT_EQ(bestand.Lees(2, gelezen).gelezen, 2U);
  EXPECT_EQ(bestand.Lees(3, gelezen).gelezen, 0U);
  EXPECT_FALSE(bestand.Veiligstellen());
}

TEST(FalendeOpenerTest, OpentBestandenDieSamenTellen) {
  const TijdelijkeMap map;
  Storing storing;
  Bestandenset bestanden(FalendeOpener(storing));
  EXPECT_FALSE(bestanden.Open(BestandSoort::Personen, map / "a"));
  EXPECT_FALSE(bestanden.Open(BestandSoort::Relaties, map / "b"));
  EXPECT_TRUE(bestanden.Open(BestandSoort::Plaatsen, map / "er" / "niet"));
  storing.bij = 2;
  std::array<char, 4> gelezen{};
  EXPECT_FALSE(bestanden.Bestand(BestandSoort::Personen).Lees(1, gelezen).fout);
  EXPECT_TRUE(bestanden.Bestand(BestandSoort::Relaties).Lees(1, gelezen).fout);
}
