#include "app/HeelBestand.h"
#include "app/SessieToets.h"

namespace lb77 {
namespace {

class HeelBestand : public SessieToets {
 protected:
  SchrijfStap Maak(std::string_view naam, std::string_view inhoud) {
    return werk_.Maak(map_ / naam, inhoud).stap;
  }
  Bestandswerk werk_;
};

TEST_F(HeelBestand, WatGeschrevenIsKomtTerug) {
  std::string groot(10000, 'x');
  groot[5000] = '\0';
  EXPECT_EQ(Maak("a", groot), SchrijfStap::Klaar);
  std::string terug = "oud";
  EXPECT_FALSE(LeesHeelBestand(map_ / "a", terug));
  EXPECT_EQ(terug, groot);
}

TEST_F(HeelBestand, EenKorterBestandVervangtEenLanger) {
  Schrijf("a", "lang bestand");
  EXPECT_EQ(Maak("a", "kort"), SchrijfStap::Klaar);
  EXPECT_EQ(Inhoud("a"), "kort");
  EXPECT_EQ(werk_.Overschrijf(map_ / "a", "k").stap, SchrijfStap::Klaar);
  EXPECT_EQ(Inhoud("a"), "k");
}

TEST_F(HeelBestand, EenAfwezigBestandGeeftDeFoutEnNiets) {
  std::string terug = "oud";
  EXPECT_EQ(LeesHeelBestand(map_ / "weg", terug).tekst, "Bestand niet gevonden");
  EXPECT_EQ(terug, "");
}

TEST_F(HeelBestand, EenDirectoryIsGeenBestand) {
  Schrijf("d/vol", "x");
  std::string terug;
  EXPECT_EQ(LeesHeelBestand(map_ / "d", terug).tekst, "Pad is een directory");
  EXPECT_EQ(Maak("d", "x"), SchrijfStap::Openen);
  EXPECT_EQ(werk_.Overschrijf(map_ / "d", "x").stap, SchrijfStap::Openen);
}

TEST_F(HeelBestand, ZonderDirectoryIsErGeenBestandTeOpenen) {
  const SchrijfUitslag uitslag = werk_.Maak(map_ / "weg" / "a", "x");
  EXPECT_EQ(uitslag.stap, SchrijfStap::Openen);
  EXPECT_EQ(uitslag.fout.tekst, "Bestand niet gevonden");
}

TEST_F(HeelBestand, DeHandelingenOpDeSchijfMeldenHunFout) {
  EXPECT_FALSE(werk_.Verwijder(map_ / "weg"));
  std::filesystem::create_directory(map_ / "leeg");
  EXPECT_EQ(werk_.Verwijder(map_ / "leeg").tekst, "Pad is een directory");
  EXPECT_TRUE(werk_.Koppel(map_ / "weg", map_ / "b"));
  EXPECT_TRUE(werk_.Hernoem(map_ / "weg", map_ / "b"));
  EXPECT_TRUE(werk_.VeiligstellenMap(map_ / "weg"));
  EXPECT_TRUE(werk_.Veiligstellen(map_));
  Schrijf("a", "x");
  EXPECT_FALSE(werk_.Veiligstellen(map_ / "a"));
  EXPECT_FALSE(werk_.Koppel(map_ / "a", map_ / "b"));
  EXPECT_TRUE(werk_.Koppel(map_ / "a", map_ / "b"));
  EXPECT_FALSE(werk_.Verwijder(map_ / "a"));
  EXPECT_EQ(Inhoud("b"), "x");
}

}  // namespace
}  // namespace lb77
