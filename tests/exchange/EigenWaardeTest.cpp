#include <gtest/gtest.h>

#include "exchange/EigenWaarde.h"
#include "store/PersoonVelden.h"

namespace lb77 {
namespace {

TEST(MagInVeld, WeigertWatEenVervolgOfEenGatZouMaken) {
  for (const char* veld : {"GebCorr", "OvlCorr", "HuwCorr"}) {
    EXPECT_FALSE(MagInVeld(veld, "Z"));
    EXPECT_FALSE(MagInVeld(veld, " Zo"));
    EXPECT_TRUE(MagInVeld(veld, "z"));
    EXPECT_TRUE(MagInVeld(veld, ""));
  }
  EXPECT_FALSE(MagInVeld("HuwCorr", "X"));
  EXPECT_FALSE(MagInVeld("Geslacht", "X"));
  EXPECT_FALSE(MagInVeld("Geslacht", "Xyz"));
  EXPECT_FALSE(MagInVeld("Provcode", "&%"));
}

TEST(MagInVeld, LaatToeWatElkRecordKanHebben) {
  EXPECT_TRUE(MagInVeld("GebCorr", "X"));
  EXPECT_TRUE(MagInVeld("Geslacht", "x"));
  EXPECT_TRUE(MagInVeld("Geslacht", "Z"));
  EXPECT_TRUE(MagInVeld("Provcode", "%&"));
  EXPECT_TRUE(MagInVeld("Achternaam", "X"));
}

TEST(TekstBreedte, KentAlleenTeksten) {
  EXPECT_EQ(TekstBreedte(persoonveld::kVelden, "Achternaam"), 25U);
  EXPECT_EQ(TekstBreedte(persoonveld::kVelden, "Geslacht"), 1U);
  EXPECT_EQ(TekstBreedte(persoonveld::kVelden, "GebDatum"), std::string_view::npos);
  EXPECT_EQ(TekstBreedte(persoonveld::kVelden, "BegrCrem"), std::string_view::npos);
  EXPECT_EQ(TekstBreedte(persoonveld::kVelden, "Schoenmaat"), std::string_view::npos);
}

}  // namespace
}  // namespace lb77
