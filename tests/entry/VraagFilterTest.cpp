#include <gtest/gtest.h>

#include <string>

#include "entry/VraagFilter.h"
#include "steun/SpeelToets.h"

namespace lb77 {
namespace {

class VraagFilterTest : public SpeelToets {
 protected:
  void Vraag(std::string_view draaiboek, std::string_view verslag,
             const Plek& plek = Plek::current()) {
    Verwacht(
        draaiboek,
        [this](Gesprek& gesprek) {
          VraagFilter vraag(filter_);
          gesprek.ToonModaal(vraag);
        },
        "+ VraagFilter \"Zoek Persoon - Filter op Naam\"\n" + Regels(verslag) + "- VraagFilter\n",
        plek);
  }

  NaamFilter filter_;
};

TEST_F(VraagFilterTest, ToontDeVraagEnDeTips) {
  Vraag("toon\ndruk BackButton", R"(
    : VraagFilter "Zoek Persoon - Filter op Naam"
    = VraagLabel "Alleen Personen tonen met de naam:"
    = VoorNm ""
    = AchterNm ""
    = TipJoker "Gebruik een sterretje aan het eind als joker"
    = TipLetters "Het filter maakt onderscheid tussen HOOFDLETTERS en kleine letters"
    = OKButton "&OK"
    = BackButton "&Terug"
    * VoorNm
  )");
}

TEST_F(VraagFilterTest, OKBewaartBeideTekstenZonderBlankenEromheen) {
  Vraag("vul VoorNm \" Jan* \"\nvul AchterNm \" van  Dam \"\ndruk OKButton", "");
  EXPECT_EQ(filter_.FilterVoorNm, "Jan*");
  EXPECT_EQ(filter_.FilterAchterNm, "van  Dam");
}

TEST_F(VraagFilterTest, DeLangsteNaamPastMetZijnSterretje) {
  const std::string voor = std::string(30, 'J') + "*";
  const std::string achter = std::string(25, 'V') + "*";
  Vraag("vul VoorNm " + voor + "x\nvul AchterNm " + achter + "x\ndruk OKButton", "");
  EXPECT_EQ(filter_.FilterVoorNm, voor);
  EXPECT_EQ(filter_.FilterAchterNm, achter);
}

TEST_F(VraagFilterTest, EnterInHetLaatsteVeldIsOK) {
  Vraag("typ VoorNm Jan\ntoets Enter\ntyp AchterNm Vos\ntoets Enter", "");
  EXPECT_EQ(filter_.FilterVoorNm + filter_.FilterAchterNm, "JanVos");
}

TEST_F(VraagFilterTest, TerugLaatHetFilterZoalsHetWas) {
  filter_.FilterVoorNm = "oud";
  Vraag("vul VoorNm Jan\ndruk BackButton", "");
  Vraag("vul VoorNm Jan\ntoets Escape", "");
  EXPECT_EQ(filter_.FilterVoorNm, "oud");
}

}  // namespace
}  // namespace lb77
