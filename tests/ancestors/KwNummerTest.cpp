#include <gtest/gtest.h>

#include "ancestors/KwNummer.h"

namespace lb77 {
namespace {

TEST(KwNrGroterGelijk, VultHetKortsteNummerLinksAan) {
  EXPECT_FALSE(KwNrGroterGelijk("999", "1000"));
  EXPECT_TRUE(KwNrGroterGelijk("1000", "999"));
}

TEST(KwNrGroterGelijk, GeldtVoorGelijkeNummersEnNietVoorBlanco) {
  EXPECT_TRUE(KwNrGroterGelijk("12", "12"));
  EXPECT_TRUE(KwNrGroterGelijk(" 12  ", "12"));
}

TEST(KwNrGroterGelijk, VergelijktVanLinks) {
  EXPECT_TRUE(KwNrGroterGelijk("21", "19"));
  EXPECT_FALSE(KwNrGroterGelijk("19", "21"));
}

TEST(KwNrGroterGelijk, KaptNietsVanEenLangNummerAf) {
  const std::string lang(40, '1');
  EXPECT_TRUE(KwNrGroterGelijk(lang + "2", lang + "1"));
  EXPECT_FALSE(KwNrGroterGelijk(lang + "1", lang + "2"));
}

TEST(KwNrGroterGelijk, EenLeegNummerStaatOnderAlleAndere) {
  EXPECT_FALSE(KwNrGroterGelijk("", "0"));
  EXPECT_TRUE(KwNrGroterGelijk("0", ""));
}

TEST(KwNrDubbel, VerdubbeltEnTeltDeBitErbij) {
  EXPECT_EQ(KwNrDubbel("1", 0), "2");
  EXPECT_EQ(KwNrDubbel("1", 1), "3");
  EXPECT_EQ(KwNrDubbel("5", 0), "10");
  EXPECT_EQ(KwNrDubbel("49", 1), "99");
  EXPECT_EQ(KwNrDubbel("99", 1), "199");
}

TEST(KwNrDubbel, GaatVerderDanVierentwintigCijfers) {
  EXPECT_EQ(KwNrDubbel("999999999999999999999999", 1), "1999999999999999999999999");
}

TEST(KwNrGeneratie, TeltVanafEen) {
  EXPECT_EQ(KwNrGeneratie("1"), 1);
  EXPECT_EQ(KwNrGeneratie("2"), 2);
  EXPECT_EQ(KwNrGeneratie("3"), 2);
  EXPECT_EQ(KwNrGeneratie("4"), 3);
  EXPECT_EQ(KwNrGeneratie("7"), 3);
  EXPECT_EQ(KwNrGeneratie("8"), 4);
}

TEST(KwNrGeneratie, IsNulVoorGeenNummerEnVoorNul) {
  EXPECT_EQ(KwNrGeneratie(""), 0);
  EXPECT_EQ(KwNrGeneratie("0"), 0);
}

TEST(KwNrSchoon, LaatBlancoEnVoorloopnullenVallen) {
  EXPECT_EQ(KwNrSchoon(" 0012 "), "12");
  EXPECT_EQ(KwNrSchoon("000"), "0");
  EXPECT_EQ(KwNrSchoon(""), "");
}

TEST(KindLetter, GaatAchterHetAlfabetInTweeLettersVerder) {
  EXPECT_EQ(KindLetter(1), "a");
  EXPECT_EQ(KindLetter(26), "z");
  EXPECT_EQ(KindLetter(27), "aa");
  EXPECT_EQ(KindLetter(29), "ac");
}

TEST(Kwartiernummer, KentZijnFamilie) {
  const Kwartiernummer vijf("5");
  EXPECT_EQ(vijf.Vader().Tekst(), "10");
  EXPECT_EQ(vijf.Moeder().Tekst(), "11");
  EXPECT_EQ(vijf.Kind().Tekst(), "2");
  EXPECT_EQ(vijf.Generatie(), 3);
}

TEST(Kwartiernummer, TachtigGeneratiesMoedersKomenBijDeProbandTerug) {
  Kwartiernummer nummer;
  for (int i = 0; i < 90; ++i) nummer = nummer.Moeder();
  EXPECT_EQ(nummer.Generatie(), 91);
  for (int i = 0; i < 90; ++i) nummer = nummer.Kind();
  EXPECT_EQ(nummer.Tekst(), "1");
}

}  // namespace
}  // namespace lb77
