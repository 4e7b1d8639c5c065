// `personen` and `relaties`: cards as commands.
#include "cli/OpdrachtToets.h"

namespace lb77 {
namespace {

class KaartenOpdracht : public OpdrachtToets {
 protected:
  void SetUp() override {
    MaakFamilie(
        "0 HEAD\n1 CHAR ANSEL\n0 @I1@ INDI\n1 NAME Piet /van Dam/\n1 SEX M\n1 FAMS @F1@\n"
        "0 @I2@ INDI\n1 NAME Els /Vos/\n1 SEX F\n1 FAMS @F1@\n"
        "0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n0 TRLR\n");
  }
};

TEST_F(KaartenOpdracht, SchrijftDeKaartenVanPersonen) {
  EXPECT_EQ(Doe("personen", {"familie", "2", "4"}), 0) << fout_;
  EXPECT_EQ(uit_.rfind("Persoonsnummer   :    2\n\nFamilienaam      : van Dam\n", 0), 0U) << uit_;
  EXPECT_NE(uit_.find("\nPersoonsnummer   :    3\n"), std::string::npos);
  EXPECT_TRUE(uit_.ends_with("=\nLeesfout bij persoonsrecord 4\n")) << uit_;
}

TEST_F(KaartenOpdracht, SchrijftDeKaartenVanRelaties) {
  OpdrachtArgumenten argumenten;
  argumenten.woorden = {"familie", "2", "2"};
  argumenten.naar = map_ / "kaarten.txt";
  EXPECT_EQ(Doe("relaties", argumenten), 0) << fout_;
  EXPECT_EQ(uit_, "");
  EXPECT_TRUE(
      LeesBytes(map_ / "kaarten.txt")
          .starts_with("Relatienummer    :    2\r\n\r\nMan              : 2 Piet van Dam\r\n"));
}

TEST_F(KaartenOpdracht, EenReeksDieTerugLooptGeeftGeenKaarten) {
  EXPECT_EQ(Doe("personen", {"familie", "3", "2"}), 1);
  EXPECT_EQ(uit_, "");
  EXPECT_NE(fout_.find("Ongeldige reeks: 2e recordnummer is kleiner dan het 1e"), std::string::npos)
      << fout_;
}

TEST_F(KaartenOpdracht, ZetVultEenVeldVanDeVraag) {
  OpdrachtArgumenten argumenten;
  argumenten.woorden = {"familie", "3", "3"};
  argumenten.zet = {"RecordNrPers(0)=2"};
  EXPECT_EQ(Doe("personen", argumenten), 0) << fout_;
  EXPECT_EQ(uit_.rfind("Persoonsnummer   :    2\n", 0), 0U) << uit_;
}

}  // namespace
}  // namespace lb77
