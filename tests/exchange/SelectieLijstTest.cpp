#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "exchange/SelectieLijst.h"

namespace lb77 {
namespace {

using ::testing::ElementsAre;

TEST(SelectieLijst, HoudtDeVolgordeEnKentElkNummerEenKeer) {
  SelectieLijst lijst;
  for (const std::int16_t nr : std::initializer_list<std::int16_t>{7, 3, 7, 32767, 3})
    EXPECT_TRUE(lijst.Voeg(nr));
  EXPECT_THAT(lijst.Nummers(), ElementsAre(7, 3, 32767));
  EXPECT_EQ(lijst.Aantal(), 3U);
}

TEST(SelectieLijst, WeetWieErInStaat) {
  SelectieLijst lijst;
  EXPECT_TRUE(lijst.Voeg(7));
  EXPECT_TRUE(lijst.Bevat(7));
  for (const std::int16_t nr : std::initializer_list<std::int16_t>{-7, -32768, 0, 6, 8, 32767})
    EXPECT_FALSE(lijst.Bevat(nr)) << nr;
}

TEST(SelectieLijst, NulEnMinderIsGeenNummer) {
  SelectieLijst lijst;
  for (const std::int16_t nr : std::initializer_list<std::int16_t>{0, -1, -32768})
    EXPECT_TRUE(lijst.Voeg(nr));
  EXPECT_EQ(lijst.Aantal(), 0U);
  EXPECT_TRUE(lijst.Voeg(1));
  EXPECT_THAT(lijst.Nummers(), ElementsAre(1));
}

TEST(SelectieLijst, WeigertAlleenEenNieuwNummerAlsHijVolIs) {
  SelectieLijst lijst;
  for (int nr = 2; nr <= 32001; ++nr) ASSERT_TRUE(lijst.Voeg(static_cast<std::int16_t>(nr)));
  EXPECT_EQ(lijst.Aantal(), SelectieLijst::kHoogsteAantal);
  EXPECT_TRUE(lijst.Voeg(2));
  EXPECT_TRUE(lijst.Voeg(32001));
  EXPECT_FALSE(lijst.Voeg(32002));
  EXPECT_FALSE(lijst.Bevat(32002));
  EXPECT_EQ(lijst.Aantal(), SelectieLijst::kHoogsteAantal);
}

TEST(SelectieLijst, IsNaWissenLeeg) {
  SelectieLijst lijst;
  EXPECT_TRUE(lijst.Voeg(5));
  lijst.Wis();
  EXPECT_FALSE(lijst.Bevat(5));
  EXPECT_EQ(lijst.Aantal(), 0U);
}

TEST(ExpSelectie, IsLeegZonderPersonenEnRelaties) {
  ExpSelectie selectie;
  EXPECT_TRUE(selectie.IsLeeg());
  EXPECT_TRUE(selectie.SelRelaties.Voeg(2));
  EXPECT_FALSE(selectie.IsLeeg());
  selectie.SelRelaties.Wis();
  EXPECT_TRUE(selectie.SelPersonen.Voeg(2));
  EXPECT_FALSE(selectie.IsLeeg());
}

}  // namespace
}  // namespace lb77
