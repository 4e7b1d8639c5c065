// The commands for ancestor charts and sheets.
#include "OpdrachtToets.h"
#include "output/Tekstpaginas.h"
#include "steun/Plekken.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

class SchemaOpdracht : public OpdrachtToets {
 protected:
  // A line of fathers: I1 is the child of I2, and so on.
  static std::string Reeks(int aantal) {
    std::string uit = "0 HEAD\n1 CHAR ANSEL\n";
    for (int i = 1; i <= aantal; ++i) {
      const std::string nr = GetalTekst(i);
      uit += "0 @I" + nr + "@ INDI\n1 NAME Man" + nr + " /Re\xE2\x65ks/\n1 SEX M\n";
      if (i < aantal) uit += "1 FAMC @F" + nr + "@\n";
      if (i > 1) uit += "1 FAMS @F" + GetalTekst(i - 1) + "@\n";
    }
    for (int i = 1; i < aantal; ++i) {
      uit += "0 @F" + GetalTekst(i) + "@ FAM\n1 HUSB @I" + GetalTekst(i + 1) + "@\n1 CHIL @I" +
             GetalTekst(i) + "@\n";
    }
    return uit + "0 TRLR\n";
  }
  int DoeMet(std::string_view opdracht, std::vector<std::string> zet, bool html = false) {
    OpdrachtArgumenten argumenten;
    argumenten.woorden = {"familie", "2"};
    argumenten.zet = std::move(zet);
    argumenten.html = html;
    return Doe(opdracht, argumenten);
  }
  [[nodiscard]] int Aantal(std::string_view tekst) const {
    int aantal = 0;
    for (std::size_t p = uit_.find(tekst); p != std::string::npos; p = uit_.find(tekst, p + 1)) {
      ++aantal;
    }
    return aantal;
  }
  [[nodiscard]] bool Bevat(std::string_view tekst) const {
    return uit_.find(tekst) != std::string::npos;
  }
};

TEST_F(SchemaOpdracht, TekentHetSchema) {
  MaakFamilie(Reeks(3));
  EXPECT_EQ(DoeMet("schema-kwartierstaat", {"MaxGen=3", "BreedteGen=4"}), 0) << fout_;
  EXPECT_EQ(uit_,
            "Kwartierstaat van Man1 Re\xC3\xA9ks\n"
            "\n"
            "    /==== 4. Man3 Re\xC3\xA9ks\n"
            "/===+ 2. Man2 Re\xC3\xA9ks\n"
            "|   \\==== 5.\n"
            "1. Man1 Re\xC3\xA9ks\n"
            "|   /==== 6.\n"
            "\\===+ 3.\n"
            "    \\==== 7.\n"
            "\n"
            "          Copyright (2026)\n"
            "          Gemaakt met LB77 voor Windows\n");
}

TEST_F(SchemaOpdracht, TekentHetSchemaInHTML) {
  MaakFamilie(Reeks(2));
  EXPECT_EQ(DoeMet("schema-kwartierstaat", {"MaxGen=2"}, true), 0) << fout_;
  EXPECT_EQ(uit_.rfind("<HTML>\n", 0), 0U);
  EXPECT_TRUE(Bevat("<PRE>\n/======== 2. Man2 Re&eacute;ks\n1. Man1 Re&eacute;ks\n"));
  EXPECT_FALSE(Bevat("example.org"));
}

TEST_F(SchemaOpdracht, WatEenVeldWeigertMaaktGeenSchema) {
  MaakFamilie(Reeks(2));
  EXPECT_EQ(DoeMet("schema-kwartierstaat", {"MaxGen=11"}), 1);
  EXPECT_EQ(uit_, "");
  EXPECT_NE(fout_.find("Onjuist aantal generaties (2-10)\n"), std::string::npos);
}

TEST_F(SchemaOpdracht, SchrijftHetBladVanEenKleineFamilie) {
  MaakFamilie(Reeks(2));
  EXPECT_EQ(DoeMet("bladen", {"TitelTekst=Proef", "HSK_CBG_Box=HSK"}), 0) << fout_;
  EXPECT_EQ(uit_.rfind("Proef\n\n/-8. ?????", 0), 0U);
  EXPECT_TRUE(Bevat(" 2. Man2 Re\xC3\xA9ks "));
  EXPECT_TRUE(uit_.ends_with("\n          Gemaakt met Lijnboom/B77\n"));
  EXPECT_EQ(fout_, "");
}

TEST_F(SchemaOpdracht, SchrijftOokDeVerdereBladenElkOpEenBladzijde) {
  MaakFamilie(Reeks(8));
  OpdrachtArgumenten argumenten;
  argumenten.woorden = {"familie", "2"};
  argumenten.naar = map_ / "bladen.txt";
  EXPECT_EQ(Doe("bladen", argumenten), 0) << fout_;
  EXPECT_EQ(uit_, "");
  Tekstpaginas paginas;
  ASSERT_TRUE(paginas.Open(map_ / "bladen.txt"));
  EXPECT_EQ(paginas.Kolommen(), 1);
  EXPECT_EQ(paginas.Rijen(), 3);
  std::vector<std::string> blad;
  for (const auto& [rij, wortel] : {std::pair{1, "1. Man1"}, {2, "8. Man4"}, {3, "64. Man7"}}) {
    ASSERT_TRUE(paginas.Lees(1, rij, blad));
    EXPECT_EQ(blad[0],
              "Kwartierstaat van Man1 Re\xE9"
              "ks");
    EXPECT_TRUE(std::any_of(blad.begin(), blad.end(), [begin = wortel](const std::string& regel) {
      return regel.starts_with(begin);
    })) << wortel;
  }
}

