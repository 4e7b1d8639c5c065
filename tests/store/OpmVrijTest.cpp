// The free records of the remark file, and the end of a chain.
#include "store/OpmSchrijvenToets.h"

using namespace lb77;

namespace {

struct OpmVrijTest : OpmSchrijvenToets {};

using Drie = std::array<int, 3>;
using Lijst = std::vector<std::string>;

}  // namespace

TEST_F(OpmVrijTest, EenEersteVrijDatBezetIsWijktVoorHetVolgendeVrije) {
  ASSERT_TRUE(Wijzig(1, {"een", "twee", "drie"}));
  ZetAdmin(4, 2, 3);
  ASSERT_TRUE(Wijzig(8, {"vier"}));
  EXPECT_EQ(Teksten(1), (Lijst{"een", "twee", "drie"}));
  EXPECT_EQ(Teksten(8), Lijst{"vier"});
  EXPECT_EQ(Admin(), (Drie{5, 4, 6}));
  ASSERT_TRUE(Wijzig(1, {"een", "twee"}));
  ZetAdmin(5, 2, 3);
  ASSERT_TRUE(Wijzig(16, {"vijf"}));
  EXPECT_EQ(Lees(4).Tekstregel(), "vijf");
}

TEST_F(OpmVrijTest, EenEersteVrijOnderTweeIsNooitRecordEen) {
  int opmerking = 0;
  for (const std::int16_t vrij : std::initializer_list<std::int16_t>{1, 0, -7}) {
    ZetAdmin(set.Opmerking.AantalInAdmin(), vrij, 0);
    const std::string voor = LeesBytes(set.paden.opm).substr(10, 86);
    ASSERT_TRUE(Wijzig(1, {"een"}, ++opmerking));
    EXPECT_EQ(LeesBytes(set.paden.opm).substr(10, 86), voor);
  }
  EXPECT_EQ(Lees(4).Tekstregel(), "een");
}

TEST_F(OpmVrijTest, OokEenTellingVanNulMaaktRecordEenNietVrij) {
  ZetAdmin(0, 1, 0);
  ASSERT_TRUE(Wijzig(1, {"een"}));
  EXPECT_EQ(Eigenaar().first, 2);
  EXPECT_EQ(Lees(2).Tekstregel(), "een");
  EXPECT_EQ(Admin(), (Drie{1, 1, 3}));
}

TEST_F(OpmVrijTest, EenVolBestandMetEenOudEersteVrijMeldtHetMaximum) {
  ZetAdmin(32767, 2, 32766);
  set.bestanden.SluitAlles();
  std::string bytes = LeesBytes(set.paden.opm);
  const std::string bezet = std::string("\1\0\1\0", 4) + std::string(92, ' ');
  while (bytes.size() < 32767 * 96) bytes += bezet;
  SchrijfBytes(set.paden.opm, bytes);
  set.Heropen();
  EXPECT_FALSE(Wijzig(1, {"een"}));
  EXPECT_EQ(set.Getoond(), Boxen{"! stop \"Het maximum van 32767 records is bereikt\""});
  EXPECT_EQ(LeesBytes(set.paden.opm), bytes);
}

TEST_F(OpmVrijTest, HerschrijvenMaaktEenOpmerkingNietTotHetEindeVanDeKetting) {
  ASSERT_TRUE(Wijzig(1, {"een"}));
  ASSERT_TRUE(Wijzig(8, {"twee"}));
  ASSERT_TRUE(Wijzig(1, {"anders"}));
  ASSERT_TRUE(Wijzig(16, {"drie"}));
  EXPECT_EQ(Teksten(1), Lijst{"anders"});
  EXPECT_EQ(Teksten(8), Lijst{"twee"});
  EXPECT_EQ(Teksten(16), Lijst{"drie"});
}
