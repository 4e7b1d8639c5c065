#include "app/HeelBestand.h"
#include "app/SessieToets.h"

namespace lb77 {
namespace {

class HeelBestand : public SessieToets {};

TEST_F(HeelBestand, WatGeschrevenIsKomtTerug) {
  std::string groot(10000, 'x');
  groot[5000] = '\0';
  EXPECT_EQ(SchrijfHeelBestand(map_ / "a", groot).stap, SchrijfStap::Klaar);
  std::string terug = "oud";
  EXPECT_FALSE(LeesHeelBestand(map_ / "a", terug));
  EXPECT_EQ(terug, groot);
}

TEST_F(HeelBestand, EenKorterBestandVervangtEenLanger) {
  Schrijf("a", "lang bestand");
  EXPECT_EQ(SchrijfHeelBestand(map_ / "a", "kort").stap, SchrijfStap::Klaar);
  EXPECT_EQ(Inhoud("a"), "kort");
}

TEST_F(HeelBestand, EenAfwezigBestandGeeftDeFoutEnNiets) {
  std::string terug = "oud";
  EXPECT_EQ(LeesHeelBestand(map_ / "weg", terug).tekst, "Bestand niet gevonden");
  EXPECT_EQ(terug, "");
}

TEST_F(HeelBestand, EenDirectoryIsGeenBestand) {
  std::filesystem::create_directory(map_ / "d");
  std::string terug;
  EXPECT_EQ(LeesHeelBestand(map_ / "d", terug).tekst, "Pad is een directory");
  EXPECT_EQ(SchrijfHeelBestand(map_ / "d", "x").stap, SchrijfStap::Openen);
}

TEST_F(HeelBestand, ZonderDirectoryIsErGeenBestandTeOpenen) {
  const SchrijfUitslag uitslag = SchrijfHeelBestand(map_ / "weg" / "a", "x");
  EXPECT_EQ(uitslag.stap, SchrijfStap::Openen);
  EXPECT_EQ(uitslag.fout.tekst, "Bestand niet gevonden");
}

}  // namespace
}  // namespace lb77
