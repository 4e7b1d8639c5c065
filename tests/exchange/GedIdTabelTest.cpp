#include <gtest/gtest.h>

#include <string>

#include "exchange/GedIdTabel.h"

namespace lb77 {
namespace {

TEST(GedIdTabelTest, EenVerwijzingIsHetNummerVanHaarId) {
  GedIdTabel tabel;
  tabel.Voeg("I1", 7);
  tabel.Voeg("I2", 8);
  EXPECT_EQ(tabel.NrVan("@I1@"), 7);
  EXPECT_EQ(tabel.NrVan("@I2@"), 8);
}

TEST(GedIdTabelTest, EenIdDatErNietIsIsNul) {
  GedIdTabel tabel;
  tabel.Voeg("I1", 7);
  EXPECT_EQ(tabel.NrVan("@I2@"), 0);
  EXPECT_EQ(tabel.NrVan("@i1@"), 0);
}

TEST(GedIdTabelTest, EenVerwijzingHeeftTekensAanBeideKantenEnIetsErtussen) {
  GedIdTabel tabel;
  tabel.Voeg("", 6);
  tabel.Voeg("I1", 7);
  for (const std::string_view tekst : {"", "@", "@@", "I1", "@I1", "I1@", " @I1@"}) {
    EXPECT_EQ(tabel.NrVan(tekst), 0) << tekst;
  }
}

TEST(GedIdTabelTest, VanTweeRijenMetEenIdGaanVerwijzingenNaarDeEerste) {
  GedIdTabel tabel;
  tabel.Voeg("I1", 7);
  tabel.Voeg("I1", 8);
  EXPECT_EQ(tabel.NrVan("@I1@"), 7);
  EXPECT_EQ(tabel.Nr(0), 7);
  EXPECT_EQ(tabel.Nr(1), 8);
  EXPECT_EQ(tabel.Aantal(), 2U);
}

TEST(GedIdTabelTest, IdsWordenAfgekaptOpTweeentwintigTekens) {
  const std::string lang(22, 'x');
  GedIdTabel tabel;
  tabel.Voeg(lang + "een", 7);
  tabel.Voeg(lang + "twee", 8);
  EXPECT_EQ(tabel.NrVan("@" + lang + "twee@"), 7);
  EXPECT_EQ(tabel.NrVan("@" + lang + "@"), 7);
  EXPECT_EQ(tabel.NrVan("@" + lang.substr(1) + "@"), 0);
}

TEST(GedIdTabelTest, SpatiesDieEenIdAanvullenTellenNiet) {
  GedIdTabel tabel;
  tabel.Voeg("I1", 7);
  EXPECT_EQ(tabel.NrVan("@I1   @"), 7);
  EXPECT_EQ(tabel.NrVan("@ I1@"), 0);
}

TEST(GedIdTabelTest, EenRijDieErNietIsIsNul) {
  GedIdTabel tabel;
  EXPECT_EQ(tabel.Nr(0), 0);
}

TEST(GedIdTabelTest, AlleRijenWordenGevondenTerwijlDeTabelGroeit) {
  GedIdTabel tabel;
  for (int i = 1; i <= 32000; ++i)
    tabel.Voeg("I" + std::to_string(i), static_cast<std::int16_t>(i));
  for (int i = 1; i <= 32000; ++i) ASSERT_EQ(tabel.NrVan("@I" + std::to_string(i) + "@"), i);
}

TEST(GedIdTabelTest, SpatiesAchterEenVerwijzingTellenNiet) {
  GedIdTabel tabel;
  tabel.Voeg("I1", 7);
  EXPECT_EQ(tabel.NrVan("@I1@  "), 7);
}

}  // namespace
}  // namespace lb77
