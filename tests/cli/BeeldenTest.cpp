// The commands for the pictures.
#include "OpdrachtToets.h"

namespace lb77 {
namespace {

constexpr std::string_view kGedcom =
    "0 HEAD\n1 CHAR ANSI\n"
    "0 @I1@ INDI\n1 NAME Jan /Kok/\n1 SEX M\n1 FAMS @F1@\n1 BIRT\n2 DATE 1802\n"
    "0 @I2@ INDI\n1 NAME Piet /Kok/\n1 SEX M\n1 FAMC @F1@\n"
    "0 @I3@ INDI\n1 NAME Maria /Kok/\n1 SEX F\n1 FAMC @F1@\n"
    "0 @F1@ FAM\n1 HUSB @I1@\n1 CHIL @I2@\n1 CHIL @I3@\n"
    "0 TRLR\n";

class BeeldenToets : public OpdrachtToets {
 protected:
  void SetUp() override { MaakFamilie(kGedcom); }
  static OpdrachtArgumenten Van(std::string_view persoon, std::vector<std::string> zet = {}) {
    OpdrachtArgumenten argumenten;
    argumenten.woorden = {"familie", std::string(persoon)};
    argumenten.zet = std::move(zet);
    return argumenten;
  }
  [[nodiscard]] bool Heeft(std::string_view tekst) const {
    return uit_.find(tekst) != std::string::npos;
  }
};

TEST_F(BeeldenToets, ElkBeeldIsEenSvg) {
  for (const auto& [opdracht, persoon, naam] :
       {std::tuple{"waaier", "3", "<title>Kwartierstaat van Piet Kok</title>"},
        {"kwartierboom", "3", "<title>Jan Kok 1802-</title>"},
        {"stamboom", "2", "<title>Maria Kok</title>"},
        {"tijdbalk", "2", "<title>Nakomelingen van Jan Kok</title>"}}) {
    EXPECT_EQ(Doe(opdracht, Van(persoon)), 0) << fout_;
    EXPECT_EQ(uit_.rfind("<?xml version", 0), 0U) << opdracht;
    EXPECT_TRUE(uit_.ends_with("</svg>\n")) << opdracht;
    EXPECT_TRUE(Heeft(naam)) << opdracht << uit_;
    EXPECT_EQ(fout_, "");
  }
}

TEST_F(BeeldenToets, DeKeuzenGelden) {
  EXPECT_EQ(Doe("waaier", Van("3", {"NummerBox=Kwartiernummers", "OokJaarBox=Nee"})), 0) << fout_;
  EXPECT_TRUE(Heeft("<title>2. Jan Kok</title>"));
}

// Of the options of the chart and of the picture itself.
TEST_F(BeeldenToets, DeStamboomNeemtDeKeuzenVanTweeSchermen) {
  EXPECT_EQ(Doe("stamboom", Van("2", {"OokPNrsBox=Ja", "KleurBox=Zonder kleur", "MaxGen=1"})), 0)
      << fout_;
  EXPECT_TRUE(Heeft("<title>[2] Jan Kok</title>"));
  EXPECT_FALSE(Heeft("Maria"));
  EXPECT_FALSE(Heeft("#f2c14e"));
}

TEST_F(BeeldenToets, EenOnbekendeKeuzeWordtGemeld) {
  EXPECT_EQ(Doe("stamboom", Van("2", {"Nergens=1"})), 1);
  EXPECT_NE(fout_.find("Nergens"), std::string::npos);
  EXPECT_EQ(uit_, "");
}

TEST_F(BeeldenToets, HetBestandIsHetBeeld) {
  OpdrachtArgumenten argumenten = Van("Piet Kok");
  argumenten.naar = map_ / "waaier.svg";
  EXPECT_EQ(Doe("waaier", argumenten), 0) << fout_;
  EXPECT_EQ(uit_, "");
  std::string svg = LeesBytes(map_ / "waaier.svg");
  EXPECT_GT(std::erase(svg, '\r'), 0U);  // a file has the line ends of all that LB77 writes
  EXPECT_EQ(Doe("waaier", Van("3")), 0);
  EXPECT_EQ(svg, uit_);
}

TEST_F(BeeldenToets, EenPersoonDieErNietIsGeeftGeenBeeld) {
  for (const std::string_view opdracht : {"waaier", "kwartierboom", "stamboom", "tijdbalk"}) {
    EXPECT_EQ(Doe(opdracht, Van("99")), 1) << opdracht;
    EXPECT_EQ(uit_, "") << opdracht;
  }
}

}  // namespace
}  // namespace lb77
