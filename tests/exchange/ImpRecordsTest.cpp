// The second pass: other records, the context of log lines, paths and unknown tags.
#include <gtest/gtest.h>

#include "exchange/ImportToets.h"

namespace lb77 {
namespace {

class ImpRecordsTest : public ImportToets {
 protected:
  std::string LogVan(std::string_view regels, const Plek& plek = Plek::current()) {
    Importeer(Ged(regels), "", plek);
    return LogRegels();
  }
};

TEST_F(ImpRecordsTest, HetVerslagNoemtHetRecordVanEenRegel) {
  EXPECT_EQ(LogVan(R"(
      1 ABCD a
      0 @I1@ INDI
      1 ABCD b
      0 @F1@ FAM
      1 ABCD c
      0 @S1@ SOUR
      1 ABCD d
      0 @N1@ SUBN
      1 ABCD e
      0 @M1@ SUBM
      1 ABCD f
      0 @O1@ OBJE
      1 ABCD g
      0 GENS
      1 ABCD h
    )"),
            "H-Header - Onbekende tag: HEAD-ABCD : a\n"
            "P-I1 - Onbekende tag: INDI-ABCD : b\n"
            "R-F1 - Onbekende tag: FAM-ABCD : c\n"
            "A-S1 - Onbekende tag: SOUR-ABCD : d\n"
            "I-Inzending N1 - Onbekende tag: SUBN-ABCD : e\n"
            "Z-Inzender M1 - Onbekende tag: SUBM-ABCD : f\n"
            "?-O1 - Onbekende tag: OBJE-ABCD : g\n"
            "?- - Onbekende tag: GENS-ABCD : h\n");
}

TEST_F(ImpRecordsTest, EenBewaarplaatsLaatContextEnRecordStaan) {
  EXPECT_EQ(LogVan(R"(
      0 @I1@ INDI
      1 NAME Jan /Jansen/
      0 @R1@ REPO
      1 NAME Archief
      1 ADDR Straat
      1 ABCD x
    )"),
            "P-I1 - Onbekende tag: REPO-ABCD : x\n");
  EXPECT_EQ(Persoon(2), "voor Jan; achter Jansen");
}

TEST_F(ImpRecordsTest, DeBekendeRegelsVanAndereRecordsWordenOvergeslagen) {
  EXPECT_EQ(LogVan(R"(
      1 SOUR Programma
      2 VERS 1.0
      2 VER 1.0
      2 NAME Naam
      2 DATA D
      3 COPR C
      3 DATE 1 JAN 2000
      2 CORP Bedrijf
      3 WWW example.org
      3 ADDR Straat
      1 DEST X
      1 DATE 1 JAN 2000
      2 TIME 12:00
      1 FILE X.GED
      1 COPR C
      1 GEDC
      2 VERS 5.5
      2 FORM LINEAGE-LINKED
      1 LANG Dutch
      1 SUBM @M1@
      1 SUBN @N1@
      0 @M1@ SUBM
      1 GEDC
      2 VERS 5.5
      1 SCHEMA
      1 NAME Naam
      1 ADDR Straat
      2 CONT Plaats
      2 CONC vervolg
      2 ADR1 a
      2 ADR2 b
      2 POST c
      2 CITY d
      2 CTRY e
      1 PHON f
      1 LANG g
      1 CHAN
      2 DATE 1 JAN 2000
      1 FILE h
      0 @N1@ SUBN
      1 DESC 1
      1 ORDI no
      0 @S1@ SOUR
      1 NAME a
      1 TITL b
      1 AUTH c
      1 PUBL d
      1 REPO @R1@
      0 @R1@ REPO
      1 NAME Archief
      1 ADDR Straat
    )"),
            "");
  EXPECT_EQ(Aantallen(), "1 1 1 1");
}

TEST_F(ImpRecordsTest, OpmerkingenInElkeVormBlijvenVoorDeDerdeGang) {
  EXPECT_EQ(LogVan(R"(
      0 @I1@ INDI
      1 NOTE a
      2 CONT b
      2 CONC c
      1 _COMM d
      1 _ALIA e
      1 RFN f
      1 AFN g
      1 SOUR h
      1 CAUS i
      1 TYPE j
      1 ADOP k
    )"),
            "LET OP: tekst niet overgenomen: 1 keer, voor het eerst in regel 13\n");
}

TEST_F(ImpRecordsTest, SchemalabelsWordenEenmaalPerImportGemeld) {
  EXPECT_EQ(LogVan(R"(
      0 @M1@ SUBM
      1 SCHEMA
      2 INDI
      2 FAM
      0 @M2@ SUBM
      1 SCHEMA
      2 INDI
    )"),
            "Z-Inzender M1 - SCHEMA tags worden niet ge\xEFnterpreteerd: SUBM-SCHEMA-INDI\n");
}

TEST_F(ImpRecordsTest, LabelsVanAndereProgrammasWordenEenmaalPerImportGemeld) {
  const std::string_view persoon = "0 @I1@ INDI\n1 _UID x\n1 _MILT y\n0 @F1@ FAM\n1 _UID z";
  EXPECT_EQ(LogVan(persoon),
            "P-I1 - Eigen tags van externe programma's worden niet ondersteund: INDI-_UID\n");
  EXPECT_EQ(LogVan("0 @F1@ FAM\n1 _UID x\n0 @I1@ INDI\n1 _UID y"),
            "R-F1 - Eigen tags van externe programma's worden (nog) niet ondersteund: FAM-_UID\n");
  EXPECT_EQ(LogVan("1 _UID x\n0 @F1@ FAM\n1 _UID y"),
            "H-Header - Eigen tags van externe programma's worden (nog) niet ondersteund: "
            "HEAD-_UID\n");
}

TEST_F(ImpRecordsTest, WatOnderEenVreemdLabelStaatIsOnbekend) {
  EXPECT_EQ(LogVan("0 @I1@ INDI\n1 _MILT\n2 DATE 1890"),
            "P-I1 - Eigen tags van externe programma's worden niet ondersteund: INDI-_MILT\n"
            "P-I1 - Onbekende tag: INDI-_MILT-DATE : 1890\n");
}

// kept: the misspelling for persons and relations.
TEST_F(ImpRecordsTest, GebeurtenissenWordenEenmaalPerImportGemeld) {
  EXPECT_EQ(LogVan("0 @I1@ INDI\n1 GRAD\n2 EVEN x\n2 EVEN y\n0 @F1@ FAM\n1 X\n2 EVEN z"),
            "P-I1 - Onbekende tag: INDI-GRAD : \n"
            "P-I1 - EVENT tags worden opgelsagen als ALGEMENE OPMERKING: INDI-GRAD-EVEN\n"
            "R-F1 - Onbekende tag: FAM-X : \n");
  EXPECT_EQ(LogVan("0 @F1@ FAM\n1 X\n2 EVEN z"),
            "R-F1 - Onbekende tag: FAM-X : \n"
            "R-F1 - EVENT tags worden opgelsagen als ALGEMENE OPMERKING: FAM-X-EVEN\n");
  EXPECT_EQ(LogVan("0 @S1@ SOUR\n1 EVEN z\n0 @I1@ INDI\n1 X\n2 EVEN y"),
            "A-S1 - EVENT tags worden opgeslagen als ALGEMENE OPMERKING: SOUR-EVEN\n"
            "P-I1 - Onbekende tag: INDI-X : \n");
}

// A person's path need only end in EVEN; a relation's tag must be it.
TEST_F(ImpRecordsTest, EenPersoonslabelDatOpEvenEindigtIsEenGebeurtenis) {
  EXPECT_EQ(LogVan("0 @F1@ FAM\n1 XEVEN a\n0 @I1@ INDI\n1 XEVEN b"),
            "R-F1 - Onbekende tag: FAM-XEVEN : a\n"
            "P-I1 - EVENT tags worden opgelsagen als ALGEMENE OPMERKING: INDI-XEVEN\n");
}

TEST_F(ImpRecordsTest, DeVlaggenBeginnenBijElkeImportOpnieuw) {
  const std::string_view regels = "0 @I1@ INDI\n1 _UID x";
  const std::string eerste = LogVan(regels);
  EXPECT_EQ(LogVan(regels), eerste);
}

TEST_F(ImpRecordsTest, EenOvergeslagenNiveauNeemtHetPadVanDeLaatsteRegelDaar) {
  Importeer(Ged("0 @I1@ INDI\n1 BIRT\n2 DATE 1890\n1 DEAT\n0 @I2@ INDI\n2 DATE 1950"));
  EXPECT_EQ(Persoon(2), "geb 00-00-1890");
  EXPECT_EQ(Persoon(3), "ovl 00-00-1950");
}

TEST_F(ImpRecordsTest, EenOvergeslagenNiveauBereiktNooitEenRecordDatNietInOpbouwIs) {
  EXPECT_EQ(LogVan("0 @I1@ INDI\n1 BIRT\n2 DATE 1890\n0 @F1@ FAM\n2 DATE 1950"),
            "R-F1 - Onbekende tag: INDI-BIRT-DATE : 1950\n");
  EXPECT_EQ(Persoon(2), "geb 00-00-1890");
  EXPECT_EQ(Relatie(2), "");
}

TEST_F(ImpRecordsTest, NiveausLopenTotNegenennegentig) {
  std::string regels = "0 @I1@ INDI\n";
  std::string pad = "INDI";
  for (int level = 1; level <= 99; ++level) {
    regels += std::to_string(level) + " X" + std::to_string(level) + "\n";
    pad += "-X" + std::to_string(level);
  }
  EXPECT_TRUE(LogVan(regels).ends_with("P-I1 - Onbekende tag: " + pad + " : \n"));
}

TEST_F(ImpRecordsTest, TweeRecordsMetEenIdNemenElkHunEigenRij) {
  Importeer(Ged(R"(
      0 @I1@ INDI
      1 NAME Jan //
      0 @I1@ INDI
      1 NAME Piet //
      0 @F1@ FAM
      1 HUSB @I1@
      0 @F1@ FAM
      1 WIFE @I1@
      0 @I3@ INDI
      1 FAMC @F1@
    )"));
  EXPECT_EQ(Persoon(2) + "|" + Persoon(3) + "|" + Persoon(4), "voor Jan|voor Piet|ouders 2");
  EXPECT_EQ(Relatie(2) + "|" + Relatie(3), "man 2|vrouw 2");
}

TEST_F(ImpRecordsTest, RecordsZonderIdWordenOpVolgordeGevuld) {
  Importeer(Ged("0 INDI\n1 NAME Jan //\n0 INDI\n1 NAME Piet //\n0 FAM\n1 DIV\n0 FAM"));
  EXPECT_EQ(Persoon(2) + "|" + Persoon(3), "voor Jan|voor Piet");
  EXPECT_EQ(Relatie(2) + "|" + Relatie(3), "scheiding ja|");
}

TEST_F(ImpRecordsTest, IdsTellenMetHunEersteTweeentwintigTekens) {
  Importeer(Ged(R"(
      0 @1234567890123456789012A@ INDI
      0 @1234567890123456789012B@ INDI
      0 @F1@ FAM
      1 HUSB @1234567890123456789012B@
      1 WIFE @123456789012345678901@
    )"));
  EXPECT_EQ(Relatie(2), "man 2");
  EXPECT_EQ(
      LogRegels(),
      "LET OP: verwijzing naar een record dat er niet is: 1 keer, voor het eerst in regel 6\n");
}

TEST_F(ImpRecordsTest, EenVerwijzingHeeftHaarTekensNodig) {
  Importeer(
      "0 HEAD\n0 @I1@ INDI\n0 @F1@ FAM\n1 HUSB I1\n1 WIFE @I1\n1 CHIL @@\n1 CHIL  @I1@\n0 TRLR");
  EXPECT_EQ(Relatie(2), "");
  EXPECT_EQ(
      LogRegels(),
      "LET OP: verwijzing naar een record dat er niet is: 4 keer, voor het eerst in regel 4\n");
}

TEST_F(ImpRecordsTest, EenSpatieAchterEenVerwijzingTeltNiet) {
  Importeer("0 HEAD\n0 @I1@ INDI\n0 @F1@ FAM\n1 HUSB @I1@ \n0 TRLR");
  EXPECT_EQ(Relatie(2), "man 2");
  EXPECT_EQ(LogRegels(), "");
}

TEST_F(ImpRecordsTest, DeImportVoegtAltijdToe) {
  const std::string bytes = Ged("0 @I1@ INDI\n1 NAME Jan //\n1 FAMS @F1@\n0 @F1@ FAM\n1 HUSB @I1@");
  Importeer(bytes);
  Importeer(bytes);
  EXPECT_EQ(Aantallen(), "3 3 1 1");
  EXPECT_EQ(Persoon(3), "voor Jan; rel1 3");
  EXPECT_EQ(Relatie(3), "man 3");
}

TEST_F(ImpRecordsTest, ZonderEindeVerliestHetLaatsteRecordZijnVelden) {
  Importeer("0 HEAD\n0 @I1@ INDI\n1 NAME Jan //\n0 @I2@ INDI\n1 NAME Piet //\n");
  EXPECT_EQ(Persoon(2), "voor Jan");
  EXPECT_EQ(Persoon(3), "");
  EXPECT_EQ(Aantallen(), "3 1 1 1");
}

TEST_F(ImpRecordsTest, WatAchterHetEindeStaatWordtNietGelezen) {
  Importeer("0 HEAD\n0 @I1@ INDI\n1 NAME Jan //\n0 TRLR\n0 @I2@ INDI\nrommel\n");
  EXPECT_EQ(Aantallen(), "2 1 1 1");
  EXPECT_EQ(Persoon(2), "voor Jan");
}

}  // namespace
}  // namespace lb77
