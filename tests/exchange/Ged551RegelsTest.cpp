#include <gtest/gtest.h>

#include "exchange/FaalUitvoer.h"
#include "exchange/Ged551Regels.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

class Ged551RegelsTest : public ::testing::Test {
 protected:
  // The lines of one value.
  std::string Van(int level, std::string_view tag, std::string_view waarde) {
    regels.Regel(level, tag, waarde);
    return uit.Neem();
  }

  FaalUitvoer uit;
  Ged551Regels regels{uit};
};

TEST_F(Ged551RegelsTest, HetBestandBegintMetEenVolgordeteken) {
  regels.Begin();
  EXPECT_EQ(uit.Regels(),
            "\xEF\xBB\xBF"
            "0 HEAD\n");
}

TEST_F(Ged551RegelsTest, DeTekstIsUtf8) {
  EXPECT_EQ(Van(1, "OCCU", "caféhouder € "_w), "1 OCCU caf\xC3\xA9houder \xE2\x82\xAC\n");
}

TEST_F(Ged551RegelsTest, ZonderWaardeStaatAlleenDeTagEr) {
  EXPECT_EQ(Van(1, "BIRT", ""), "1 BIRT\n");
  EXPECT_EQ(Van(1, "BIRT", "  "), "1 BIRT\n");
}

TEST_F(Ged551RegelsTest, SpatiesEnStuurtekensZijnGeenTekst) {
  for (const char* leeg : {"", " ", "\t", " \x7F\n "}) EXPECT_FALSE(Ged551Regels::HeeftTekst(leeg));
  for (const char* tekst : {"a", " \t~"}) EXPECT_TRUE(Ged551Regels::HeeftTekst(tekst));
}

TEST_F(Ged551RegelsTest, EenApenstaartjeWordtVerdubbeld) {
  EXPECT_EQ(Van(1, "NOTE", "jan@@piet @"), "1 NOTE jan@@@@piet @@\n");
}

TEST_F(Ged551RegelsTest, EenStuurtekenWordtEenSpatieEnWordtGeteld) {
  EXPECT_EQ(Van(1, "NOTE",
                "a\tb\x7F"
                "c\n"),
            "1 NOTE a b c\n");
  EXPECT_EQ(regels.Stuurtekens(), 3);
}

TEST_F(Ged551RegelsTest, EenRegelIsMetZijnEindeHoogstens255Tekens) {
  const std::string past(255 - 2 - 7, 'a');
  EXPECT_EQ(Van(1, "NOTE", past), "1 NOTE " + past + "\n");
  EXPECT_EQ(Van(1, "NOTE", past + "b"), "1 NOTE " + past + "\n2 CONC b\n");
}

TEST_F(Ged551RegelsTest, TekensTellenGeenBytes) {
  const std::string past(246, '\xE9');
  const std::string regel = Van(1, "NOTE", past);
  EXPECT_EQ(regel.size(), 7 + 2 * 246 + 1U);
  EXPECT_EQ(Van(1, "NOTE", past + "b"), regel + "2 CONC b\n");
}

TEST_F(Ged551RegelsTest, EenVerdubbeldApenstaartjeTeltTweeMaalEnBlijftBijeen) {
  const std::string past(245, 'a');
  EXPECT_EQ(Van(1, "NOTE", past + "@b"), "1 NOTE " + past + "\n2 CONC @@b\n");
}

TEST_F(Ged551RegelsTest, ErWordtInEenWoordGeknipt) {
  const std::string vol(243, 'a');
  EXPECT_EQ(Van(1, "NOTE", vol + "b  cd"), "1 NOTE " + vol + "\n2 CONC b  cd\n");
  EXPECT_EQ(Van(1, "NOTE", vol + "b cd"), "1 NOTE " + vol + "b c\n2 CONC d\n");
}

TEST_F(Ged551RegelsTest, EenVervolgVanCONTStaatErnaast) {
  const std::string vol(246, 'a');
  const std::vector<std::string> tekst{"kop", vol + "bc"};
  regels.Tekst(1, "NOTE", tekst);
  EXPECT_EQ(uit.Regels(), "1 NOTE kop\n2 CONT " + vol + "\n2 CONC bc\n");
}

TEST_F(Ged551RegelsTest, EenTekstVanAlleenSpatiesHoudtOp) {
  const std::string spaties(600, ' ');
  EXPECT_EQ(Van(1, "NOTE", "a" + spaties + "b"), "1 NOTE a" + std::string(245, ' ') + "\n2 CONC " +
                                                     std::string(246, ' ') + "\n2 CONC " +
                                                     std::string(109, ' ') + "b\n");
}

TEST_F(Ged551RegelsTest, RecordsEnVerwijzingenHebbenEenId) {
  regels.Record('I', 12, "INDI");
  regels.Verwijzing(1, "FAMC", 'F', 3);
  EXPECT_EQ(uit.Regels(), "0 @I12@ INDI\n1 FAMC @F3@\n");
}

TEST_F(Ged551RegelsTest, EigenTagsWordenGeteld) {
  regels.Regel(2, "_LBCORR", "C");
  regels.Regel(2, "_LBCORR", "N");
  regels.Verwijzing(2, "_LBPLTS", 'P', 2);
  regels.Record('P', 2, "_LBPLTS");
  regels.Regel(2, "DATE", "1890");
  const std::map<std::string, int, std::less<>> verwacht{{"_LBCORR", 2}, {"_LBPLTS", 2}};
  EXPECT_EQ(regels.EigenTags(), verwacht);
}

}  // namespace
}  // namespace lb77
