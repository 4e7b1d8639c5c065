#include <gtest/gtest.h>

#include "steun/Bestandsstelsel.h"
#include "steun/TijdelijkeMap.h"
#include "store/Paden.h"
#include "text/Letterlijk.h"
#include "text/Pad.h"

using namespace lb77;

namespace {

struct PadenTest : ::testing::Test {
  TijdelijkeMap map;
};

}  // namespace

TEST_F(PadenTest, HetPreciezePadGaatVoor) {
  if (!kKastTelt) GTEST_SKIP() << kZonderKast;
  SchrijfBytes(map / "Familie.prs", "a");
  SchrijfBytes(map / "FAMILIE.PRS", "b");
  EXPECT_EQ(VindPad(map / "FAMILIE.PRS"), map / "FAMILIE.PRS");
  EXPECT_EQ(VindPad(map / "Familie.prs"), map / "Familie.prs");
}

TEST_F(PadenTest, EenBestandWordtOokMetAndereHoofdlettersGevonden) {
  if (!kKastTelt) GTEST_SKIP() << kZonderKast;
  SchrijfBytes(map / "familie.prs", "a");
  EXPECT_EQ(VindPad(map / "FAMILIE.PRS"), map / "familie.prs");
}

TEST_F(PadenTest, ElkDeelVanHetPadMagAnderszijn) {
  if (!kKastTelt) GTEST_SKIP() << kZonderKast;
  SchrijfBytes(map / "Royal/Tekst/lijst.txt", "a");
  EXPECT_EQ(VindPad(map / "ROYAL/TEKST/LIJST.TXT"), map / "Royal/Tekst/lijst.txt");
  EXPECT_EQ(VindPad(map / "ROYAL/TEKST"), map / "Royal/Tekst");
}

TEST_F(PadenTest, WatNietBestaatBlijftAchterWatWelBestaat) {
  SchrijfBytes(map / "royal/royal.rlt", "a");
  EXPECT_EQ(VindPad(map / "ROYAL/ROYAL.PRS"),
            map / (kKastTelt ? "royal/ROYAL.PRS" : "ROYAL/ROYAL.PRS"));
  EXPECT_EQ(VindPad(map / "ANDER/ROYAL.RLT"), map / "ANDER/ROYAL.RLT");
}

TEST_F(PadenTest, OokLettersMetAccentenHebbenEenKast) {
  if (!kKastTelt) GTEST_SKIP() << kZonderKast;
  SchrijfBytes(map / u8"zoë.prs", "a");
  EXPECT_EQ(VindPad(map / u8"ZOË.PRS"), map / u8"zoë.prs");
}

TEST_F(PadenTest, EenNaamDieErAlleenOpLijktIsEenAndere) {
  SchrijfBytes(map / u8"Ĉ.prs", "a");
  EXPECT_EQ(VindPad(map / "C.PRS"), map / "C.PRS");
  EXPECT_EQ(VindPad(map / u8"Ж.PRS"), map / u8"Ж.PRS");
}

TEST_F(PadenTest, VanTweeKandidatenWintDeEersteInVolgorde) {
  if (!kKastTelt) GTEST_SKIP() << kZonderKast;
  SchrijfBytes(map / "aB", "1");
  SchrijfBytes(map / "Ab", "2");
  EXPECT_EQ(VindPad(map / "AB"), map / "Ab");
}

TEST_F(PadenTest, EenLeegPadBlijftLeeg) {
  EXPECT_EQ(VindPad({}), std::filesystem::path());
}

#ifdef _WIN32
TEST_F(PadenTest, EenNaamMetEenHalfTekenLijktNergensOp) {
  SchrijfBytes(map / "a", "x");
  const std::filesystem::path half = map / L"a\xD800";
  EXPECT_EQ(VindPad(half), half);
}
#endif

TEST_F(PadenTest, EenRelatiefPadBlijftRelatief) {
  EXPECT_EQ(VindPad("er/is/niets"), std::filesystem::path("er/is/niets"));
}

TEST(PadTekstTest, PadenZijnTekstInWindows1252) {
  EXPECT_EQ(PadTekst(u8"/data/Zoë"), "/data/Zoë"_w);
  EXPECT_EQ(PadTekst(u8"/data/Ж"), "/data/?");
  EXPECT_EQ(PadVan("/data/Zoë"_w), std::filesystem::path(u8"/data/Zoë"));
}
