// A disk that fails while a record is made or a place is looked for.
#include <gtest/gtest.h>

#include <string>

#include "steun/FaalBestand.h"
#include "steun/ProefSet.h"
#include "steun/TijdelijkeMap.h"
#include "store/NepPlaatsVraag.h"
#include "store/RaamProef.h"

using namespace lb77;

namespace {

template <class Proef>
struct RecordRandTest : ::testing::Test {
  Storing storing;
  ProefSet set{FalendeOpener(storing)};
};

using Proeven = ::testing::Types<PersoonProef, RelatieProef, PlaatsProef, OpmProef>;
TYPED_TEST_SUITE(RecordRandTest, Proeven, RaamNamen);

}  // namespace

TYPED_TEST(RecordRandTest, EenNieuwRecordDatHalverwegeBlijftBederftDeTellingNiet) {
  auto& klasse = TypeParam::Van(this->set);
  std::int16_t nr = 1;
  for (int k = 1; k < 50; ++k) {
    ++nr;
    this->storing = {.bij = k};
    const bool gelukt = klasse.Nieuw(nr);
    const bool verder = this->storing.Geweest();
    this->storing = {};
    const std::int16_t aantal = klasse.AantalInAdmin();
    EXPECT_GE(aantal, nr - 2 + TypeParam::kNieuwAantal) << k;
    EXPECT_LE(aantal, nr - 1 + TypeParam::kNieuwAantal) << k;
    if (!verder) {
      EXPECT_TRUE(gelukt);
      break;
    }
    // What was not counted is made once more.
    if (aantal == nr - 2 + TypeParam::kNieuwAantal) --nr;
  }
  static_cast<void>(this->set.Getoond());
}

TEST(OpmRandTest, OokEenOpmerkingVanEenRelatieHoudtEenNieuwRecordTegen) {
  ProefSet set;
  ASSERT_TRUE(set.Opmerking.Nieuw(2));
  set.Opmerking.Zet("Rubriek", "-1");
  ASSERT_TRUE(set.Opmerking.Schrijf(2));
  EXPECT_FALSE(set.Opmerking.Nieuw(2));
  EXPECT_EQ(set.Getoond().size(), 1U);
  ASSERT_TRUE(set.Opmerking.Lees(2));
  EXPECT_EQ(set.Opmerking.Rubriek(), -1);
}

TEST(PlaatsRandTest, WatEenKeerNietTeLezenWasIsDeVolgendeKeerGeenNieuwePlaats) {
  Storing storing;
  ProefSet set(FalendeOpener(storing));
  const std::int16_t delft = set.Plaats.NrOfNieuw("Delft", "ZH");
  ASSERT_EQ(delft, 2);
  for (int k = 1; k <= 4; ++k) {
    set.Heropen();
    storing = {.bij = k};
    GeenPlaatsVraag niemand;
    // Only looked for: a place is not added.
    static_cast<void>(set.Plaats.Nr("Delft", 0, "ZH", -1, niemand));
    storing = {};
    EXPECT_EQ(set.Plaats.NrOfNieuw("Delft", "ZH"), delft) << k;
  }
  static_cast<void>(set.Getoond());
}
