#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "exchange/GedLog.h"
#include "steun/TijdelijkeMap.h"

namespace lb77 {
namespace {

class GedLogTest : public ::testing::Test {
 protected:
  std::string Inhoud() const {
    std::ifstream in(Pad(), std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }
  std::filesystem::path Pad() const { return map_.Pad() / "TEKST" / "GEDCOM.LOG"; }

  TijdelijkeMap map_;
  GedLog log_;
};

TEST_F(GedLogTest, RegelsEindigenOpCRenLF) {
  ASSERT_FALSE(log_.Open(Pad()));
  log_.Regel("een");
  log_.Regel("twee\tdrie");
  EXPECT_FALSE(log_.Sluit());
  EXPECT_EQ(Inhoud(), "een\r\ntwee\tdrie\r\n");
}

TEST_F(GedLogTest, EenMapDieWegIsWordtGemaakt) {
  EXPECT_FALSE(log_.Open(Pad()));
  EXPECT_TRUE(std::filesystem::is_directory(Pad().parent_path()));
}

TEST_F(GedLogTest, EenNieuwVerslagVervangtHetVorige) {
  ASSERT_FALSE(log_.Open(Pad()));
  log_.Regel("oud");
  ASSERT_FALSE(log_.Sluit());
  ASSERT_FALSE(log_.Open(Pad()));
  log_.Regel("nieuw");
  ASSERT_FALSE(log_.Sluit());
  EXPECT_EQ(Inhoud(), "nieuw\r\n");
}

TEST_F(GedLogTest, EenMapInZijnPlaatsIsEenFout) {
  std::filesystem::create_directories(Pad());
  EXPECT_EQ(log_.Open(Pad()).tekst, "Pad is een directory");
}

TEST_F(GedLogTest, EenBestandInDePlaatsVanZijnMapIsEenFout) {
  std::ofstream(Pad().parent_path()) << "bestand";
  EXPECT_TRUE(log_.Open(Pad()));
}

TEST_F(GedLogTest, EenVolleSchijfBlijktBijHetSluiten) {
  if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "geen /dev/full op dit systeem";
  ASSERT_FALSE(log_.Open("/dev/full"));
  for (int i = 0; i < 10000; ++i) log_.Regel("een regel die niet meer past");
  EXPECT_EQ(log_.Sluit().nummer, kSchijfVol);
}

}  // namespace
}  // namespace lb77
