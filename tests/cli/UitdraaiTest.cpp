// `uitdraai` and `ascii` as commands.
#include "cli/OpdrachtToets.h"

namespace lb77 {
namespace {

class UitdraaiOpdracht : public OpdrachtToets {
 protected:
  void SetUp() override {
    MaakFamilie(
        "0 HEAD\n1 CHAR ANSEL\n0 @I1@ INDI\n1 NAME Piet /van Dam/\n1 SEX M\n1 FAMS @F1@\n"
        "1 BIRT\n2 PLAC Delft\n0 @I2@ INDI\n1 NAME Els /Vos/\n1 SEX F\n1 FAMS @F1@\n"
        "0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n0 TRLR\n");
    std::filesystem::create_directory(Doel());
  }
  OpdrachtArgumenten Argumenten() {
    OpdrachtArgumenten argumenten;
    argumenten.woorden = {"familie"};
    argumenten.naar = Doel();
    return argumenten;
  }
  [[nodiscard]] std::filesystem::path Doel() const { return map_ / "doel"; }
  [[nodiscard]] std::string Bytes(const std::string& einde) const {
    return LeesBytes(Doel() / ("FAMILIE_" + einde + ".TXT"));
  }
};

TEST_F(UitdraaiOpdracht, SchrijftDeBestandenDieIetsHebben) {
  EXPECT_EQ(Doe("uitdraai", Argumenten()), 0) << fout_;
  EXPECT_TRUE(Bytes("PRS").starts_with("2\tM\tPiet\tvan Dam\t")) << Bytes("PRS");
  EXPECT_TRUE(Bytes("RLT").starts_with("2\t2\t3\t")) << Bytes("RLT");
  EXPECT_EQ(Bytes("PLT"), "2\t\tDelft\t\r\n");
  EXPECT_FALSE(std::filesystem::exists(Doel() / "FAMILIE_OPM.TXT"));
  EXPECT_NE(uit_.find("\nTotaal 2 Personen geëxpoteerd\nExporteren voltooid\nStart export ("),
            std::string::npos)
      << uit_;
  EXPECT_TRUE(uit_.ends_with("Totaal 1 Plaatsen geëxpoteerd\nExporteren voltooid\n")) << uit_;
  EXPECT_EQ(fout_, "Geen export mogelijk: dit is een leeg bestand\n");
}

TEST_F(UitdraaiOpdracht, ZonderMapGaatAllesNaarDeTekstmap) {
  EXPECT_EQ(Doe("uitdraai", {"familie"}), 0) << fout_;
  EXPECT_EQ(Doe("ascii", {"familie"}), 0) << fout_;
  EXPECT_EQ(Bytes("PRS"), "");
}

TEST_F(UitdraaiOpdracht, EenMislukteUitdraaiIsEenFout) {
  std::filesystem::create_directory(Doel() / "FAMILIE_RLT.TXT");
  EXPECT_EQ(Doe("uitdraai", Argumenten()), 1);
  EXPECT_NE(fout_.find("Pad is een directory"), std::string::npos) << fout_;
  EXPECT_NE(fout_.find("Uitdraai Relatiebestand is mislukt"), std::string::npos) << fout_;
  EXPECT_EQ(Bytes("PLT"), "2\t\tDelft\t\r\n");
}

TEST_F(UitdraaiOpdracht, AsciiSchrijftAllesOfEenReeks) {
  EXPECT_EQ(Doe("ascii", Argumenten()), 0) << fout_;
  EXPECT_EQ(Bytes("PRS").size(), 2 * 318U);
  EXPECT_EQ(Bytes("RLT").substr(0, 15), "    2    2    3");
  EXPECT_TRUE(uit_.ends_with("Totaal 0 Bronnen geëxpoteerd\nExporteren voltooid\n")) << uit_;
  OpdrachtArgumenten reeks = Argumenten();
  reeks.personen = "3-3";
  reeks.relaties = "2";
  EXPECT_EQ(Doe("ascii", reeks), 0) << fout_;
  EXPECT_EQ(Bytes("PRS").substr(0, 6), "    3V");
  EXPECT_EQ(Bytes("PRS").size(), 318U);
  EXPECT_EQ(Bytes("RLT").substr(0, 15), "    2         3");
}

}  // namespace
}  // namespace lb77
