#include <gtest/gtest.h>

#include "forms/Formulier.h"
#include "forms/Keuzen.h"

namespace lb77 {
namespace {

class KeuzenTest : public ::testing::Test {
 protected:
  Formulier formulier_{"Proef", ""};
};

TEST_F(KeuzenTest, EenGroepOptiesHeeftHoogstensEenKeuze) {
  Optie a(formulier_, "A", "a");
  Optie b(formulier_, "B", "b");
  Optie ander(formulier_, "C", "c", 1);
  a.Zet(true);
  ander.Zet(true);
  b.Zet(true);
  EXPECT_FALSE(a.Gekozen());
  EXPECT_TRUE(b.Gekozen());
  EXPECT_TRUE(ander.Gekozen());
  b.Zet(false);
  EXPECT_FALSE(a.Gekozen() || b.Gekozen());
}

TEST_F(KeuzenTest, EenSchakelaarToontAanOfUit) {
  Vinkje vink(formulier_, "Vink", "&Vink");
  EXPECT_EQ(vink.Waarde(), "uit");
  vink.Zet(true);
  EXPECT_EQ(vink.Waarde(), "aan");
}

TEST_F(KeuzenTest, EenLijstBegintZonderKeuze) {
  const Keuzevak vak(formulier_, "Vak", "&Vak", {"een", "twee"});
  EXPECT_EQ(vak.Index(), -1);
  EXPECT_EQ(vak.Tekst(), "");
}

TEST_F(KeuzenTest, EenIndexBuitenDeLijstKiestNiets) {
  Keuzevak vak(formulier_, "Vak", "&Vak", {"een", "twee"});
  vak.ZetIndex(1);
  EXPECT_EQ(vak.Tekst(), "twee");
  EXPECT_EQ(vak.Waarde(), "twee");
  vak.ZetIndex(2);
  EXPECT_EQ(vak.Index(), -1);
  vak.ZetIndex(0);
  vak.ZetIndex(-2);
  EXPECT_EQ(vak.Index(), -1);
}

TEST_F(KeuzenTest, NieuweRijenWissenDeKeuzeEnEenRijErbijNiet) {
  Keuzelijst lijst(formulier_, "Lijst");
  lijst.VoegToe("een");
  lijst.ZetIndex(0);
  lijst.VoegToe("twee");
  EXPECT_EQ(lijst.Tekst(), "een");
  lijst.ZetRijen({"drie"});
  EXPECT_EQ(lijst.Index(), -1);
  lijst.MaakLeeg();
  EXPECT_TRUE(lijst.Rijen().empty());
}

TEST_F(KeuzenTest, EenKnopToontZijnBijschrift) {
  Knop knop(formulier_, "Knop", "&Knop");
  EXPECT_EQ(knop.Waarde(), "&Knop");
  knop.ZetBijschrift("&Anders");
  EXPECT_EQ(knop.Waarde(), "&Anders");
  EXPECT_TRUE(knop.KanFocus());
}

}  // namespace
}  // namespace lb77
