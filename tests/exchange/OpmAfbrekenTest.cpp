#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "exchange/OpmAfbreken.h"

namespace lb77 {
namespace {

using Regelrij = std::vector<std::string>;

// The lines that hold something; behind the first empty one nothing may stand.
Regelrij Afgebroken(std::string_view tekst) {
  Regelrij uit;
  bool voorbij = false;
  for (const std::string& regel : BreekAf(tekst)) {
    EXPECT_FALSE(voorbij && !regel.empty());
    voorbij = voorbij || regel.empty();
    if (!regel.empty()) uit.push_back(regel);
  }
  return uit;
}

std::string X(std::size_t aantal, char teken = 'x') {
  return std::string(aantal, teken);
}

TEST(OpmAfbrekenTest, EenKorteTekstIsEenRegel) {
  EXPECT_EQ(Afgebroken("een tekst"), (Regelrij{"een tekst"}));
}

TEST(OpmAfbrekenTest, NietsIsGeenRegel) {
  EXPECT_EQ(Afgebroken(""), Regelrij{});
  EXPECT_EQ(Afgebroken(X(200, ' ')), Regelrij{});
}

TEST(OpmAfbrekenTest, SpatiesAanBeideKantenGaanVerloren) {
  EXPECT_EQ(Afgebroken("  een  tekst  "), (Regelrij{"een  tekst"}));
}

TEST(OpmAfbrekenTest, TachtigTekensPassen) {
  EXPECT_EQ(Afgebroken(X(80)), (Regelrij{X(80)}));
}

TEST(OpmAfbrekenTest, EenSpatieAchterHetTachtigsteTekenEindigtDeRegel) {
  EXPECT_EQ(Afgebroken(X(80) + " y"), (Regelrij{X(80), "y"}));
}

TEST(OpmAfbrekenTest, EenSpatieAlsTachtigsteTekenEindigtDeRegel) {
  EXPECT_EQ(Afgebroken(X(79) + " y"), (Regelrij{X(79), "y"}));
}

TEST(OpmAfbrekenTest, EenWoordDatNietPastGaatNaarDeVolgendeRegel) {
  EXPECT_EQ(Afgebroken(X(76) + " woorden"), (Regelrij{X(76), "woorden"}));
}

TEST(OpmAfbrekenTest, SpatiesTussenTweeRegelsGaanVerloren) {
  EXPECT_EQ(Afgebroken(X(78) + "     woorden"), (Regelrij{X(78), "woorden"}));
}

TEST(OpmAfbrekenTest, EenTeLangWoordEindigtDeOpmerking) {
  EXPECT_EQ(Afgebroken(X(81) + " en meer"), Regelrij{});
  EXPECT_EQ(Afgebroken("begin " + X(81) + " en meer"), (Regelrij{"begin"}));
}

TEST(OpmAfbrekenTest, HoogstensTienRegelsWordenGenomen) {
  std::string tekst;
  Regelrij regels;
  for (char teken = 'a'; teken <= 'k'; ++teken) {
    tekst += X(80, teken) + " ";
    if (teken < 'k') regels.push_back(X(80, teken));
  }
  EXPECT_EQ(Afgebroken(tekst), regels);
}

TEST(OpmAfbrekenTest, EenTekstVanEenMegabyteWordtTienRegels) {
  std::string tekst;
  while (tekst.size() < 1 << 20) tekst += "woord ";
  EXPECT_EQ(Afgebroken(tekst).size(), 10U);
  EXPECT_EQ(Afgebroken(X(1 << 20)), Regelrij{});
}

TEST(OpmAfbrekenTest, PastGeheelZegtOfErIetsVervalt) {
  std::string tekst;
  for (int i = 0; i < 10; ++i) tekst += X(80) + " ";
  EXPECT_TRUE(PastGeheel(""));
  EXPECT_TRUE(PastGeheel("  een tekst  "));
  EXPECT_TRUE(PastGeheel(tekst));
  EXPECT_FALSE(PastGeheel(tekst + "x"));
  EXPECT_FALSE(PastGeheel(X(81)));
}

}  // namespace
}  // namespace lb77
