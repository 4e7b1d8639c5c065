// The tags of our own that the import knows, and what stays as it was for files that have none.
#include <gtest/gtest.h>

#include "exchange/ImportToets.h"

namespace lb77 {
namespace {

class ImpEigenTest : public ImportToets {
 protected:
  // The log of a file of ours.
  std::string LogVan(std::string_view regels, const Plek& plek = Plek::current()) {
    Importeer("0 HEAD\n1 _LBVORM 1\n" + TranscriptRegels(regels) + "0 TRLR\n", "", plek);
    return LogRegels();
  }
};

TEST_F(ImpEigenTest, EenEigenTagGaatVoorDeRegelErachter) {
  EXPECT_EQ(LogVan(R"(
      0 @I1@ INDI
      1 NAME A-B /C-D/
      2 _LBVOOR A/B
      2 GIVN A-B
      2 _LBACHT van C/D
      2 SPFX van
      2 SURN C-D
      1 _LBGESL Q
      1 SEX U
      1 BIRT
      2 _LBCORR Q
      2 _LBDATUM 12-00-1890
      2 DATE (12-?-1890)
      1 _LBGEZ zz
      1 RELI Zondagszwijger
    )"),
            "");
  EXPECT_EQ(Persoon(2), "voor A/B; achter van C/D; seks Q; geb Q 12-00-1890; religie zz");
}

TEST_F(ImpEigenTest, EenEigenTagGeldtAlleenInZijnRecord) {
  EXPECT_EQ(LogVan(R"(
      0 @I1@ INDI
      1 NAME /A/
      2 _LBACHT B
      0 @I2@ INDI
      1 NAME /C/
      2 SURN C
      0 @F1@ FAM
      1 MARR
      2 _LBALS _LBWET
      2 _LBCORR C
      0 @F2@ FAM
      1 MARR
      2 _LBALS _LBWET
      2 DATE BEF 1900
    )"),
            "");
  EXPECT_EQ(Persoon(2), "achter B");
  EXPECT_EQ(Persoon(3), "achter C");
  EXPECT_EQ(Relatie(2), "whuw C   -  -    ");
  EXPECT_EQ(Relatie(3), "whuw V 00-00-1900");
}

TEST_F(ImpEigenTest, EenPeriodeHeeftHaarEindeInEenEigenTag) {
  EXPECT_EQ(LogVan(R"(
      0 @I1@ INDI
      1 BIRT
      2 _LBCORR T
      2 _LBDATUM 00-00-1890
      2 _LBTOT 12-00-1895
      2 DATE (tussen ?-?-1890 en 12-?-1895)
      1 DEAT
      2 _LBCORR T
      2 _LBDATUM 00-00-1960
      2 _LBTOT 12-00-1965
      0 @F1@ FAM
      1 MARR
      2 _LBALS _LBWET
      2 DATE BET 1920 AND 1921
      1 MARR
      2 _LBALS _LBKERK
      2 PLAC Delft
      0 @F2@ FAM
      1 MARR
      2 _LBALS _LBWET
      2 _LBCORR T
      2 _LBDATUM 00-00-1920
      2 _LBTOT 12-00-1921
      2 DATE (tussen ?-?-1920 en 12-?-1921)
    )"),
            "");
  EXPECT_EQ(Persoon(2), "geb T 00-00-1890; doop 12-00-1895; ovl T 00-00-1960; begr 12-00-1965");
  EXPECT_EQ(Relatie(2), "whuw T 00-00-1920; khuw 00-00-1921; te 2");
  EXPECT_EQ(Relatie(3), "whuw T 00-00-1920; khuw 12-00-1921");
}

TEST_F(ImpEigenTest, EenRegelMaaktGeenVervolgrecord) {
  EXPECT_EQ(LogVan(R"(
      0 @I1@ INDI
      1 NAME /A/
      1 BIRT
      2 _LBCORR Z
      0 @F1@ FAM
      1 MARR
      2 _LBALS _LBWET
      2 _LBCORR Z
      2 DATE 1900
    )"),
            "");
  EXPECT_EQ(Persoon(2), "achter A");
  EXPECT_EQ(Relatie(2), "whuw 00-00-1900");
}

TEST_F(ImpEigenTest, EenRegelMaaktGeenRecordDatErNietIs) {
  EXPECT_EQ(LogVan(R"(
      0 @P1@ _LBPLTS
      1 _LBPROV &%
      1 NAME Delft
      0 @I1@ INDI
      1 NAME /A/
      1 _LBGESL X
      1 SEX U
      1 BIRT
      2 _LBPLTS @P1@
      0 @F1@ FAM
      1 MARR
      2 _LBALS _LBWET
      2 _LBCORR X
      2 DATE 1900
    )"),
            "");
  EXPECT_EQ(Persoon(2), "achter A; te 2");
  EXPECT_EQ(Relatie(2), "whuw 00-00-1900");
  EXPECT_EQ(Plaats(2), "Delft");
  EXPECT_EQ(Rest(),
            "0 HEAD\n1 CHAR UTF-8\n0 @P1@ _LBPLTS\n1 _LBPROV &%\n0 @I1@ INDI\n1 REFN 2\n"
            "1 _LBGESL X\n0 @F1@ FAM\n1 REFN 2\n1 MARR\n2 _LBCORR X\n0 TRLR\n");
}

TEST_F(ImpEigenTest, EenRubriekDieErNietIsWordtNietOvergenomen) {
  EXPECT_EQ(LogVan(R"(
      0 @I1@ INDI
      1 NOTE een
      2 _LBRUBR 3
      1 NOTE twee
      2 CONT lang
      2 _LBRUBR 8192
      2 _LBPROG 1
      1 NOTE drie
      2 _LBRUBR 2
      2 _LBPROG 40000
      1 NOTE vier
      2 _LBRUBR 1
      2 _LBPROG 0
      0 @S1@ SOUR
      1 NOTE vijf
      2 _LBRUBR 1
    )"),
            "LET OP: NOTE niet overgenomen: 1 keer, voor het eerst in regel 17\n");
  EXPECT_EQ(OpmBijPersoon(2), "4096 een\n4096 twee|lang\n2 drie\n1 vier\n");
  EXPECT_EQ(Rest(),
            "0 HEAD\n1 CHAR UTF-8\n0 @I1@ INDI\n1 REFN 2\n1 NOTE een\n2 _LBRUBR 3\n"
            "1 NOTE twee\n2 CONT lang\n2 _LBRUBR 8192\n2 _LBPROG 1\n1 NOTE drie\n"
            "2 _LBRUBR 2\n2 _LBPROG 40000\n0 @S1@ SOUR\n1 NOTE vijf\n2 _LBRUBR 1\n0 TRLR\n");
}

// The fields of a continuation record are not those that a line has fixed.
TEST_F(ImpEigenTest, EenVasteCodeHoudtGeenVervolgrecordTegen) {
  EXPECT_EQ(LogVan(R"(
      0 @I1@ INDI
      1 BIRT
      2 _LBCORR C
      1 FAMS @F1@
      1 _LBFAMS
      1 FAMS @F2@
      1 FAMS @F3@
      1 FAMS @F4@
      0 @F1@ FAM
      0 @F2@ FAM
      0 @F3@ FAM
      0 @F4@ FAM
    )"),
            "");
  EXPECT_EQ(Persoon(2), "geb C   -  -    ; rel1 2; rel3 -3");
  EXPECT_EQ(Persoon(3), "geb Z   -  -    ; rel1 3; rel2 4; rel3 5");
}

TEST_F(ImpEigenTest, EenPlaatsHeeftEenRecordEnEenBepaling) {
  EXPECT_EQ(LogVan(R"(
      0 @P7@ _LBPLTS
      1 _LBPROV ZH
      1 NAME Delft
      0 @P8@ _LBPLTS
      1 NAME Delft
      0 @I1@ INDI
      1 BIRT
      2 _LBPLTS @P8@
      2 PLAC Delft
      1 BAPM
      2 _LBPLTS @P7@
      3 _LBZEKER verm.
      2 PLAC Delft, Zuid-Holland, Nederland
      1 DEAT
      2 _LBPLTS @P7@
      3 _LBZEKER (?)
      1 CREM
      2 _LBALS BURI
      2 _LBCREM 1
      2 _LBPLTS @P7@
      3 _LBZEKER verm. (?)
      2 PLAC Delft, Zuid-Holland, Nederland
      0 @F1@ FAM
      1 MARB
      2 _LBPLTS @P7@
      3 _LBZEKER misschien
      1 MARR
      2 _LBALS _LBWET
      2 _LBPLTS @P8@
      1 DIV
      2 _LBALS _LBKERK
      2 _LBPLTS @P8@
      3 _LBZEKER (?)
    )"),
            "");
  EXPECT_EQ(Persoon(2), "te 3; te 10002; te 20002; te 30002");
  EXPECT_EQ(Relatie(2), "te 2; te 3; te 20003; scheiding ja");
  EXPECT_EQ(Aantallen(), "2 2 3 1");
  InSessie([](Hoofdmodule& hoofd) {
    EXPECT_EQ(hoofd.Plaats.Prov(2) + "|" + hoofd.Plaats.Prov(3), "ZH|");
    ASSERT_TRUE(hoofd.Persoon.Lees(2));
    EXPECT_TRUE(hoofd.Persoon.BegrCrem());
  });
}

TEST_F(ImpEigenTest, EenPlaatsVanDeSetWordtEenmaalGebruikt) {
  Bouw().Plaats("DELFT", "zh");
  Bouw().Plaats("Delft", "NH");
  EXPECT_EQ(LogVan(R"(
      0 @P7@ _LBPLTS
      1 _LBPROV ZH
      1 NAME Delft
      0 @P8@ _LBPLTS
      1 _LBPROV ZH
      1 NAME Delft
      0 @P9@ _LBPLTS
      1 NAME
      0 @I1@ INDI
      1 BIRT
      2 _LBPLTS @P7@
      1 DEAT
      2 _LBPLTS @P8@
      1 BURI
      2 _LBPLTS @P9@
    )"),
            "");
  EXPECT_EQ(Persoon(2), "te 2; te 4; te 5");
}

TEST_F(ImpEigenTest, EenPlaatsDieErNietIsWordtGemeld) {
  EXPECT_EQ(
      LogVan("0 @I1@ INDI\n1 BIRT\n2 _LBPLTS @P7@\n3 _LBZEKER verm.\n2 PLAC Delft"),
      "LET OP: verwijzing naar een record dat er niet is: 1 keer, voor het eerst in regel 5\n");
  EXPECT_EQ(Persoon(2), "");
}

TEST_F(ImpEigenTest, EenOpmerkingHoudtHaarRegelsRubriekEnUitvoer) {
  const std::string lang(80, 'a');
  EXPECT_EQ(LogVan("0 @I1@ INDI\n1 NOTE een\n2 CONT twee\n2 CONT " + lang +
                   "\n2 _LBRUBR 2048\n2 _LBPROG 68\n1 NOTE drie\n2 CONT vier\n"
                   "1 BIRT\n2 NOTE vijf\n3 _LBRUBR -8\n3 _LBPROG 1\n"
                   "0 @F1@ FAM\n1 MARR\n2 _LBALS _LBKERK\n2 TYPE Kerkelijk huwelijk\n2 NOTE zes\n"
                   "3 _LBPROG 2\n2 PLAC\n3 NOTE zeven\n4 CONC s\n4 _LBPROG 2"),
            "");
  EXPECT_EQ(OpmBijPersoon(2), "2048 een|twee|" + lang + "\n4096 drie vier\n8 vijf\n");
  EXPECT_EQ(OpmBijRelatie(2), "-64 zes\n-32 zevens\n");
  InSessie([](Hoofdmodule& hoofd) {
    ASSERT_TRUE(hoofd.Opmerking.Lees(2));
    EXPECT_EQ(hoofd.Opmerking.BijProg(), 68);
    ASSERT_TRUE(hoofd.Opmerking.Lees(5));
    EXPECT_EQ(hoofd.Opmerking.BijProg(), 23);
  });
}

TEST_F(ImpEigenTest, EenOpmerkingDieNietPastWordtOpnieuwAfgebroken) {
  const std::string lang = std::string(50, 'a') + " " + std::string(50, 'b');
  EXPECT_EQ(LogVan("0 @I1@ INDI\n1 NOTE " + lang + "\n2 _LBPROG 1"), "");
  EXPECT_EQ(OpmBijPersoon(2), "4096 " + std::string(50, 'a') + "|" + std::string(50, 'b') + "\n");
}

TEST_F(ImpEigenTest, EenDubbelApenstaartjeIsEenEnkel) {
  EXPECT_EQ(LogVan("0 @I1@ INDI\n1 NAME a@@ /b@@@@c/\n1 NOTE x@@y\n2 CONT z@@\n2 _LBPROG 1"), "");
  EXPECT_EQ(Persoon(2), "voor a@; achter b@@c; opm 4096");
  EXPECT_EQ(OpmBijPersoon(2), "4096 x@y|z@\n");
}

TEST_F(ImpEigenTest, EenBestandVanEldersBlijftZoalsHetWas) {
  Importeer(Ged(R"(
      1 PLAC
      2 FORM City, Province, Country
      0 @I1@ INDI
      1 NAME a@@ /b/
      1 CREM
      0 @F1@ FAM
      1 MARR
      2 TYPE Kerkelijk
      2 DATE BEF 1900
    )"));
  EXPECT_EQ(LogRegels(),
            "H-Header - Onbekende tag: HEAD-PLAC : \n"
            "H-Header - Onbekende tag: HEAD-PLAC-FORM : City, Province, Country\n"
            "P-I1 - Onbekende tag: INDI-CREM : \n");
  EXPECT_EQ(Persoon(2), "voor a@@; achter b");
  EXPECT_EQ(Relatie(2), "whuw 00-00-1900; opm -256");
  EXPECT_EQ(OpmBijRelatie(2), "-256 TYPE: Kerkelijk\n");
}

}  // namespace
}  // namespace lb77
