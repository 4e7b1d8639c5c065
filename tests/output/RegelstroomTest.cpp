#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "output/Regelstroom.h"
#include "steun/TijdelijkeMap.h"

namespace lb77 {
namespace {

constexpr std::size_t kBlok = 65536;

class RegelstroomTest : public ::testing::Test {
 protected:
  // The lines of a file with these bytes.
  std::vector<std::string> Regels(std::string_view bytes, std::uint64_t plaats = 0) {
    SchrijfBytes(map_ / "in.txt", bytes);
    std::vector<std::string> uit;
    EXPECT_TRUE(stroom_.Open(map_ / "in.txt", plaats));
    while (stroom_.VolgendeRegel()) {
      std::string& regel = uit.emplace_back();
      for (auto stuk = stroom_.Stuk(); !stuk.empty(); stuk = stroom_.Stuk()) regel += stuk;
    }
    EXPECT_FALSE(stroom_.Fout());
    return uit;
  }

  using Lijst = std::vector<std::string>;
  TijdelijkeMap map_;
  Regelstroom stroom_;
};

TEST_F(RegelstroomTest, EenLeegBestandHeeftGeenRegel) {
  EXPECT_EQ(Regels(""), Lijst());
}

TEST_F(RegelstroomTest, ElkSoortEindeTelt) {
  EXPECT_EQ(Regels("a\r\nb\nc\rd"), (Lijst{"a", "b", "c", "d"}));
  EXPECT_EQ(Regels("a\n\r"), (Lijst{"a", ""}));
  EXPECT_EQ(Regels("\r\r\n\n"), (Lijst{"", "", ""}));
}

TEST_F(RegelstroomTest, EenRegelMagOverBlokkenLiggen) {
  const std::string lang(3 * kBlok + 5, 'x');
  EXPECT_EQ(Regels(lang + "\r\nb"), (Lijst{lang, "b"}));
}

TEST_F(RegelstroomTest, EenEindeMagOverBlokkenLiggen) {
  const std::string vol(kBlok - 1, 'x');
  EXPECT_EQ(Regels(vol + "\r\nb"), (Lijst{vol, "b"}));
  EXPECT_EQ(Regels(vol + "\rb"), (Lijst{vol, "b"}));
  EXPECT_EQ(Regels(vol + "\r"), (Lijst{vol}));
  EXPECT_EQ(Regels(vol + "\n"), (Lijst{vol}));
}

TEST_F(RegelstroomTest, LezenMagOveralBeginnen) {
  EXPECT_EQ(Regels("een\r\ntwee\r\n", 5), (Lijst{"twee"}));
  EXPECT_EQ(Regels("een", 3), Lijst());
}

TEST_F(RegelstroomTest, DeRestVanEenRegelWordtOvergeslagen) {
  SchrijfBytes(map_ / "in.txt", std::string(2 * kBlok, 'x') + "\r\ntwee\r\n");
  ASSERT_TRUE(stroom_.Open(map_ / "in.txt"));
  ASSERT_TRUE(stroom_.VolgendeRegel());
  ASSERT_TRUE(stroom_.VolgendeRegel());
  EXPECT_EQ(stroom_.Stuk(), "twee");
}

TEST_F(RegelstroomTest, DePlaatsAchterEenRegelIsHetBeginVanDeVolgende) {
  SchrijfBytes(map_ / "in.txt", "een\r\ntwee\r\n");
  ASSERT_TRUE(stroom_.Open(map_ / "in.txt"));
  ASSERT_TRUE(stroom_.VolgendeRegel());
  EXPECT_EQ(stroom_.Stuk(), "een");
  EXPECT_EQ(stroom_.Stuk(), "");
  EXPECT_EQ(stroom_.Plaats(), 5U);
}

TEST_F(RegelstroomTest, EenStroomDieWeerOpengaatBegintOpnieuw) {
  SchrijfBytes(map_ / "in.txt", "een\r\ntwee\r\n");
  EXPECT_FALSE(stroom_.Open(map_ / "weg.txt"));
  ASSERT_TRUE(stroom_.Open(map_ / "in.txt"));
  EXPECT_FALSE(stroom_.Fout());
  ASSERT_TRUE(stroom_.VolgendeRegel());  // in the middle of this line
  ASSERT_TRUE(stroom_.Open(map_ / "in.txt", 5));
  EXPECT_EQ(stroom_.Stuk(), "") << "no line yet";
  ASSERT_TRUE(stroom_.VolgendeRegel());
  EXPECT_EQ(stroom_.Stuk(), "twee");
  EXPECT_EQ(stroom_.Stuk(), "");
  EXPECT_EQ(stroom_.Plaats(), 11U);
}

TEST_F(RegelstroomTest, EenBestandDatErNietIsZegtWaarom) {
  EXPECT_FALSE(stroom_.Open(map_ / "weg.txt"));
  EXPECT_EQ(stroom_.Fout().nummer, kBestandNietGevonden);
  EXPECT_FALSE(stroom_.VolgendeRegel());
  EXPECT_FALSE(stroom_.Open(map_.Pad()));
  EXPECT_TRUE(stroom_.Fout()) << "a directory";
}

}  // namespace
}  // namespace lb77
