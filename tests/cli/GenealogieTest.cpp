#include "OpdrachtToets.h"

namespace lb77 {
namespace {

// A man with a son and a daughter, who have a son each.
constexpr std::string_view kGedcom =
    "0 HEAD\n"
    "0 @I1@ INDI\n1 NAME Jan /Kok/\n1 SEX M\n1 FAMS @F1@\n"
    "0 @I2@ INDI\n1 NAME Piet /Kok/\n1 SEX M\n1 FAMC @F1@\n1 FAMS @F2@\n"
    "0 @I3@ INDI\n1 NAME Maria /Kok/\n1 SEX F\n1 FAMC @F1@\n1 FAMS @F3@\n"
    "0 @I4@ INDI\n1 NAME Klaas /Kok/\n1 SEX M\n1 FAMC @F2@\n"
    "0 @I5@ INDI\n1 NAME Wim /Pot/\n1 SEX M\n1 FAMC @F3@\n"
    "0 @F1@ FAM\n1 HUSB @I1@\n1 CHIL @I2@\n1 CHIL @I3@\n"
    "0 @F2@ FAM\n1 HUSB @I2@\n1 CHIL @I4@\n"
    "0 @F3@ FAM\n1 WIFE @I3@\n1 CHIL @I5@\n"
    "0 TRLR\n";

class GenealogieToets : public OpdrachtToets {
 protected:
  void SetUp() override { MaakFamilie(kGedcom); }
  [[nodiscard]] bool Bevat(std::string_view tekst) const {
    return uit_.find(tekst) != std::string::npos;
  }
  static OpdrachtArgumenten Van(std::string_view persoon) {
    OpdrachtArgumenten argumenten;
    argumenten.woorden = {"familie", std::string(persoon)};
    return argumenten;
  }
};

TEST_F(GenealogieToets, EenGenealogieVolgtAlleenDeZonen) {
  EXPECT_EQ(Doe("genealogie", Van("2")), 0) << fout_;
  EXPECT_TRUE(Bevat("Piet Kok, volgt IIa\n"));
  EXPECT_TRUE(Bevat("Maria Kok tr..\n"));
  EXPECT_TRUE(Bevat("Klaas Kok, volgt IIIa.\n"));
  EXPECT_FALSE(Bevat("Wim Pot"));
}

TEST_F(GenealogieToets, EenParenteelVolgtIedereen) {
  EXPECT_EQ(Doe("parenteel", Van("Jan Kok")), 0) << fout_;
  EXPECT_TRUE(Bevat("Maria Kok, volgt IIb.\n"));
  EXPECT_TRUE(Bevat("Wim Pot, volgt IIIb.\n"));
}

TEST_F(GenealogieToets, EenParenteelInHTMLGaatLangsDeKoppelingen) {
  OpdrachtArgumenten argumenten = Van("2");
  argumenten.html = true;
  EXPECT_EQ(Doe("parenteel", argumenten), 0) << fout_;
  EXPECT_EQ(uit_.rfind("<HTML>\n", 0), 0U);
  EXPECT_TRUE(Bevat(", volgt <A HREF=\"#IIb\">IIb</A>"));
  EXPECT_FALSE(Bevat("example.org"));
}

TEST_F(GenealogieToets, ZetGaatVoorWatDeOpdrachtKiest) {
  OpdrachtArgumenten argumenten = Van("2");
  argumenten.zet = {"MaxGen=2", "PerTakBox=Per generatie", "DochtersBox=Dochters met nageslacht"};
  EXPECT_EQ(Doe("genealogie", argumenten), 0) << fout_;
  EXPECT_TRUE(Bevat("\nGeneratie II\n"));
  EXPECT_TRUE(Bevat("Maria Kok, volgt IIb.\n"));
  EXPECT_TRUE(Bevat(" 1. Wim Pot.\n"));
}

TEST_F(GenealogieToets, TakkenUitsluitenGaatVoorbijEnSluitNiemandUit) {
  OpdrachtArgumenten argumenten = Van("2");
  argumenten.zet = {"UitsluitBox=Ja"};
  EXPECT_EQ(Doe("parenteel", argumenten), 0) << fout_;
  EXPECT_TRUE(Bevat("Wim Pot, volgt IIIb.\n"));
}

}  // namespace
}  // namespace lb77
