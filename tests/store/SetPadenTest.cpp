#include <gtest/gtest.h>

#include "store/SetPaden.h"
#include "text/Letterlijk.h"

using namespace lb77;

TEST(SetPadenTest, AllePadenVanEenSet) {
  const SetPaden paden = SetPaden::Van("/data", "ROYAL");
  EXPECT_EQ(paden.map, "/data/ROYAL");
  EXPECT_EQ(paden.prs, "/data/ROYAL/ROYAL.PRS");
  EXPECT_EQ(paden.rlt, "/data/ROYAL/ROYAL.RLT");
  EXPECT_EQ(paden.opm, "/data/ROYAL/ROYAL.OPM");
  EXPECT_EQ(paden.plt, "/data/ROYAL/ROYAL.PLT");
  EXPECT_EQ(paden.centraal, "/data/PLAATS.PLT");
  EXPECT_EQ(paden.tekst, "/data/ROYAL/TEKST");
  EXPECT_EQ(paden.index, "/data/ROYAL/INDEX");
}

TEST(SetPadenTest, DeNaamStaatInHoofdletters) {
  EXPECT_EQ(SetPaden::Van("/d", "zoë"_w).prs, std::filesystem::path(u8"/d/ZOË/ZOË.PRS"));
}
