// `gezinsblad`: the family sheet as a command.
#include "cli/OpdrachtToets.h"

namespace lb77 {
namespace {

constexpr std::string_view kGedcom =
    "0 HEAD\n1 CHAR ANSEL\n0 @I1@ INDI\n1 NAME Piet /van Dam/\n1 SEX M\n1 FAMS @F1@\n1 FAMS @F2@\n"
    "0 @I2@ INDI\n1 NAME Els /Vos/\n1 SEX F\n1 FAMS @F1@\n"
    "0 @I3@ INDI\n1 NAME Mia /Mos/\n1 SEX F\n1 FAMS @F2@\n"
    "0 @I4@ INDI\n1 NAME Jan /van Dam/\n1 SEX M\n1 BIRT\n2 DATE 1 FEB 1900\n1 FAMC @F2@\n"
    "0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n"
    "0 @F2@ FAM\n1 HUSB @I1@\n1 WIFE @I3@\n1 CHIL @I4@\n0 TRLR\n";

class GezinsbladToets : public OpdrachtToets {
 protected:
  void SetUp() override { MaakFamilie(kGedcom); }
  int Blad(std::string_view persoon, std::vector<std::string> zet) {
    OpdrachtArgumenten argumenten;
    argumenten.woorden = {"familie", std::string(persoon)};
    argumenten.zet = std::move(zet);
    return Doe("gezinsblad", argumenten);
  }
};

TEST_F(GezinsbladToets, SchrijftDeEersteRelatie) {
  EXPECT_EQ(Blad("piet", {"SoortBladBox=Uitgebreid"}), 0) << fout_;
  EXPECT_EQ(uit_, "Piet van Dam [2] [rel.nr. 2]\n\nEls Vos [3]\n\n\nKinderen:\n\n");
}

TEST_F(GezinsbladToets, ZetKiestRelatieEnSoort) {
  EXPECT_EQ(Blad("2", {"KiesPartner(2)=aan", "SoortBladBox=F6-Blad", "OokNrsBox=Nee"}), 0) << fout_;
  EXPECT_EQ(uit_.rfind("GEZINSBLAD van Dam-Mos\n", 0), 0U);
  EXPECT_NE(uit_.find("\n 1. zn. Jan\n        geb. 1-2-1900\n"), std::string::npos);
}

TEST_F(GezinsbladToets, EenRelatieDieErNietIsWordtGeweigerd) {
  EXPECT_EQ(Blad("2", {"KiesPartner(3)=aan"}), 1);
  EXPECT_EQ(uit_, "");
  EXPECT_NE(fout_, "");
}

TEST_F(GezinsbladToets, EenPersoonDieErNietIsGeeftGeenBlad) {
  EXPECT_EQ(Blad("77", {}), 1);
  EXPECT_EQ(fout_, "Leesfout bij persoonsrecord 77\n");
}

}  // namespace
}  // namespace lb77
