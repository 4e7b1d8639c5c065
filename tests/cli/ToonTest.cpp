#include "OpdrachtToets.h"

namespace lb77 {
namespace {

constexpr std::string_view kGedcom =
    "0 HEAD\n1 CHAR ANSEL\n"
    "0 @I1@ INDI\n1 NAME Jan /van Dam/\n1 SEX M\n1 BIRT\n2 DATE 1 FEB 1900\n2 PLAC K\xE8oln\n"
    "1 OCCU smid\n1 FAMC @F1@\n1 FAMS @F2@\n"
    "0 @I2@ INDI\n1 NAME Piet /van Dam/\n1 SEX M\n1 FAMS @F1@\n"
    "0 @I3@ INDI\n1 NAME Anna /Bos/\n1 SEX F\n1 FAMS @F2@\n"
    "0 @F1@ FAM\n1 HUSB @I2@\n1 CHIL @I1@\n0 @F2@ FAM\n1 HUSB @I1@\n1 WIFE @I3@\n0 TRLR\n";

class ToonToets : public OpdrachtToets {
 protected:
  void SetUp() override { MaakFamilie(kGedcom); }

  static constexpr std::string_view kJan =
      "Persoonsnummer:      2\n"
      "Geslacht:            M\n"
      "Voornamen:           Jan\n"
      "Achternaam:          van Dam\n"
      "Geboren:             01-02-1900 K\xC3\xB6ln 2\n"
      "Beroep:              smid\n"
      "Vader:               [3] Piet van Dam\n"
      "Relatie:             [2]\n"
      "Partner 1:           [3] [4] Anna Bos\n";
};

TEST_F(ToonToets, DruktDeKaartAfZonderWatLeegIs) {
  EXPECT_EQ(Doe("toon", {"familie", "2"}), 0) << fout_;
  EXPECT_EQ(uit_, kJan);
  EXPECT_EQ(fout_, "");
}

TEST_F(ToonToets, EenNaamVanEenPersoonStaatVoorZijnNummer) {
  EXPECT_EQ(Doe("toon", {"familie", "jan van dam"}), 0) << fout_;
  EXPECT_EQ(uit_, kJan);
  EXPECT_EQ(Doe("toon", {"familie", "dam"}), 1);
  EXPECT_NE(fout_.find("2 personen hebben \"dam\" in hun naam"), std::string::npos);
  EXPECT_EQ(uit_, "");
}

TEST_F(ToonToets, EenNummerDatErNietIsIsEenFout) {
  EXPECT_EQ(Doe("toon", {"familie", "99"}), 1);
  EXPECT_NE(fout_.find("Het opgegeven Persoonsnummer komt niet voor"), std::string::npos);
  EXPECT_EQ(uit_, "");
}

TEST_F(ToonToets, ZonderNummerIsErNiemand) {
  EXPECT_EQ(Doe("toon", {"familie", ""}), 1);
  EXPECT_NE(fout_.find("De persoon is niet getoond"), std::string::npos) << fout_;
  EXPECT_EQ(uit_, "");
}

TEST_F(ToonToets, TonenVerandertGeenByte) {
  const auto eerst = Inhoud();
  ASSERT_EQ(Doe("toon", {"familie", "2"}), 0) << fout_;
  EXPECT_EQ(Inhoud(), eerst);
}

}  // namespace
}  // namespace lb77
