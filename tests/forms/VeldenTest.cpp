#include <gtest/gtest.h>

#include "forms/Formulier.h"
#include "forms/Velden.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

class VeldenTest : public ::testing::Test {
 protected:
  Formulier formulier_{"Proef", ""};
};

TEST_F(VeldenTest, CodeMagMeerZettenDanDeMaximumlengte) {
  Tekstvak veld(formulier_, "Veld", "&Veld", 3);
  veld.ZetTekst("abcdef");
  EXPECT_EQ(veld.Tekst(), "abcdef");
  EXPECT_EQ(veld.MaxLengte(), 3U);
  EXPECT_EQ(veld.Waarde(), "abcdef");
  EXPECT_EQ(veld.Bijschrift(), "&Veld");
}

TEST_F(VeldenTest, EenVeldOmTeLezenNeemtGeenFocus) {
  Tekstvak veld(formulier_, "Veld");
  EXPECT_TRUE(veld.KanFocus());
  veld.ZetAlleenLezen(true);
  EXPECT_FALSE(veld.KanFocus());
}

TEST_F(VeldenTest, ZonderFilterKomtElkTekenDoor) {
  const Tekstvak veld(formulier_, "Veld");
  EXPECT_EQ(veld.Gefilterd('x'), 'x');
  EXPECT_EQ(veld.Enter(), EnterSoort::Door);
}

TEST_F(VeldenTest, FiltersLatenDoorWatZijZeggen) {
  EXPECT_EQ(AlleenCijfers('0'), '0');
  EXPECT_EQ(AlleenCijfers('9'), '9');
  EXPECT_EQ(AlleenCijfers('/'), '\0');
  EXPECT_EQ(AlleenCijfers(':'), '\0');
  EXPECT_EQ(InHoofdletters('a'), 'A');
  EXPECT_EQ(InHoofdletters('1'), '1');
}

TEST_F(VeldenTest, EenPadvakToontHetPadInWindows1252) {
  Padvak veld(formulier_, "Map");
  veld.ZetPad(std::filesystem::path(u8"/tmp/Zoë"));
  EXPECT_EQ(veld.Tekst(), "/tmp/Zoë"_w);
}

TEST_F(VeldenTest, EenPadvakHoudtEenNaamDieNietTeTonenIs) {
  const std::filesystem::path pad(u8"/tmp/日本");
  Padvak veld(formulier_, "Map");
  veld.ZetPad(pad);
  EXPECT_EQ(veld.Tekst(), "/tmp/??");
  EXPECT_EQ(veld.Pad(), pad);
}

TEST_F(VeldenTest, EenPadvakHoudtBlankenAanHetEindVanHetPad) {
  const std::filesystem::path pad("/tmp/map ");
  Padvak veld(formulier_, "Map");
  veld.ZetPad(pad);
  EXPECT_EQ(veld.Pad(), pad);
}

TEST_F(VeldenTest, EenPadvakGeeftWatDeGebruikerTypteZonderBlankenEromheen) {
  Padvak veld(formulier_, "Map");
  veld.ZetPad(std::filesystem::path(u8"/tmp/日本"));
  veld.ZetTekst(" /tmp/Zoë "_w);
  EXPECT_EQ(veld.Pad(), std::filesystem::path(u8"/tmp/Zoë"));
}

TEST_F(VeldenTest, EenLeegPadvakIsEenLeegPad) {
  Padvak veld(formulier_, "Map");
  EXPECT_TRUE(veld.Pad().empty());
  veld.ZetPad("/tmp");
  veld.ZetTekst("");
  EXPECT_TRUE(veld.Pad().empty());
}

}  // namespace
}  // namespace lb77
