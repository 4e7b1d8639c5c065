#include <gtest/gtest.h>

#include "store/Codes.h"
#include "store/Rubrieken.h"

using namespace lb77;

TEST(RubriekenTest, ElkePersoonsrubriekIsHetVolgendeBit) {
  std::int16_t bit = 1;
  for (const RubriekNaam& naam : kPersoonRubrieken) {
    EXPECT_EQ(naam.rubriek, bit);
    bit = static_cast<std::int16_t>(bit * 2);
  }
  EXPECT_EQ(bit, 8192);
}

TEST(RubriekenTest, ElkeRelatierubriekIsHetVolgendeBitMetEenMinteken) {
  std::int16_t bit = 1;
  for (const RubriekNaam& naam : kRelatieRubrieken) {
    EXPECT_EQ(naam.rubriek, -bit);
    bit = static_cast<std::int16_t>(bit * 2);
  }
  EXPECT_EQ(bit, 512);
}

TEST(RubriekenTest, DeOpschriftenVanEenPersoon) {
  EXPECT_EQ(RubriekOpschrift(1), ">> Achternaam");
  EXPECT_EQ(RubriekOpschrift(2), ">> Voornaam");
  EXPECT_EQ(RubriekOpschrift(4), ">> Geb Plaats");
  EXPECT_EQ(RubriekOpschrift(8), ">> Geb Datum");
  EXPECT_EQ(RubriekOpschrift(16), ">> Doop Plaats");
  EXPECT_EQ(RubriekOpschrift(32), ">> Doop Datum");
  EXPECT_EQ(RubriekOpschrift(64), ">> Religie");
  EXPECT_EQ(RubriekOpschrift(128), ">> Ov Plaats");
  EXPECT_EQ(RubriekOpschrift(256), ">> Ov Datum");
  EXPECT_EQ(kOvlDatumOpKaart, ">> Ov datum");
  EXPECT_EQ(RubriekOpschrift(512), ">> Begr Plaats");
  EXPECT_EQ(RubriekOpschrift(1024), ">> Begr Datum");
  EXPECT_EQ(RubriekOpschrift(2048), ">> Beroep");
  EXPECT_EQ(RubriekOpschrift(4096), ">> Algemeen");
}

TEST(RubriekenTest, DeOpschriftenVanEenRelatie) {
  EXPECT_EQ(RubriekOpschrift(-1), ">> Ondertrouw Plaats");
  EXPECT_EQ(RubriekOpschrift(-2), ">> Ondertrouw Datum");
  EXPECT_EQ(RubriekOpschrift(-4), ">> Wettelijk Huwelijk Plaats");
  EXPECT_EQ(RubriekOpschrift(-8), ">> Wettelijk Huwelijk Datum");
  EXPECT_EQ(RubriekOpschrift(-16), ">> Soort Huwelijk");
  EXPECT_EQ(RubriekOpschrift(-32), ">> Kerkelijk Huwelijk Plaats");
  EXPECT_EQ(RubriekOpschrift(-64), ">> Kerkelijk Huwelijk Datum");
  EXPECT_EQ(RubriekOpschrift(-128), ">> Religie");
  EXPECT_EQ(RubriekOpschrift(-256), ">> Algemeen");
}

TEST(RubriekenTest, EenGetalDatGeenRubriekIsHeeftGeenOpschrift) {
  for (const int getal : {0, 3, 8192, -512}) {
    EXPECT_EQ(RubriekOpschrift(static_cast<std::int16_t>(getal)), "");
  }
}

TEST(RubriekenTest, BitsZijnZonderMinteken) {
  EXPECT_EQ(RubriekBits(relatierubriek::kOtrPlaats, relatierubriek::kAlgemeen), 257);
  EXPECT_EQ(RubriekBits(persoonrubriek::kVoornaam, persoonrubriek::kGebPlaats), 6);
}

TEST(CodesTest, EenCodeIsPreciesEenTeken) {
  EXPECT_TRUE(IsCode("T", correctie::kTussen));
  EXPECT_FALSE(IsCode("N", correctie::kTussen));
  EXPECT_FALSE(IsCode("TT", correctie::kTussen));
  EXPECT_FALSE(IsCode("", correctie::kTussen));
}

TEST(CodesTest, DeBitsVanDeUitvoer) {
  EXPECT_EQ(uitvoer::kKwartierstaat | uitvoer::kStamreeks | uitvoer::kGenealogie |
                uitvoer::kGezinsblad | uitvoer::kAlleenHTML,
            1 + 2 + 4 + 8 + 64);
}
