// Keys that go from one control to the next: Tab, Enter, and the arrows through options.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "forms/Formulier.h"
#include "forms/ProefFormulier.h"

namespace lb77 {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class VolgordeTest : public ::testing::Test {
 protected:
  VolgordeTest() { formulier_.Start(); }

  bool Druk(int code, bool shift = false) {
    return formulier_.Toets(formulier_.FocusVeld(), {.code = code, .shift = shift});
  }

  ProefFormulier formulier_;
};

TEST_F(VolgordeTest, TabSlaatOverWatDeControleVerborg) {
  formulier_.Naam1.BijVerlaten([&] {
    formulier_.Naam2.ZetZichtbaar(false);
    return true;
  });
  Druk(toets::kTab);
  EXPECT_EQ(formulier_.FocusVeld(), &formulier_.Lijst1);
  EXPECT_THAT(formulier_.dagboek, ElementsAre("in Lijst1"));
}

TEST_F(VolgordeTest, TabEnEnterKomenInWatDeControleToonde) {
  for (const int code : {toets::kTab, toets::kEnter}) {
    formulier_.Start();
    formulier_.Naam2.ZetZichtbaar(false);
    formulier_.Naam1.BijVerlaten([&] {
      formulier_.Naam2.ZetZichtbaar(true);
      return true;
    });
    Druk(code);
    EXPECT_EQ(formulier_.FocusVeld(), &formulier_.Naam2);
  }
}

TEST_F(VolgordeTest, TabVerlaatNietsAlsErNietsAndersIs) {
  for (Bediening* een : formulier_.Bedieningen()) {
    if (een != &formulier_.Naam1) een->ZetIngeschakeld(false);
  }
  EXPECT_TRUE(Druk(toets::kTab));
  EXPECT_EQ(formulier_.FocusVeld(), &formulier_.Naam1);
  EXPECT_THAT(formulier_.dagboek, IsEmpty());
}

TEST_F(VolgordeTest, TabBlijftWaarDeControleDeFocusZette) {
  formulier_.Naam1.BijVerlaten([&] {
    formulier_.ZetFocus(formulier_.BackButton);
    return true;
  });
  Druk(toets::kTab, true);
  EXPECT_EQ(formulier_.FocusVeld(), &formulier_.BackButton);
}

TEST_F(VolgordeTest, PijlenLopenDoorDeOptiesVanEenGroepEnKiezen) {
  formulier_.ZetFocus(formulier_.Links);
  EXPECT_TRUE(Druk(toets::kOmlaag));
  EXPECT_TRUE(formulier_.Rechts.Gekozen());
  EXPECT_TRUE(Druk(toets::kRechts));
  EXPECT_EQ(formulier_.FocusVeld(), &formulier_.Links);
  EXPECT_TRUE(Druk(toets::kOmhoog));
  EXPECT_TRUE(Druk(toets::kLinks));
  EXPECT_TRUE(formulier_.Links.Gekozen());
  EXPECT_THAT(formulier_.dagboek,
              ElementsAre("klik Rechts", "klik Links", "klik Rechts", "klik Links"));
}

TEST_F(VolgordeTest, PijlenSlaanEenUitgeschakeldeOptieOver) {
  formulier_.Rechts.ZetIngeschakeld(false);
  formulier_.ZetFocus(formulier_.Links);
  EXPECT_TRUE(Druk(toets::kOmlaag));
  EXPECT_FALSE(Druk(toets::kHome));
  EXPECT_EQ(formulier_.FocusVeld(), &formulier_.Links);
  EXPECT_THAT(formulier_.dagboek, IsEmpty());
}

// A form that hid itself for its chain, and whose chain ended at once.
TEST_F(VolgordeTest, EenVerborgenFormulierBetreedtGeenEersteVeld) {
  static_cast<void>(formulier_.Laad());
  formulier_.Verberg();
  formulier_.Activeer();
  EXPECT_EQ(formulier_.FocusVeld(), nullptr);
}

}  // namespace
}  // namespace lb77
