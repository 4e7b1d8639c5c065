#include <gtest/gtest.h>

#include "steun/ProefSet.h"
#include "store/PersoonVelden.h"
#include "store/Recordbeeld.h"
#include "text/Letterlijk.h"

using namespace lb77;
using Boxen = std::vector<std::string>;

namespace {

struct PersoonVeldenTest : ::testing::Test {
  void Veld(std::string_view veld, std::string_view waarde, std::size_t plaats,
            std::string_view bytes) {
    set.Persoon.LeegPersBuffer();
    VerwachtVeld(set.Persoon, veld, waarde, plaats, bytes);
  }
  std::string Bytes() const { return {set.Persoon.Bytes().data(), set.Persoon.Bytes().size()}; }
  ProefSet set;
};

// Gillis Jansen, by hand.
std::string Gillis() {
  return Beeld(128, {{0, "van der Berg             "},
                     {25, "Gillis \x82               1\x8A     "},
                     {55, B("\x02\x00")},  // birth place 2
                     {57, B("\xCA\x09")},  // 25 June: 2506
                     {59, B("\x0A\x07")},  // 1802
                     {61, "C"},            // about
                     {62, B("\x13\x27")},  // baptism place 10003: presumed 3
                     {64, B("\x06\x00")},  // June
                     {66, B("\x0A\x07")},  // 1802
                     {68, B("\x25\x4E")},  // place of death 20005: questionable 5
                     {70, B("\xC4\x09")},  // day 25: 2500
                     {72, B("\x4E\x07")},  // 1870
                     {74, "N"},            // after
                     {75, B("\x00\x01")},  // burial place 256
                     {77, B("\x00\x00")},  //
                     {79, B("\x4F\x07")},  // 1871
                     {81, "NH"},           // denomination
                     {83, "M"},            // man
                     {84, B("\x07\x00")},  // relations 7 and 8
                     {86, B("\x08\x00")},  //
                     {88, B("\x50\xFB")},  // continuation in 1200
                     {90, B("\x03\x00")},  // parents 3
                     {92, "smid                          "},
                     {122, B("\x09\x00")},  // first remark 9
                     {124, B("\x01\x10")},  // surname and general: 4097
                     {126, "C"},            // cremated
                     {127, " "}});
}

}  // namespace

TEST_F(PersoonVeldenTest, EenRecordMetDeHandIsHetzelfdeAlsHetGelezene) {
  set.bestanden.SluitAlles();
  SchrijfBytes(set.paden.prs, LeesBytes(set.paden.prs) + Gillis());
  set.Heropen();
  PersoonLB77& p = set.Persoon;
  ASSERT_TRUE(p.Lees(2));
  EXPECT_EQ(p.AchterNaamTrue(), "van der Berg");
  EXPECT_EQ(p.VoorNaamTrue(), "Gillis é               1è"_w);
  EXPECT_EQ(p.GebPlaatsNr(), 2);
  EXPECT_EQ(p.GebDagMaand(), 2506);
  EXPECT_EQ(p.GebJaar(), 1802);
  EXPECT_EQ(p.GebCorr(), "C");
  EXPECT_EQ(p.DoopPlaatsNr(), 10003);
  EXPECT_EQ(p.DoopDagMaand(), 6);
  EXPECT_EQ(p.DoopJaar(), 1802);
  EXPECT_EQ(p.OvlPlaatsNr(), 20005);
  EXPECT_EQ(p.OvDagMaand(), 2500);
  EXPECT_EQ(p.OvJaar(), 1870);
  EXPECT_EQ(p.OvlCorr(), "N");
  EXPECT_EQ(p.BegrPlaatsNr(), 256);
  EXPECT_EQ(p.BegrDagMaand(), 0);
  EXPECT_EQ(p.BegrJaar(), 1871);
  EXPECT_EQ(p.Religie(), "NH");
  EXPECT_EQ(p.Geslacht(), "M");
  EXPECT_EQ(p.relatie1(), 7);
  EXPECT_EQ(p.relatie2(), 8);
  EXPECT_EQ(p.relatie3(), -1200);
  EXPECT_EQ(p.RelNrOuders(), 3);
  EXPECT_EQ(p.beroep(), "smid");
  EXPECT_EQ(p.OpmRecord(), 9);
  EXPECT_EQ(p.OpmCode(), 4097);
  EXPECT_TRUE(p.BegrCrem());
  EXPECT_FALSE(p.IsVolgRecord());
  EXPECT_EQ(Bytes(), Gillis());
}

TEST_F(PersoonVeldenTest, HetAdministratierecordVanEenNieuwBestand) {
  EXPECT_EQ(LeesBytes(set.paden.prs), Beeld(128, {{0, B("Pers.bestand Lijnboom\0   ")},
                                                  {25, "Versie 1.60                   "},
                                                  {55, B("\0\0")},
                                                  {57, B("\x57\0")},  // 87
                                                  {59, B("\0\0")},
                                                  {61, " "},
                                                  {62, B("\0\0\0\0\0\0")},
                                                  {68, B("\0\0\0\0\0\0")},
                                                  {74, " "},
                                                  {75, B("\0\0\0\0\0\0")},
                                                  {81, "  "},
                                                  {83, " "},
                                                  {84, B("\0\0\0\0\0\0\0\0")},
                                                  {92, "                              "},
                                                  {122, B("\0\0\0\0")},
                                                  {126, "  "}}));
}

