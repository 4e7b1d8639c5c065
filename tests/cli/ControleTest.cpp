// `controle`: the checks as a command.
#include "cli/OpdrachtToets.h"

namespace lb77 {
namespace {

constexpr std::string_view kGoed =
    "0 HEAD\n1 CHAR ANSEL\n0 @I1@ INDI\n1 NAME Piet /van Dam/\n1 SEX M\n1 BIRT\n2 DATE 1 FEB 1870\n"
    "2 PLAC Delft\n1 FAMS @F1@\n"
    "0 @I2@ INDI\n1 NAME Jan /van Dam/\n1 SEX M\n1 BIRT\n2 DATE 1 FEB 1900\n1 FAMC @F1@\n"
    "0 @F1@ FAM\n1 HUSB @I1@\n1 CHIL @I2@\n0 TRLR\n";
constexpr std::string_view kTeJong =
    "0 HEAD\n1 CHAR ANSEL\n0 @I1@ INDI\n1 NAME Piet /van Dam/\n1 SEX M\n1 BIRT\n2 DATE 1 FEB 1890\n"
    "1 FAMS @F1@\n0 @I2@ INDI\n1 NAME Jan /van Dam/\n1 SEX M\n1 BIRT\n2 DATE 1 FEB 1900\n"
    "1 CHR\n2 DATE 1 JAN 1900\n1 FAMC @F1@\n0 @F1@ FAM\n1 HUSB @I1@\n1 CHIL @I2@\n0 TRLR\n";

class ControleOpdracht : public OpdrachtToets {
 protected:
  int Controleer(std::vector<std::string> woorden, std::vector<std::string> zet = {}) {
    OpdrachtArgumenten argumenten;
    argumenten.woorden = std::move(woorden);
    argumenten.zet = std::move(zet);
    return Doe("controle", argumenten);
  }
  [[nodiscard]] bool Bevat(std::string_view tekst) const {
    return uit_.find(tekst) != std::string::npos;
  }
};

TEST_F(ControleOpdracht, ZonderFoutenIsDeUitslagNul) {
  MaakFamilie(kGoed);
  EXPECT_EQ(Controleer({"familie"}), 0) << uit_;
  for (const std::string_view kop :
       {"Controle Persoonsbestand\n", "Controle Relatiebestand\n", "Controle Plaatsbestand\n"}) {
    EXPECT_TRUE(Bevat(kop)) << kop;
  }
  EXPECT_FALSE(Bevat("Controle Opmerkingenbestand"));
  EXPECT_EQ(fout_, "Er zijn geen opmerkingen in deze bestandenset aanwezig\n");
}

TEST_F(ControleOpdracht, MetFoutenIsDeUitslagEen) {
  MaakFamilie(kTeJong);
  EXPECT_EQ(Controleer({"familie", "personen"}), 1);
  EXPECT_TRUE(
      uit_.ends_with("\nPersoon 3: Geboorte is na de doop\n"
                     "Persoon 3: Leeftijd vader bij geboorte is minder dan 18 jaar\n\n"));
  EXPECT_EQ(fout_, "");
  EXPECT_EQ(Controleer({"familie", "relaties"}), 0);
  EXPECT_TRUE(uit_.starts_with("Controle Relatiebestand\n"));
}

// The file in which the program made it is gone afterwards.
TEST_F(ControleOpdracht, DeKopNoemtHetBestandWaarHetVerslagLigt) {
  MaakFamilie(kTeJong);
  EXPECT_EQ(Controleer({"familie", "personen"}), 1);
  EXPECT_TRUE(Bevat("\nResultaat:\n\nPersoon 3: "));
  OpdrachtArgumenten argumenten;
  argumenten.woorden = {"familie", "personen"};
  argumenten.naar = map_ / "uit.txt";
  EXPECT_EQ(Doe("controle", argumenten), 1);
  const std::string bytes = LeesBytes(map_ / "uit.txt");
  EXPECT_NE(
      bytes.find("\r\nResultaat (zie " + (map_ / "uit.txt").string() + "):\r\n\r\nPersoon 3: "),
      std::string::npos);
}

// kGoed has one place, which is used, and no remarks.
TEST_F(ControleOpdracht, PlaatsenEnOpmerkingenHebbenHunEigenWoord) {
  MaakFamilie(
      std::string(kGoed).replace(kGoed.find("1 FAMC"), 0, "1 DEAT\n2 PLAC Leiden\n1 NOTE smid\n"));
  EXPECT_EQ(Controleer({"familie", "plaatsen"}), 0) << uit_;
  EXPECT_TRUE(uit_.starts_with("Controle Plaatsbestand\n")) << uit_;
  EXPECT_EQ(uit_.find("Controle", 1), std::string::npos);
  EXPECT_EQ(fout_, "");
  EXPECT_EQ(Controleer({"familie", "opmerkingen"}), 0);
  EXPECT_EQ(uit_, "Controle Opmerkingenbestand\n\nResultaat:\n\nGeen fouten gevonden\n\n");
}

TEST_F(ControleOpdracht, ZetGaatNaarDeControleDieDeKeuzeHeeft) {
  MaakFamilie(kTeJong);
  EXPECT_EQ(Controleer({"familie"}, {"GebDoop=uit", "VerwijsKinderen=uit"}), 1);
  EXPECT_TRUE(Bevat("Volgorde geboorte-doop-overlijden-begraven: Nee\n"));
  EXPECT_TRUE(Bevat("Verwijzing naar kinderen: Nee\n"));
  EXPECT_FALSE(Bevat("Geboorte is na de doop"));
  EXPECT_EQ(Controleer({"familie", "personen"}, {"GebDoop=uit", "LeeftijdOuders=uit"}), 0);
}

TEST_F(ControleOpdracht, EenKeuzeOfSoortDieErNietIsWordtGeweigerd) {
  MaakFamilie(kGoed);
  EXPECT_EQ(Controleer({"familie"}, {"Niets=uit"}), 1);
  EXPECT_NE(fout_.find("Niets"), std::string::npos);
  EXPECT_EQ(uit_, "");
  // Not a part of the reports either.
  EXPECT_EQ(Controleer({"familie"}, {"Leeftijdsverschil=misschien"}), 1);
  EXPECT_EQ(uit_, "");
  EXPECT_EQ(Controleer({"familie", "alles"}), 2);
  EXPECT_EQ(fout_, "alles: personen, relaties, plaatsen of opmerkingen verwacht\n");
  EXPECT_EQ(uit_, "");
}

TEST_F(ControleOpdracht, UitSchrijftAlleVerslagenInEenBestand) {
  MaakFamilie(kTeJong);
  const std::string voor = LeesBytes(map_ / "LIJNBOOM.INI");
  OpdrachtArgumenten argumenten;
  argumenten.woorden = {"familie"};
  argumenten.naar = map_ / "uit.txt";
  EXPECT_EQ(Doe("controle", argumenten), 1);
  EXPECT_EQ(uit_, "");
  const std::string bytes = LeesBytes(map_ / "uit.txt");
  EXPECT_TRUE(bytes.starts_with("Controle Persoonsbestand\r\n"));
  EXPECT_NE(bytes.find("\r\n\r\nControle Relatiebestand\r\n"), std::string::npos);
  EXPECT_EQ(LeesBytes(map_ / "LIJNBOOM.INI"), voor);
  argumenten.naar = map_ / "LIJNBOOM.INI";
  EXPECT_EQ(Doe("controle", argumenten), 1);
  EXPECT_NE(fout_.find("wordt niet overschreven"), std::string::npos);
}

}  // namespace
}  // namespace lb77
