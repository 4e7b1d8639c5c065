// The lines below a person: each row of the table, and what lands in the record.
#include <gtest/gtest.h>

#include "exchange/ImportToets.h"

namespace lb77 {
namespace {

class ImpPersoonTest : public ImportToets {
 protected:
  // Imports one person with these lines and gives its record.
  std::string Van(std::string_view regels, const Plek& plek = Plek::current()) {
    Importeer(Ged("0 @I1@ INDI\n" + std::string(regels)), "", plek);
    return Persoon(2);
  }
};

TEST_F(ImpPersoonTest, NamenStaanVoorEnTussenDeStrepen) {
  EXPECT_EQ(Van("1 NAME Jan Pieter /van den Berg/"), "voor Jan Pieter; achter van den Berg");
  EXPECT_EQ(LogRegels(), "");
}

TEST_F(ImpPersoonTest, EenNaamZonderStreepIsEenAchternaam) {
  EXPECT_EQ(Van("1 NAME Jan Jansen"), "achter Jan Jansen");
}

TEST_F(ImpPersoonTest, WatAchterDeTweedeStreepStaatKomtMetTabsInHetVerslag) {
  EXPECT_EQ(Van("1 NAME Jan /Jansen/ jr."), "voor Jan; achter Jansen");
  EXPECT_EQ(Log(),
            "P-I1\tINDI-NAME\tJan /Jansen/ jr.\t jr.\r\n"
            "LET OP: wat niet of niet heel is overgenomen staat in GEDCOM.RST: 1 regel\r\n"
            "Importeren voltooid\r\n");
}

TEST_F(ImpPersoonTest, NamenWordenAfgekaptOpHunVelden) {
  EXPECT_EQ(Van("1 NAME 123456789012345678901234567890X /1234567890123456789012345X/"),
            "voor 123456789012345678901234567890; achter 1234567890123456789012345");
}

TEST_F(ImpPersoonTest, EigenVoornamenEnAchternaamVervangenDieVanDeNaam) {
  EXPECT_EQ(Van(R"(
      1 NAME J. /Jansen/
      2 GIVN Johannes
      2 SURN van Jansen
      2 SPFX van
    )"),
            "voor Johannes; achter van Jansen");
  EXPECT_EQ(LogRegels(),
            "LET OP: naam overschreven door een latere: 2 keer, voor het eerst in regel 4\n");
}

TEST_F(ImpPersoonTest, VoornamenEnAchternaamWordenAfgekaptVoorZeWordenGetrimd) {
  EXPECT_EQ(Van("1 NAME x\n2 GIVN 12345678901234567890123456789 XYZ\n"
                "2 SURN 123456789012345678901234 XYZ"),
            "voor 12345678901234567890123456789; achter 123456789012345678901234");
}

TEST_F(ImpPersoonTest, GeslachtOpZijnEersteLetter) {
  std::string regels;
  for (const std::string_view waarde : {"M", "female", "m", "Unknown", ""}) {
    regels += "0 INDI\n1 SEX " + std::string(waarde) + "\n";
  }
  Importeer(Ged(regels));
  InSessie([](Hoofdmodule& hoofd) {
    std::string letters;
    for (std::int16_t nr = 2; hoofd.Persoon.Lees(nr); ++nr) letters += hoofd.Persoon.Bytes()[83];
    EXPECT_EQ(letters, "MVMOO");
  });
}

TEST_F(ImpPersoonTest, GeboorteDoopOverlijdenEnBegrafenis) {
  EXPECT_EQ(Van(R"(
      1 BIRT
      2 DATE 12 MAR 1890
      2 PLAC Delft
      1 BAPM
      2 DATE 20 MAR 1890
      2 PLAC Breda
      2 RELI Nederlands Hervormd
      1 DEAT
      2 DATE ABT 1950
      2 PLAC Leiden
      1 BURI
      2 DATE 3 JAN 1950
      2 PLAC Delft
      1 OCCU bakker
    )"),
            "geb 12-03-1890; te 2; doop 20-03-1890; te 3; religie NH; ovl C 00-00-1950; te 4; "
            "begr 03-01-1950; te 2; beroep bakker");
  EXPECT_EQ(Plaats(2) + Plaats(3) + Plaats(4), "DelftBredaLeiden");
  EXPECT_EQ(LogRegels(), "");
}

TEST_F(ImpPersoonTest, DoopOnderElkVanZijnLabels) {
  for (const std::string_view tag : {"CHR", "BAPM", "BAPT"}) {
    const std::string regels = "0 @I1@ INDI\n1 " + std::string(tag) +
                               "\n2 DATE 1801\n2 PLAC Delft\n2 RELI rooms katholiek";
    Importeer(Ged(regels));
  }
  for (const std::int16_t nr : std::initializer_list<std::int16_t>{2, 3, 4}) {
    EXPECT_EQ(Persoon(nr), "doop 00-00-1801; te 2; religie RK");
  }
}

TEST_F(ImpPersoonTest, BegrafenisOnderBeideLabels) {
  Importeer(
      Ged("0 @I1@ INDI\n1 BURI\n2 DATE 1801\n2 PLAC Delft\n"
          "0 @I2@ INDI\n1 BURR\n2 DATE 1801\n2 PLAC Delft"));
  EXPECT_EQ(Persoon(2), "begr 00-00-1801; te 2");
  EXPECT_EQ(Persoon(3), "begr 00-00-1801; te 2");
}

TEST_F(ImpPersoonTest, DeLaatsteGezindteWint) {
  EXPECT_EQ(Van("1 BAPM\n2 RELI Rooms Katholiek\n1 RELI Nederlands Hervormd"), "religie NH");
}

TEST_F(ImpPersoonTest, EenGeboorteperiodeLigtInDeDoop) {
  EXPECT_EQ(Van("1 BIRT\n2 DATE BET 1890 AND 31 DEC 1895\n2 PLAC Delft\n1 BAPM\n2 PLAC Breda"),
            "geb T 00-00-1890; te 2; doop 31-12-1895");
  EXPECT_EQ(Plaats(3), "");  // the place is not even looked up
}

TEST_F(ImpPersoonTest, EenOverlijdensperiodeLigtInDeBegrafenis) {
  EXPECT_EQ(Van("1 DEAT\n2 DATE BET 1890 AND 1895\n1 BURI\n2 PLAC Breda"),
            "ovl T 00-00-1890; begr 00-00-1895");
  EXPECT_EQ(Plaats(2), "");
}

TEST_F(ImpPersoonTest, EenDoopdatumNeemtDeBepalingVanDeGeboorte) {
  // A period as baptism date holds back the place; an exact one lets it through again.
  EXPECT_EQ(Van("1 BAPM\n2 DATE BET 1890 AND 1895\n2 PLAC Breda"), "doop 00-00-1890");
  Importeer(
      Ged("0 @I1@ INDI\n1 BIRT\n2 DATE BET 1890 AND 1895\n1 BAPM\n2 DATE 1896\n2 PLAC Breda"));
  EXPECT_EQ(Persoon(3), "geb T 00-00-1890; doop 00-00-1896; te 2");
}

TEST_F(ImpPersoonTest, EenBegrafenisdatumNeemtDeBepalingVanHetOverlijden) {
  EXPECT_EQ(Van("1 BURI\n2 DATE BET 1890 AND 1895\n2 PLAC Breda"), "begr 00-00-1890");
  Importeer(
      Ged("0 @I1@ INDI\n1 DEAT\n2 DATE BET 1890 AND 1895\n1 BURI\n2 DATE 1896\n2 PLAC Breda"));
  EXPECT_EQ(Persoon(3), "ovl T 00-00-1890; begr 00-00-1896; te 2");
}

TEST_F(ImpPersoonTest, DePeriodeVanDeEenHoudtDePlaatsVanDeVolgendeNietTegen) {
  Importeer(Ged(R"(
      0 @I1@ INDI
      1 BIRT
      2 DATE BET 1890 AND 1895
      1 DEAT
      2 DATE BET 1900 AND 1905
      0 @I2@ INDI
      1 BAPM
      2 PLAC Breda
      1 BURI
      2 PLAC Breda
    )"));
  EXPECT_EQ(Persoon(3), "te 2; te 2");
}

TEST_F(ImpPersoonTest, EenLatereDatumVervangtEenEerdereBepaling) {
  EXPECT_EQ(Van("1 BIRT\n2 DATE ABT 1890\n1 BIRT\n2 DATE 3 MAY 1891"), "geb 03-05-1891");
}

TEST_F(ImpPersoonTest, EenPeriodeZonderEindHoudtAlleenHaarBepaling) {
  EXPECT_EQ(Van("1 BIRT\n2 DATE BET 1890"), "geb N   -  -    ");
  EXPECT_EQ(LogRegels(), "P-I1 - Fout in datum: BETWEEN zonder AND met 2e datum BET 1890\n");
}

TEST_F(ImpPersoonTest, EenOnleesbareDatumStaatInHetVerslagZoalsHijIs) {
  EXPECT_EQ(Van("1 BIRT\n2 DATE ergens in mei 1890\n1 DEAT\n2 DATE abt 1890 and 1895"),
            "ovl C   -  -    ");
  EXPECT_EQ(LogRegels(),
            "P-I1 - Onbekende datum: ergens in mei 1890\n"
            "Fout in datum: AND zonder BETWEEN  1890 AND 1895\n");
}

TEST_F(ImpPersoonTest, EenNuldatumWordtAlsGeenDatumOpgeslagen) {
  EXPECT_EQ(Van("1 BIRT\n2 DATE 0000"), "");
}

TEST_F(ImpPersoonTest, OorspronkelijkeGebeurtenissenTellenAlsGeboorte) {
  EXPECT_EQ(Van("1 _ORIG\n2 DATE 1890\n2 PLAC Delft"), "geb 00-00-1890; te 2");
  EXPECT_EQ(LogRegels(), "");
}

TEST_F(ImpPersoonTest, EenBeroepWordtAfgekaptOpZijnVeld) {
  EXPECT_EQ(Van("1 OCCU 123456789012345678901234567890X"), "beroep 123456789012345678901234567890");
}

TEST_F(ImpPersoonTest, LegeWaardenMakenHetVeldLeeg) {
  EXPECT_EQ(Van("1 NAME Jan /Jansen/\n1 NAME\n1 OCCU bakker\n1 OCCU\n1 BIRT\n2 PLAC Delft\n2 PLAC"),
            "");
  EXPECT_EQ(LogRegels(),
            "LET OP: naam overschreven door een latere: 1 keer, voor het eerst in regel 4\n");
}

// kept: an empty religion is the number text "0", and that is stored.
TEST_F(ImpPersoonTest, EenLegeGezindteIsDeTekstNul) {
  EXPECT_EQ(Van("1 RELI"), "religie 0");
}

TEST_F(ImpPersoonTest, BekendeRegelsZonderVeldWordenOvergeslagen) {
  EXPECT_EQ(Van(R"(
      1 BIRT
      1 CHR
      1 BAPM
      1 BAPT
      1 DEAT Y
      1 BURI
      1 BURR
      1 EVEN
      1 ADDR Straat 1
      1 CHAN
      2 DATE 1 JAN 2000
    )"),
            "opm 4096");
  EXPECT_EQ(LogRegels(), "");
}

TEST_F(ImpPersoonTest, WatOnbekendIsStaatInHetVerslag) {
  EXPECT_EQ(Van("1 CREM\n2 DATE 1890\n1 BIRT\n2 TIME 12:00"), "");
  EXPECT_EQ(LogRegels(),
            "P-I1 - Onbekende tag: INDI-CREM : \n"
            "P-I1 - Onbekende tag: INDI-CREM-DATE : 1890\n"
            "P-I1 - Onbekende tag: INDI-BIRT-TIME : 12:00\n");
}

TEST_F(ImpPersoonTest, OudersWordenGevondenOokAlsZeLaterKomen) {
  Importeer(
      Ged("0 @I1@ INDI\n1 FAMC @F2@\n0 @I2@ INDI\n1 FAMC @F9@\n"
          "0 @F1@ FAM\n0 @F2@ FAM"));
  EXPECT_EQ(Persoon(2), "ouders 3");
  EXPECT_EQ(Persoon(3), "");
}

TEST_F(ImpPersoonTest, EenOnbekendeRelatieNeemtHaarPlaatsAlsNul) {
  Importeer(Ged("0 @I1@ INDI\n1 FAMS @X@\n1 FAMS @F1@\n0 @F1@ FAM"));
  EXPECT_EQ(Persoon(2), "rel2 2");
}

class ImpRelatiesVanPersoon : public ImportToets {
 protected:
  // Person 2 with `aantal` relations, and a person 3 behind it.
  static std::string Met(int aantal) {
    std::string uit = "0 HEAD\n0 @I1@ INDI\n1 NAME Jan /Jansen/\n";
    for (int i = 1; i <= aantal; ++i) uit += "1 FAMS @F" + std::to_string(i) + "@\n";
    uit += "1 OCCU bakker\n0 @I2@ INDI\n1 NAME Kees /Jansen/\n";
    for (int i = 1; i <= aantal; ++i) uit += "0 @F" + std::to_string(i) + "@ FAM\n1 HUSB @I1@\n";
    return uit + "0 TRLR\n";
  }
};

TEST_F(ImpRelatiesVanPersoon, DrieStaanInHetRecord) {
  Importeer(Met(3));
  EXPECT_EQ(Persoon(2), "voor Jan; achter Jansen; beroep bakker; rel1 2; rel2 3; rel3 4");
  EXPECT_EQ(Aantallen(), "3 4 1 1");
}

TEST_F(ImpRelatiesVanPersoon, DeVierdeMaaktEenVervolgAchterDeLaatste) {
  Importeer(Met(4));
  EXPECT_EQ(Persoon(2), "voor Jan; achter Jansen; beroep bakker; rel1 2; rel2 3; rel3 -4");
  EXPECT_EQ(Persoon(3), "voor Kees; achter Jansen");
  EXPECT_EQ(Persoon(4), "geb Z   -  -    ; rel1 4; rel2 5");
  EXPECT_EQ(Aantallen(), "4 5 1 1");
}

TEST_F(ImpRelatiesVanPersoon, DeVijfdeVultHetVervolg) {
  Importeer(Met(5));
  EXPECT_EQ(Persoon(2), "voor Jan; achter Jansen; beroep bakker; rel1 2; rel2 3; rel3 -4");
  EXPECT_EQ(Persoon(4), "geb Z   -  -    ; rel1 4; rel2 5; rel3 6");
  EXPECT_EQ(Aantallen(), "4 6 1 1");
}

TEST_F(ImpRelatiesVanPersoon, DeZesdeWordtEenmaalGemeldEnDeAndereNiet) {
  Importeer(Met(7), "! uitroep \"Meer dan 5 relaties voor Persoon 2\"");
  EXPECT_EQ(Persoon(2), "voor Jan; achter Jansen; beroep bakker; rel1 2; rel2 3; rel3 -4");
  EXPECT_EQ(Persoon(4), "geb Z   -  -    ; rel1 4; rel2 5; rel3 6");
  EXPECT_EQ(Aantallen(), "4 8 1 1");
}

}  // namespace
}  // namespace lb77
