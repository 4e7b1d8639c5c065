// What was lost without a line of its own is counted at the end of the log.
#include <gtest/gtest.h>

#include "exchange/ImportToets.h"

namespace lb77 {
namespace {

class ImpVerliezenTest : public ImportToets {
 protected:
  // The log of an import of these lines; HEAD is line 1 of the file, the first of them line 2.
  std::string LogVan(std::string_view regels) {
    Importeer(Ged(regels));
    return LogRegels();
  }
};

TEST_F(ImpVerliezenTest, ZonderVerliesIsErGeenRegel) {
  EXPECT_EQ(LogVan(R"(
      0 @I1@ INDI
      1 NAME Jan /van Dam/
      2 GIVN Jan
      2 SURN van Dam
      1 OCCU smid
      1 BIRT
      2 PLAC Delft
      1 FAMS @F1@
      1 NOTE kort
      0 @F1@ FAM
      1 HUSB @I1@
    )"),
            "");
}

TEST_F(ImpVerliezenTest, AfgekapteNamenEnBeroepenWordenGeteld) {
  EXPECT_EQ(LogVan(R"(
      0 @I1@ INDI
      1 NAME Jan /Dam/
      1 BIRT
      2 PLAC 12345678901234567890123456
      1 DEAT
      2 PLAC 1234567890123456789012345
      0 @I2@ INDI
      1 NAME 1234567890123456789012345678901 /Dam/
      1 OCCU 1234567890123456789012345678901
      1 BIRT
      2 PLAC 12345678901234567890123456
      0 @I3@ INDI
      1 NAME /Dam/
      2 SURN 12345678901234567890123456
    )"),
            "LET OP: plaatsnaam afgekapt: 2 keer, voor het eerst in regel 5\n"
            "LET OP: naam afgekapt: 2 keer, voor het eerst in regel 9\n"
            "LET OP: beroep afgekapt: 1 keer, voor het eerst in regel 10\n"
            "LET OP: naam overschreven door een latere: 1 keer, voor het eerst in regel 15\n");
}

TEST_F(ImpVerliezenTest, EenLatereNaamDieEenAndereVervangtWordtGeteld) {
  EXPECT_EQ(LogVan(R"(
      0 @I1@ INDI
      1 NAME Jan /Dam/
      1 NAME Jan /Dam/
      1 NAME Johannes /Dam/
      2 SURN van Dam
      2 GIVN Jan
      0 @I2@ INDI
      1 NAME /Bakker/
      2 GIVN Anna
    )"),
            "LET OP: naam overschreven door een latere: 3 keer, voor het eerst in regel 5\n");
}

TEST_F(ImpVerliezenTest, VerwijzingenNaarWatErNietIsWordenGeteld) {
  EXPECT_EQ(LogVan(R"(
      0 @I1@ INDI
      1 FAMS @F9@
      1 FAMC @F1@
      0 @F1@ FAM
      1 HUSB @I9@
      1 CHIL @I8@
    )"),
            "LET OP: verwijzing naar een record dat er niet is: 3 keer, voor het eerst in regel "
            "3\n");
}

TEST_F(ImpVerliezenTest, OpmerkingenDieNietPassenOfNergensHorenWordenGeteld) {
  const std::string regel(80, 'x');
  std::string lang;
  for (int i = 0; i < 10; ++i) lang += regel + " ";
  EXPECT_EQ(LogVan("0 @I1@ INDI\n1 NOTE kort\n1 NOTE " + lang +
                   "\n2 CONT elf\n1 NOTE @N1@\n"
                   "0 @N1@ NOTE een tekst\n0 @S1@ SOUR\n1 NOTE van een bron\n"),
            "LET OP: opmerking afgekapt na tien regels: 1 keer, voor het eerst in regel 4\n"
            "LET OP: NOTE niet overgenomen: 2 keer, voor het eerst in regel 7\n");
}

// HEAD is line 1; what stands behind a line tells what becomes of it.
TEST_F(ImpVerliezenTest, ElkeRegelDieNergensBlijftStaatErEenKeerIn) {
  const std::string bytes = Ged(R"(
      0 @I1@ INDI
      1 NAME Jan /Dam/
      2 SPFX van
      1 ADOP door een oom
      2 DATE 1860
      1 EVEN sluitsteen
      2 PLAC Delft
      1 BIRT Y
      1 DEAT op zee
      1 ADDR Markt 1
      1 CHAN
      2 DATE 1 JAN 2000
      1 NOTE kort
      2 XYZ iets
      2 CONT vervolg
      1 _EIGEN a
      1 _EIGEN b
      0 @F1@ FAM
      3 RFN 12
      1 MARB
      2 AGNC stad
      0 @S1@ SOUR
      1 TYPE boek
      1 NOTE van een bron
      2 CONT meer
      0 @O1@ OBJE
      1 FILE x.jpg
      0 @N1@ NOTE los
      1 CONT meer
    )") + "0 @I9@ INDI\n\n1 NAME Piet /Dam/\n";
  Importeer(bytes);
  EXPECT_EQ(LogRegels(),
            "P-I1 - Onbekende tag: INDI-ADOP-DATE : 1860\n"
            "P-I1 - Onbekende tag: INDI-EVEN-PLAC : Delft\n"
            "P-I1 - Onbekende tag: INDI-NOTE-XYZ : iets\n"
            "P-I1 - Eigen tags van externe programma's worden niet ondersteund: INDI-_EIGEN\n"
            "?-O1 - Onbekende tag: OBJE-FILE : x.jpg\n"
            "LET OP: NOTE niet overgenomen: 2 keer, voor het eerst in regel 25\n"
            "LET OP: vervolg van een NOTE niet overgenomen: 1 keer, voor het eerst in regel 16\n"
            "LET OP: tekst niet overgenomen: 6 keer, voor het eerst in regel 5\n"
            "LET OP: regel achter TRLR niet gelezen: 2 keer, voor het eerst in regel 32\n");
}

TEST_F(ImpVerliezenTest, DeKopVanHetBestandTeltNietMee) {
  Importeer("0 HEAD\n1 SOUR ANDER\n2 TYPE x\n0 @I1@ INDI\n1 NAME Jan /Dam/\n0 TRLR\n");
  EXPECT_EQ(LogRegels(), "");
}

TEST_F(ImpVerliezenTest, DeRegelsStaanVoorHetSlotEnAchterDeAndere) {
  Importeer(Ged("0 @I1@ INDI\n1 XYZ iets\n1 FAMS @F9@\n1 NOTE a\n2 SOUR b\n3 PAGE c"));
  EXPECT_EQ(Log(),
            "P-I1 - Onbekende tag: INDI-XYZ : iets\r\n"
            "P-I1 - Onbekende tag: INDI-NOTE-SOUR-PAGE : c\r\n"
            "LET OP: verwijzing naar een record dat er niet is: 1 keer, voor het eerst in regel "
            "4\r\n"
            "LET OP: wat niet of niet heel is overgenomen staat in GEDCOM.RST: 3 regels\r\n"
            "Importeren voltooid\r\n");
}

}  // namespace
}  // namespace lb77
