// The lines below a relation: each row of the table, and what lands in the record.
#include <gtest/gtest.h>

#include "exchange/ImportToets.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

class ImpRelatieTest : public ImportToets {
 protected:
  // Imports one relation with these lines and gives its record.
  std::string Van(std::string_view regels, const Plek& plek = Plek::current()) {
    Importeer(Ged("0 @F1@ FAM\n" + std::string(regels)), "", plek);
    return Relatie(2);
  }
};

TEST_F(ImpRelatieTest, ManVrouwEnKinderen) {
  Importeer(Ged(R"(
      0 @F1@ FAM
      1 HUSB @I1@
      1 WIFE @I2@
      1 CHIL @I3@
      1 CHIL @I9@
      1 CHIL @I1@
      0 @I1@ INDI
      0 @I2@ INDI
      0 @I3@ INDI
    )"));
  EXPECT_EQ(Relatie(2), "man 2; vrouw 3; kind 4 0 2");
}

TEST_F(ImpRelatieTest, OndertrouwOnderElkVanHaarLabels) {
  for (const std::string_view tag : {"ENGA", "MARB", "MARL"}) {
    Importeer(Ged("0 @F1@ FAM\n1 " + std::string(tag) +
                  "\n2 DATE ABT 3 MAY 1801\n2 PLAC Delft\n2 AGNC X\n2 TYPE Y"));
  }
  for (const std::int16_t nr : std::initializer_list<std::int16_t>{2, 3, 4}) {
    // The qualifier is not stored; a TYPE becomes a general remark.
    EXPECT_EQ(Relatie(nr), "otr 03-05-1801; te 2; opm -256");
  }
  EXPECT_EQ(LogRegels(), "LET OP: tekst niet overgenomen: 1 keer, voor het eerst in regel 6\n");
}

TEST_F(ImpRelatieTest, HetBurgerlijkHuwelijk) {
  EXPECT_EQ(Van(R"(
      1 MARR
      2 DATE 3 MAY 1801
      2 PLAC Delft
      2 RELI Rooms Katholiek
      2 LMAR Nederlands Hervormd
    )"),
            "whuw 03-05-1801; te 2; religie RK; soort NH");
}

TEST_F(ImpRelatieTest, DeHuwelijkssoortOpHaarInstantie) {
  EXPECT_EQ(Van("1 MARR\n2 AGNC rooms katholiek"), "soort RK");
}

TEST_F(ImpRelatieTest, EenSoortDieDeLijstOnderEenTekenHeeftIsBlanco) {
  EXPECT_EQ(Van("1 MARR\n2 LMAR Gemengd\n2 RELI Burgerlijk"), "");
}

TEST_F(ImpRelatieTest, EenSoortBuitenDeLijstLaatZijnEersteTweeTekensNa) {
  EXPECT_EQ(Van("1 MARR\n2 LMAR Wettig\n2 RELI x"), "religie x; soort We");
}

TEST_F(ImpRelatieTest, DeBepalingVanEenHuwelijkGaatVerloren) {
  EXPECT_EQ(Van("1 MARR\n2 DATE ABT 1801"), "whuw 00-00-1801");
  Importeer(Ged("0 @F1@ FAM\n1 MARR\n2 DATE BET 1801 AND 1805"));
  EXPECT_EQ(Relatie(3), "whuw 00-00-1801");
}

// kept: cohabitation and marriage look at the last death or burial of the file.
TEST_F(ImpRelatieTest, DePeriodeVanHetLaatsteOverlijdenBewaartHetEindVanEenHuwelijk) {
  Importeer(Ged(R"(
      0 @I1@ INDI
      1 DEAT
      2 DATE BET 1890 AND 1895
      0 @I2@ INDI
      1 BIRT
      2 DATE 1850
      0 @F1@ FAM
      1 MARR
      2 DATE BET 1801 AND 1805
      0 @F2@ FAM
      1 MARC
      2 DATE BET 1801 AND 1805
    )"));
  EXPECT_EQ(Relatie(2), "whuw 00-00-1801; khuw 00-00-1805");
  EXPECT_EQ(Relatie(3), "whuw 00-00-1801; khuw 00-00-1805; bond S");
}

TEST_F(ImpRelatieTest, EenExactHuwelijkNaZulkEenOverlijdenVerliestZijnKerkdatum) {
  Importeer(Ged(R"(
      0 @I1@ INDI
      1 BURI
      2 DATE BET 1890 AND 1895
      0 @F1@ FAM
      1 ORDI
      2 DATE 4 MAY 1801
      1 MARR
      2 DATE 3 MAY 1801
    )"));
  EXPECT_EQ(Relatie(2), "whuw 03-05-1801");
}

TEST_F(ImpRelatieTest, EenExacteBegrafenisAchterDePeriodeEindigtHetGevolg) {
  Importeer(Ged(R"(
      0 @I1@ INDI
      1 DEAT
      2 DATE BET 1890 AND 1895
      0 @I2@ INDI
      1 BURI
      2 DATE 1850
      0 @F1@ FAM
      1 MARR
      2 DATE BET 1801 AND 1805
    )"));
  EXPECT_EQ(Relatie(2), "whuw 00-00-1801");
}

TEST_F(ImpRelatieTest, SamenwonenKomtMetZijnDatum) {
  EXPECT_EQ(Van("1 MARC\n2 DATE 3 MAY 1990\n2 PLAC Delft\n2 AGNC Wettig"),
            "whuw 03-05-1990; te 2; soort We; bond S");
}

TEST_F(ImpRelatieTest, SamenwonenZonderDatumWordtNietVerteld) {
  EXPECT_EQ(Van("1 MARC\n2 PLAC Delft"), "te 2");
}

TEST_F(ImpRelatieTest, PartnerschapKomtMetDatumOfPlaats) {
  EXPECT_EQ(Van("1 MARS\n2 DATE 3 MAY 1990\n2 AGNC Wettig"), "whuw 03-05-1990; soort We; bond P");
  Importeer(Ged("0 @F1@ FAM\n1 MARS\n2 PLAC Delft"));
  EXPECT_EQ(Relatie(3), "te 2; bond P");
}

TEST_F(ImpRelatieTest, EenPeriodeVanPartnerschapVolgtHaarEigenBepaling) {
  EXPECT_EQ(Van("1 MARS\n2 DATE BET 1990 AND 4 MAY 1995"),
            "whuw 00-00-1990; khuw 04-05-1995; bond P");
}

TEST_F(ImpRelatieTest, EenHuwelijksdatumMaaktErEenHuwelijkVan) {
  EXPECT_EQ(Van("1 MARC\n2 DATE 1990\n1 MARR\n2 DATE 1995"), "whuw 00-00-1995");
}

// kept: the place of a church marriage lands with the civil one.
TEST_F(ImpRelatieTest, EenKerkelijkHuwelijkLaatZijnPlaatsAanHetBurgerlijke) {
  EXPECT_EQ(Van(R"(
      1 MARR
      2 PLAC Delft
      1 ORDI
      2 DATE 4 MAY 1801
      2 PLAC Breda
      2 RELI Rooms Katholiek
    )"),
            "te 3; khuw 04-05-1801; religie RK");
  Importeer(Ged("0 @F1@ FAM\n1 ORDI\n2 AGNC Rooms Katholiek"));
  EXPECT_EQ(Relatie(3), "religie RK");
}

TEST_F(ImpRelatieTest, ScheidingOnderElkVanHaarLabels) {
  for (const std::string_view tag : {"ANUL", "DIV", "DIVF"}) {
    Importeer(Ged("0 @F1@ FAM\n1 " + std::string(tag) + "\n0 @F2@ FAM\n1 " + std::string(tag) +
                  "\n2 DATE 3 MAY 1801\n2 PLAC Delft"));
  }
  for (const std::int16_t nr : std::initializer_list<std::int16_t>{2, 4, 6}) {
    EXPECT_EQ(Relatie(nr), "scheiding ja");
    EXPECT_EQ(Relatie(static_cast<std::int16_t>(nr + 1)), "khuw 03-05-1801; te 2; scheiding ja");
  }
}

TEST_F(ImpRelatieTest, BekendeRegelsZonderVeldWordenOvergeslagen) {
  EXPECT_EQ(Van(R"(
      1 ENGA
      1 MARB
      1 MARL
      1 MARC
      1 MARS
      1 MARR Y
      1 ORDI
      1 EVEN
      1 CHAN
      2 DATE 1 JAN 2000
    )"),
            "");
  EXPECT_EQ(LogRegels(), "");
}

TEST_F(ImpRelatieTest, WatOnderEenAndereGebeurtenisStaatIsOnbekend) {
  EXPECT_EQ(Van("1 MARC\n2 LMAR Wettig\n1 NCHI 3"), "");
  EXPECT_EQ(LogRegels(),
            "R-F1 - Onbekende tag: FAM-MARC-LMAR : Wettig\nR-F1 - Onbekende tag: FAM-NCHI : 3\n");
}

class ImpKinderen : public ImportToets {
 protected:
  // Relation 2 with `aantal` children, the persons from 2 on, and a relation 3 behind it.
  static std::string Met(int aantal) {
    std::string uit = "0 HEAD\n0 @F1@ FAM\n1 MARR\n";
    for (int i = 1; i <= aantal; ++i) uit += "1 CHIL @I" + GetalTekst(i) + "@\n";
    uit += "2 DATE 1801\n1 DIV\n0 @F2@ FAM\n1 CHIL @I1@\n";
    for (int i = 1; i <= aantal; ++i) uit += "0 @I" + GetalTekst(i) + "@ INDI\n1 FAMC @F1@\n";
    return uit + "0 TRLR\n";
  }
  // ‘kind 2 3 4 ... ’
  static std::string Reeks(int van, int tot) {
    std::string uit = "kind";
    for (int nr = van; nr <= tot; ++nr) uit += " " + GetalTekst(nr);
    return uit;
  }
};

TEST_F(ImpKinderen, VijftienStaanInHetRecord) {
  Importeer(Met(15));
  EXPECT_EQ(Relatie(2), "scheiding ja; " + Reeks(2, 16));
  EXPECT_EQ(Aantallen(), "16 3 1 1");
}

TEST_F(ImpKinderen, HetZestiendeMaaktEenVervolgAchterHetLaatste) {
  Importeer(Met(16));
  EXPECT_EQ(Relatie(2), "scheiding ja; " + Reeks(2, 15) + " -4");
  EXPECT_EQ(Relatie(3), "kind 2");
  EXPECT_EQ(Relatie(4), "whuw Z   -  -    ; kind 16 17");
  EXPECT_EQ(Aantallen(), "17 4 1 1");
}

TEST_F(ImpKinderen, NegenentwintigVullenBeideRecords) {
  Importeer(Met(29));
  EXPECT_EQ(Relatie(2), "scheiding ja; " + Reeks(2, 15) + " -4");
  EXPECT_EQ(Relatie(4), "whuw Z   -  -    ; " + Reeks(16, 30));
  InSessie([](Hoofdmodule& hoofd) {
    Kindtab tab{};
    EXPECT_EQ(hoofd.Relatie.VulKindtab(2, tab).aantal, 29);
    for (int i = 1; i <= 29; ++i) EXPECT_EQ(tab.at(static_cast<std::size_t>(i)), i + 1);
  });
}

TEST_F(ImpKinderen, VanafHetDertigsteWordtHetEenmaalGemeld) {
  Importeer(Met(30), "! uitroep \"Meer dan 29 kinderen voor Relatie 2\"");
  EXPECT_EQ(Relatie(4), "whuw Z   -  -    ; " + Reeks(16, 30));
}

TEST_F(ImpKinderen, MeerDanDertigWordenNietNogEensGemeld) {
  Importeer(Met(33), "! uitroep \"Meer dan 29 kinderen voor Relatie 2\"");
  EXPECT_EQ(Relatie(4), "whuw Z   -  -    ; " + Reeks(16, 30));
  EXPECT_EQ(Relatie(2), "scheiding ja; " + Reeks(2, 15) + " -4");
}

}  // namespace
}  // namespace lb77
