#include <gtest/gtest.h>

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
  SchrijfBytes(map / "Familie.prs", "a");
  SchrijfBytes(map / "FAMILIE.PRS", "b");
  EXPECT_EQ(VindPad(map / "FAMILIE.PRS"), map / "FAMILIE.PRS");
  EXPECT_EQ(VindPad(map / "Familie.prs"), map / "Familie.prs");
}

TEST_F(PadenTest, EenBestandWordtOokMetAndereHoofdlettersGevonden) {
  SchrijfBytes(map / "familie.prs", "a");
  EXPECT_EQ(VindPad(map / "FAMILIE.PRS"), map / "familie.prs");
}

TEST_F(PadenTest, ElkDeelVanHetPadMagAnderszijn) {
  SchrijfBytes(map / "Royal/Tekst/lijst.txt", "a");
  EXPECT_EQ(VindPad(map / "ROYAL/TEKST/LIJST.TXT"), map / "Royal/Tekst/lijst.txt");
  EXPECT_EQ(VindPad(map / "ROYAL/TEKST"), map / "Royal/Tekst");
}

TEST_F(PadenTest, WatNietBestaatBlijftAchterWatWelBestaat) {
  SchrijfBytes(map / "royal/royal.rlt", "a");
  EXPECT_EQ(VindPad(map / "ROYAL/ROYAL.PRS"), map / "royal/ROYAL.PRS");
  EXPECT_EQ(VindPad(map / "ANDER/ROYAL.RLT"), map / "ANDER/ROYAL.RLT");
}

TEST_F(PadenTest, OokLettersMetAccentenHebbenEenKast) {
  SchrijfBytes(map / "zoë.prs", "a");
  EXPECT_EQ(VindPad(map / "ZOË.PRS"), map / "zoë.prs");
}

TEST_F(PadenTest, EenNaamDieErAlleenOpLijktIsEenAndere) {
  SchrijfBytes(map / "Ĉ.prs", "a");
  EXPECT_EQ(VindPad(map / "C.PRS"), map / "C.PRS");
  EXPECT_EQ(VindPad(map / "Ж.PRS"), map / "Ж.PRS");
}

TEST_F(PadenTest, VanTweeKandidatenWintDeEersteInVolgorde) {
  SchrijfBytes(map / "aB", "1");
  SchrijfBytes(map / "Ab", "2");
  EXPECT_EQ(VindPad(map / "AB"), map / "Ab");
}

TEST_F(PadenTest, EenLeegPadBlijftLeeg) {
  EXPECT_EQ(VindPad({}), std::filesystem::path());
}

TEST_F(PadenTest, EenRelatiefPadBlijftRelatief) {
  EXPECT_EQ(VindPad("er/is/niets"), std::filesystem::path("er/is/niets"));
}

TEST(PadTekstTest, PadenZijnTekstInWindows1252) {
  EXPECT_EQ(PadTekst("/data/Zoë"), "/data/Zoë"_w);
  EXPECT_EQ(PadTekst("/data/Ж"), "/data/?");
  EXPECT_EQ(PadVan("/data/Zoë"_w), std::filesystem::path("/data/Zoë"));
}