TEST_F(PersoonVeldenTest, EenLeegRecordIsBlankEnNul) {
  EXPECT_EQ(std::string(persoonveld::kLeeg.data(), 128),
            Beeld(128, {{0, std::string(55, ' ')},
                        {55, B("\0\0\0\0\0\0")},
                        {61, " "},
                        {62, B("\0\0\0\0\0\0\0\0\0\0\0\0")},
                        {74, " "},
                        {75, B("\0\0\0\0\0\0")},
                        {81, "   "},
                        {84, B("\0\0\0\0\0\0\0\0")},
                        {92, std::string(30, ' ')},
                        {122, B("\0\0\0\0")},
                        {126, "  "}}));
}

TEST_F(PersoonVeldenTest, TekstveldenVeranderenPreciesHunBytes) {
  Veld("Achternaam", " Jansen ", 0, "Jansen                   ");
  Veld("Voornaam", "Jan", 25, "Jan                           ");
  Veld("GebCorr", "Z", 61, "Z");
  Veld("OvlCorr", "T", 74, "T");
  Veld("DoopReligie", "R", 81, "R ");
  Veld("Geslacht", "V", 83, "V");
  Veld("Beroep", "bakker", 92, "bakker                        ");
}

TEST_F(PersoonVeldenTest, GetalveldenVeranderenPreciesHunBytes) {
  Veld("GebPlaats", "513", 55, B("\x01\x02"));
  Veld("GebJaar", " 1850 ", 59, B("\x3A\x07"));
  Veld("DoopPlaats", "1", 62, B("\x01\x00"));
  Veld("OvlPlaats", "2", 68, B("\x02\x00"));
  Veld("BegrPlaats", "3", 75, B("\x03\x00"));
  Veld("Relatie1", "4", 84, B("\x04\x00"));
  Veld("Relatie2", "5", 86, B("\x05\x00"));
  Veld("Relatie3", "-6", 88, B("\xFA\xFF"));
  Veld("Ouders", "7", 90, B("\x07\x00"));
  Veld("OpmRecord", "8", 122, B("\x08\x00"));
  Veld("OpmCode", "4096", 124, B("\x00\x10"));
}

TEST_F(PersoonVeldenTest, DatumveldenVeranderenDagmaandEnJaar) {
  Veld("GebDatum", "03-05-1850", 57, B("\x31\x01\x3A\x07"));
  Veld("DoopDatum", "00.05.1850", 64, B("\x05\x00\x3A\x07"));
  Veld("OvlDatum", "25/00/1850", 70, B("\xC4\x09\x3A\x07"));
  Veld("BegrDatum", "00-00-1850", 77, B("\x00\x00\x3A\x07"));
  Veld("GebDatum", "  -  -    ", 57, B("\0\0\0\0"));
}

TEST_F(PersoonVeldenTest, HetGeboortejaarAlleenHeeftEenEigenNaam) {
  Veld("GebJaar", "1850", 59, B("\x3A\x07"));
  for (const char* naam : {"DoopJaar", "OvJaar", "BegrJaar", "GebDagMaand", "Religie"}) {
    Veld(naam, "1850", 0, "");
    EXPECT_EQ(set.Getoond(), Boxen{"! uitroep \"Opslaan van " + std::string(naam) +
                                   " is nog niet geprogrammeerd\""});
  }
}

TEST_F(PersoonVeldenTest, DeCrematieIsEenGetal) {
  Veld("BegrCrem", "1", 126, "C");
  Veld("BegrCrem", "-1", 126, "C");
  Veld("BegrCrem", "0", 126, " ");
  Veld("BegrCrem", "", 126, " ");
}

TEST_F(PersoonVeldenTest, EenGetalDatNietPastMeldtDatEnVerandertNiets) {
  for (const char* getal : {"40000", "32768", "-32769", "99999999999999"}) {
    Veld("Ouders", getal, 90, B("\0\0"));
    EXPECT_EQ(set.Getoond(), Boxen{"! stop \"Het maximum van 32767 records is bereikt\""});
  }
  Veld("Ouders", "32767", 90, B("\xFF\x7F"));
  Veld("Ouders", "-32768", 90, B("\x00\x80"));
}

TEST_F(PersoonVeldenTest, TekstGaatNaarCodetabel437MetUitwijkenEnWordtAfgekapt) {
  // The euro has no place in the table: it becomes two characters.
  Veld("Achternaam", "€ uro"_w, 0, "C= uro                   ");
  Veld("Voornaam", "€€€€€€€€€€€€€€€€€€€€€€€€€€€€€€"_w, 25, "C=C=C=C=C=C=C=C=C=C=C=C=C=C=C=");
  Veld("Achternaam", "ø"_w, 0, "\xED                        ");
  EXPECT_EQ(set.Persoon.AchterNaamTrue(), "ø"_w);
}
