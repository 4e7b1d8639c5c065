#include <gtest/gtest.h>

#include <array>

#include "steun/TijdelijkeMap.h"
#include "store/Bestandenset.h"
#include "store/Handeling.h"
#include "store/VooruitLezen.h"

using namespace lb77;

namespace {

struct InGebruikTest : ::testing::Test {
  InGebruikTest() {
    std::filesystem::create_directories(paden.map);
    EXPECT_FALSE(een.OpenSet(paden));
    EXPECT_FALSE(ander.OpenSet(paden));
  }

  TijdelijkeMap map;
  SetPaden paden = SetPaden::Van(map.Pad(), "PROEF");
  Bestandenset een;
  Bestandenset ander;
};

// As the program itself opens a set.
struct JournaalOpSchijfTest : ::testing::Test {
  JournaalOpSchijfTest() {
    std::filesystem::create_directories(paden.map);
    bestanden.ZetJournaal({[] { return std::string("1999-12-31 23:59:58"); }, {}, {}});
    EXPECT_FALSE(bestanden.OpenSet(paden));
  }

  SysteemFout Schrijf(std::int32_t nr, char teken) {
    return bestanden.Bestand(BestandSoort::Personen).Schrijf(nr, std::string(128, teken));
  }

  TijdelijkeMap map;
  SetPaden paden = SetPaden::Van(map.Pad(), "PROEF");
  Bestandenset bestanden;
};

}  // namespace

TEST_F(InGebruikTest, WieEerstKomtHeeftDeSet) {
  EXPECT_TRUE(een.NeemInGebruik());
  EXPECT_TRUE(een.NeemInGebruik());
  EXPECT_FALSE(ander.NeemInGebruik());
}

TEST_F(InGebruikTest, EenGeslotenSetIsWeerVrij) {
  ASSERT_TRUE(een.NeemInGebruik());
  een.SluitAlles();
  EXPECT_TRUE(ander.NeemInGebruik());
}

TEST_F(InGebruikTest, HetSlotBelemmertNiemandEnLaatNietsAchter) {
  ASSERT_TRUE(een.NeemInGebruik());
  EXPECT_FALSE(ander.Bestand(BestandSoort::Personen).Schrijf(1, std::string(128, 'x')));
  std::size_t aantal = 0;
  for (const auto& plek : std::filesystem::directory_iterator(paden.map)) {
    aantal += plek.is_regular_file() ? 1 : 0;
  }
  EXPECT_EQ(aantal, 4U);
}

TEST_F(InGebruikTest, ZonderOpenBestandIsErNietsInGebruik) {
  een.SluitAlles();
  EXPECT_TRUE(een.NeemInGebruik());
  EXPECT_TRUE(ander.NeemInGebruik());
}

TEST_F(JournaalOpSchijfTest, DeMapKomtBijDeEersteSchrijfactie) {
  EXPECT_FALSE(std::filesystem::exists(paden.map / "JOURNAAL"));
  ASSERT_FALSE(Schrijf(1, 'x'));
  EXPECT_TRUE(std::filesystem::exists(paden.map / "JOURNAAL" / "00000001.HND"));
}

TEST_F(JournaalOpSchijfTest, OngedaanGeeftDeBytesEnDeLengteTerug) {
  ASSERT_FALSE(Schrijf(1, 'x'));
  ASSERT_FALSE(Schrijf(1, 'y'));
  ASSERT_FALSE(Schrijf(2, 'z'));
  ASSERT_TRUE(bestanden.HetJournaal()->MaakOngedaan(2));
  EXPECT_EQ(LeesBytes(paden.prs), std::string(128, 'x'));
  ASSERT_TRUE(bestanden.HetJournaal()->MaakOngedaan(4));
  EXPECT_EQ(LeesBytes(paden.prs), std::string(128, 'y') + std::string(128, 'z'));
}

TEST_F(JournaalOpSchijfTest, WatEenAfgebrokenProgrammaLietKomtTerug) {
  ASSERT_FALSE(Schrijf(1, 'x'));
  {
    Handeling handeling(bestanden, "Invoer");
    ASSERT_FALSE(Schrijf(1, 'y'));
    std::filesystem::copy_file(paden.map / "JOURNAAL" / "00000002.BEZ", map / "bewaard");
    ASSERT_FALSE(Schrijf(2, 'z'));
  }
  bestanden.SluitAlles();
  std::filesystem::remove(paden.map / "JOURNAAL" / "00000002.HND");
  std::filesystem::copy_file(map / "bewaard", paden.map / "JOURNAAL" / "00000002.BEZ");
  ASSERT_FALSE(bestanden.OpenSet(paden));
  ASSERT_TRUE(bestanden.HetJournaal()->Onvoltooid());
  EXPECT_EQ(bestanden.HetJournaal()->Onvoltooid()->label, "Invoer");
  ASSERT_FALSE(bestanden.HetJournaal()->Herstel());
  EXPECT_EQ(LeesBytes(paden.prs), std::string(128, 'x'));
  EXPECT_FALSE(Schrijf(2, 'q'));
}

TEST_F(JournaalOpSchijfTest, WaarGeenMapKanKomenWordtNietGeschreven) {
  SchrijfBytes(paden.map / "JOURNAAL", "in de weg");
  EXPECT_TRUE(Schrijf(1, 'x'));
  EXPECT_EQ(LeesBytes(paden.prs), "");
}

TEST_F(JournaalOpSchijfTest, WatEenAnderMaakteWordtNietOverschreven) {
  SchijfJournaalMap een(paden.map / "JOURNAAL");
  SchijfJournaalMap ander(paden.map / "JOURNAAL");
  ASSERT_FALSE(een.Maak("00000001.BEZ"));
  ASSERT_FALSE(een.Schrijf(0, std::string("abc")));
  EXPECT_EQ(ander.Maak("00000001.BEZ").nummer, kBestandBestaatAl);
  EXPECT_EQ(LeesBytes(paden.map / "JOURNAAL/00000001.BEZ"), "abc");
}

TEST_F(JournaalOpSchijfTest, DeVierBestandenZelfBlijvenGelijkAanDieZonderJournaal) {
  ASSERT_FALSE(Schrijf(1, 'x'));
  ASSERT_FALSE(Schrijf(3, 'y'));
  EXPECT_EQ(LeesBytes(paden.prs),
            std::string(128, 'x') + std::string(128, '\0') + std::string(128, 'y'));
}

TEST_F(JournaalOpSchijfTest, VooruitLezenGaatDoorHetJournaalHeen) {
  for (std::int32_t nr = 1; nr <= 3; ++nr) ASSERT_FALSE(Schrijf(nr, 'a'));
  const VooruitLezen vooruit(bestanden);
  std::array<char, 128> doel{};
  RecordBestand& bestand = bestanden.Bestand(BestandSoort::Personen);
  for (std::int32_t nr = 1; nr <= 2; ++nr) EXPECT_EQ(bestand.Lees(nr, doel).gelezen, 128U);
  Bestandsgreep vreemd;
  ASSERT_FALSE(vreemd.Open(paden.prs));
  ASSERT_FALSE(vreemd.Schrijf(256, std::string(128, 'b')));
  EXPECT_EQ(bestand.Lees(3, doel).gelezen, 128U);
  EXPECT_EQ(doel.front(), 'a');
}
