#include <gtest/gtest.h>

#include "steun/Bestandsstelsel.h"
#include "steun/TijdelijkeMap.h"
#include "store/Bestandenset.h"
#include "store/Handeling.h"
#include "store/JournaalPlek.h"

namespace lb77 {
namespace {

namespace fs = std::filesystem;

class JournaalPlekTest : public ::testing::Test {
 protected:
  TijdelijkeMap map_;
  const fs::path data_ = map_.Pad() / "DATA";
  const fs::path samen_ = map_.Pad() / "disk";
  void SetUp() override {
    fs::create_directories(data_);
    fs::create_directories(samen_);
  }
  void Leg(const fs::path& pad) const { SchrijfBytes(pad, "x"); }
  // The set is reached by a link in the data directory.
  [[nodiscard]] SetPaden Gekoppeld(const char* naam) const {
    SetPaden paden = SetPaden::Van(data_, naam);
    fs::create_directory_symlink(samen_, paden.map);
    return paden;
  }
};

TEST_F(JournaalPlekTest, EenSetInZijnEigenMapHeeftJournaal) {
  fs::create_directories(data_ / "JAN");
  EXPECT_EQ(JournaalPlek(data_ / "JAN", "JAN"), data_ / "JAN/JOURNAAL");
  EXPECT_EQ(JournaalPlek(data_ / "JAN", "jan"), data_ / "JAN/JOURNAAL");
  EXPECT_EQ(JournaalPlek(data_ / "NIETS", "NIETS"), data_ / "NIETS/JOURNAAL");
  Leg(data_ / "JAN/PIET.PRS");
  EXPECT_EQ(JournaalPlek(data_ / "JAN", "JAN"), data_ / "JAN/JOURNAAL");
}

TEST_F(JournaalPlekTest, InEenMapMetEenAndereNaamHeeftElkeSetHetZijne) {
  EXPECT_EQ(JournaalPlek(samen_, "jan"), samen_ / "JOURNAAL.JAN");
  EXPECT_EQ(JournaalPlek(samen_, "PIET"), samen_ / "JOURNAAL.PIET");
}

TEST_F(JournaalPlekTest, EenKoppelingTeltNietAlsEigenMap) {
  if (!kKoppelingen) GTEST_SKIP() << kZonderKoppelingen;
  const SetPaden paden = Gekoppeld("JAN");
  EXPECT_EQ(JournaalPlek(paden.map, "JAN"), paden.map / "JOURNAAL.JAN");
}

// A backup of a set, under a name of the user's.
TEST_F(JournaalPlekTest, WatErLagInEenMapDieNuAndersHeetBlijftVanDeEnigeSet) {
  Leg(samen_ / "JAN.PRS");
  Leg(samen_ / "JOURNAAL/00000001.HND");
  EXPECT_EQ(JournaalPlek(samen_, "JAN"), samen_ / "JOURNAAL");
  EXPECT_EQ(JournaalPlek(samen_, "PIET"), samen_ / "JOURNAAL.PIET");
  Leg(samen_ / "piet.prs");
  EXPECT_EQ(JournaalPlek(samen_, "JAN"), samen_ / "JOURNAAL.JAN");
}

TEST_F(JournaalPlekTest, HetEigenJournaalGaatVoor) {
  Leg(data_ / "JAN/JOURNAAL/00000001.HND");
  Leg(data_ / "JAN/JOURNAAL.JAN/00000001.HND");
  EXPECT_EQ(JournaalPlek(data_ / "JAN", "JAN"), data_ / "JAN/JOURNAAL.JAN");
}

TEST_F(JournaalPlekTest, AlleenEenAnderPersoonsbestandMaaktDatDeSetNietDeEnigeIs) {
  Leg(samen_ / "jan.prs");
  Leg(samen_ / "PIET.RLT");
  Leg(samen_ / "JAN.PRS.BAK");
  fs::create_directories(samen_ / "MAP.PRS");
  EXPECT_TRUE(IsEnigeSet(samen_, "JAN"));
  Leg(samen_ / "te lang voor een set.Prs");
  EXPECT_FALSE(IsEnigeSet(samen_, "JAN"));
  EXPECT_FALSE(IsEnigeSet(samen_ / "weg", "JAN"));
}

// What stands in the files of a set.
std::string Alles(const SetPaden& paden) {
  std::string uit;
  for (const BestandSoort soort : kBestandSoorten)
    uit += LeesBytes(PadVanSoort(paden, soort)) + "|";
  return uit;
}

void Open(Bestandenset& bestanden, const SetPaden& paden) {
  bestanden.ZetJournaal({[] { return std::string("1999-12-31 23:59:58"); }, {}, {}});
  ASSERT_FALSE(bestanden.OpenSet(paden));
}

TEST_F(JournaalPlekTest, WatInDeEneSetNietAfKwamRaaktDeAndereInDieMapNiet) {
  if (!kKoppelingen) GTEST_SKIP() << kZonderKoppelingen;
  const SetPaden een = Gekoppeld("EEN");
  const SetPaden twee = Gekoppeld("TWEE");
  SchrijfBytes(een.prs, std::string(256, 'a'));
  SchrijfBytes(twee.prs, std::string(512, 'b'));
  const std::string voor = LeesBytes(een.prs);
  Bestandenset bestanden;
  {
    Open(bestanden, een);
    Handeling handeling(bestanden, "Invoer");
    ASSERT_FALSE(bestanden.Bestand(BestandSoort::Personen).Schrijf(1, std::string(128, 'c')));
    // The program dies here.
    fs::copy(samen_ / "JOURNAAL.EEN", map_.Pad() / "bewaard");
  }
  const std::string half = LeesBytes(een.prs);
  bestanden.SluitAlles();
  fs::remove_all(samen_ / "JOURNAAL.EEN");
  fs::copy(map_.Pad() / "bewaard", samen_ / "JOURNAAL.EEN");
  Open(bestanden, twee);
  const std::string tweede = Alles(twee);
  EXPECT_FALSE(bestanden.HetJournaal()->Onvoltooid());
  EXPECT_FALSE(bestanden.HetJournaal()->Herstel());
  EXPECT_TRUE(bestanden.HetJournaal()->Geschiedenis().empty());
  EXPECT_EQ(Alles(twee), tweede);
  EXPECT_EQ(LeesBytes(een.prs), half);
  Open(bestanden, een);
  ASSERT_TRUE(bestanden.HetJournaal()->Onvoltooid());
  EXPECT_FALSE(bestanden.HetJournaal()->Herstel());
  EXPECT_EQ(LeesBytes(een.prs), voor);
}

}  // namespace
}  // namespace lb77
