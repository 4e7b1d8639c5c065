#include <gtest/gtest.h>

#include "entry/VraagProv.h"
#include "steun/SpeelToets.h"

namespace lb77 {
namespace {

class VraagProvTest : public SpeelToets {
 protected:
  std::string Vraag(std::string_view draaiboek, std::string_view prov, std::string_view verslag) {
    std::string antwoord;
    Verwacht(
        draaiboek,
        [&](Gesprek& gesprek) {
          VraagProv vraag("Delft", prov);
          gesprek.ToonModaal(vraag);
          antwoord = vraag.PlaatsProv();
        },
        "+ VraagProv \"Invoer Plaats - Provinciecode\"\n" + Regels(verslag) + "- VraagProv\n");
    return antwoord;
  }
};

TEST_F(VraagProvTest, ToontDePlaatsEnHoudtDeCodeVanDeAanroeper) {
  EXPECT_EQ(Vraag("toon\ndruk OKButton", "ZH", R"(
    : VraagProv "Invoer Plaats - Provinciecode"
    = VraagLabel "Geef de Provinciecode voor deze Plaats"
    = PltsLabel "Delft"
    = ProvCode "ZH"
    = OKButton "&OK"
    * ProvCode
  )"),
            "ZH");
}

TEST_F(VraagProvTest, LettersWordenHoofdletters) {
  EXPECT_EQ(Vraag("vul ProvCode zh\ntoon ProvCode\ndruk OKButton", "  ", "= ProvCode \"ZH\""),
            "ZH");
}

TEST_F(VraagProvTest, EenBlankeCodeLaatRuimteOmTeTypen) {
  EXPECT_EQ(Vraag("toon ProvCode\ntoets z\ntoets h\ntoets Enter", "  ", "= ProvCode \"\""), "ZH");
}

TEST_F(VraagProvTest, EenKorteCodeWordtAangevuld) {
  EXPECT_EQ(Vraag("vul ProvCode u\ndruk OKButton", "  ", ""), "U ");
  EXPECT_EQ(Vraag("vul ProvCode \" u\"\ndruk OKButton", "  ", ""), "U ");
  EXPECT_EQ(Vraag("druk OKButton", "  ", ""), "  ");
}

TEST_F(VraagProvTest, BijElkBetredenStaatDeCodeVanDeAanroeperErWeer) {
  EXPECT_EQ(Vraag("typ ProvCode nh\ntoets Tab\ntoets Tab\ntoon ProvCode\ndruk OKButton", "ZH",
                  "= ProvCode \"ZH\""),
            "ZH");
}

TEST_F(VraagProvTest, MeerDanTweeTekensPassenNiet) {
  EXPECT_EQ(Vraag("vul ProvCode nhx\ndruk OKButton", "  ", ""), "NH");
}

TEST_F(VraagProvTest, ErIsGeenControleOpDeCode) {
  EXPECT_EQ(Vraag("typ ProvCode ?9\ntoets Enter", "  ", ""), "?9");
}

TEST_F(VraagProvTest, VerlatenZonderOKGeeftDeCodeVanDeAanroeper) {
  EXPECT_EQ(Vraag("typ ProvCode nh\ntoets Escape", "  ", ""), "  ");
  EXPECT_EQ(Vraag("typ ProvCode nh\nsluit", "ZH", ""), "ZH");
}

}  // namespace
}  // namespace lb77