// In a loop everybody would have sheets without end.
TEST_F(SchemaOpdracht, NiemandHeeftTweeBladen) {
  std::string kring = Reeks(8);
  kring.replace(kring.find("0 TRLR"), 0, "0 @F8@ FAM\n1 HUSB @I1@\n1 CHIL @I8@\n");
  kring.replace(kring.find("1 FAMS @F7@\n"), 0, "1 FAMC @F8@\n");
  MaakFamilie(kring);
  EXPECT_EQ(DoeMet("bladen", {}), 0) << fout_;
  EXPECT_EQ(Aantal("Kwartierstaat van Man1"), 8);
}

TEST_F(SchemaOpdracht, EenKeuzeDieErNietIsGeeftEenMelding) {
  MaakFamilie(Reeks(8));
  EXPECT_EQ(DoeMet("bladen", {"HSK_CBG_Box=ABC"}), 1);
  EXPECT_EQ(uit_, "");
  EXPECT_EQ(std::count(fout_.begin(), fout_.end(), '\n'), 1) << fout_;
}

TEST_F(SchemaOpdracht, EenPersoonDieErNietIsGeeftGeenSchemaEnGeenBlad) {
  MaakFamilie(Reeks(2));
  for (const std::string_view opdracht : {"schema-kwartierstaat", "bladen"}) {
    EXPECT_EQ(Doe(opdracht, {"familie", "77"}), 1);
    EXPECT_EQ(uit_, "");
    EXPECT_NE(fout_.find("Persoonsrecord 77 kan niet worden gelezen."), std::string::npos);
  }
}

// Who stands where in the chart is checked against the text report, which comes by his number too.
TEST_F(SchemaOpdracht, HetSchemaVanEenGroteStamboomIsVolledig) {
  const auto gedcom = BronMap() / "../shared/data/royal92.ged";
  if (!std::filesystem::exists(gedcom)) GTEST_SKIP() << gedcom << " is absent";
  MaakFamilie(LeesBytes(gedcom));
  OpdrachtArgumenten argumenten;
  argumenten.woorden = {"familie", "116"};
  argumenten.zet = {"MaxGen=10"};
  ASSERT_EQ(Doe("schema-kwartierstaat", argumenten), 0) << fout_;
  const std::string schema = uit_;
  argumenten.zet = {"MaxGen=10", "OokOpmBox=Nee", "KwHerhaalBox=Ja"};
  ASSERT_EQ(Doe("kwartierstaat", argumenten), 0) << fout_;
  int regels = 0;
  int bekend = 0;
  for (int k = 1; k <= 1023; ++k) {
    const std::string nummer = GetalTekst(k);
    const std::size_t begin = schema.find((k == 1 ? "\n" : " ") + nummer + ".");
    ASSERT_NE(begin, std::string::npos) << k;
    ++regels;
    const std::size_t naam = begin + nummer.size() + 2;
    const bool inSchema = schema[naam] == ' ';
    const std::string hoofd = "\n" + std::string(6 - nummer.size(), ' ') + nummer + "  ";
    EXPECT_EQ(inSchema, uit_.find(hoofd) != std::string::npos) << k;
    if (inSchema) ++bekend;
  }
  EXPECT_EQ(regels, 1023);
  EXPECT_GT(bekend, 250);
}

TEST_F(SchemaOpdracht, DeBladenVanEenGroteStamboomHebbenGeenLangeRegels) {
  const auto gedcom = BronMap() / "../shared/data/royal92.ged";
  if (!std::filesystem::exists(gedcom)) GTEST_SKIP() << gedcom << " is absent";
  MaakFamilie(LeesBytes(gedcom));
  OpdrachtArgumenten argumenten;
  argumenten.woorden = {"familie", "116"};
  argumenten.naar = map_ / "bladen.txt";
  argumenten.zet = {"HSK_CBG_Box=HSK", "OokNrsBox=Ja"};
  ASSERT_EQ(Doe("bladen", argumenten), 0) << fout_;
  Tekstpaginas paginas;
  ASSERT_TRUE(paginas.Open(map_ / "bladen.txt"));
  EXPECT_EQ(paginas.Kolommen(), 1);
  EXPECT_GT(paginas.Rijen(), 20);
  EXPECT_LT(paginas.Rijen(), 200);
  std::vector<std::string> blad;
  for (int rij = 1; rij <= paginas.Rijen(); ++rij) {
    ASSERT_TRUE(paginas.Lees(1, rij, blad));
    EXPECT_TRUE(blad[0].starts_with("Kwartierstaat van ")) << rij;
  }
}

}  // namespace
}  // namespace lb77
