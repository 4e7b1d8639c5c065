#include <gtest/gtest.h>

#include <string>

#include "exchange/GedRegel.h"

namespace lb77 {
namespace {

constexpr std::string_view kGeenLevel = "GEDCOM Fout: Regel begint niet met een levelnummer";
constexpr std::string_view kFoutLevel = "GEDCOM Fout: Onjuist levelnummer";

// "level|id|tag|waarde", or the error.
std::string Gesplitst(std::string_view regel) {
  const GedDelen delen = GedRegel(regel);
  if (!delen.fout.empty()) return std::string(delen.fout);
  std::string uit = std::to_string(delen.level) + "|";
  return uit.append(delen.id).append("|").append(delen.tag).append("|").append(delen.waarde);
}

TEST(GedRegelTest, NiveauLabelEnWaarde) {
  EXPECT_EQ(Gesplitst("1 NAME Jan /Jansen/"), "1||NAME|Jan /Jansen/");
}

TEST(GedRegelTest, EenLabelZonderWaarde) {
  EXPECT_EQ(Gesplitst("0 HEAD"), "0||HEAD|");
}

TEST(GedRegelTest, EenIdStaatZonderZijnTekens) {
  EXPECT_EQ(Gesplitst("0 @I1@ INDI"), "0|I1|INDI|");
  EXPECT_EQ(Gesplitst("0 @N1@ NOTE een tekst"), "0|N1|NOTE|een tekst");
}

TEST(GedRegelTest, SpatiesVoorDeRegelTellenNiet) {
  EXPECT_EQ(Gesplitst("   2 DATE 1890"), "2||DATE|1890");
}

TEST(GedRegelTest, EenTabIsGeenSpatie) {
  EXPECT_EQ(Gesplitst("\t1 NAME Jan"), kFoutLevel);
  EXPECT_EQ(Gesplitst("1\tNAME"), kGeenLevel);
}

TEST(GedRegelTest, SpatiesAchterEenLabelHorenErNietBij) {
  EXPECT_EQ(Gesplitst("1 BIRT "), "1||BIRT|");
  EXPECT_EQ(Gesplitst("0 @I1@ INDI "), "0|I1|INDI|");
}

TEST(GedRegelTest, AlleSpatiesVanDeWaardeHorenErbij) {
  EXPECT_EQ(Gesplitst("2 CONT  twee  woorden "), "2||CONT| twee  woorden ");
  EXPECT_EQ(Gesplitst("2 CONT  "), "2||CONT| ");
}

TEST(GedRegelTest, TweeSpatiesAchterHetNiveauLatenHetLabelLeeg) {
  EXPECT_EQ(Gesplitst("1  NAME"), "1|||NAME");
}

TEST(GedRegelTest, ZonderSpatieIsErGeenNiveau) {
  for (const std::string_view regel : {"", "1", "HEAD", "   ", "@I1@"}) {
    EXPECT_EQ(Gesplitst(regel), kGeenLevel) << regel;
  }
}

TEST(GedRegelTest, EenNiveauZonderLabelIsGeenRegel) {
  EXPECT_EQ(Gesplitst("1 "), kGeenLevel);
}

TEST(GedRegelTest, EenNiveauIsEenGetal) {
  EXPECT_EQ(Gesplitst("HEAD tekst"), kFoutLevel);
  EXPECT_EQ(Gesplitst("-1 NAME Jan"), kFoutLevel);
  EXPECT_EQ(Gesplitst("A1 NAME Jan"), kFoutLevel);
}

TEST(GedRegelTest, WatMetEenNulBegintIsNiveauNul) {
  EXPECT_EQ(Gesplitst("0x HEAD"), "0||HEAD|");
  EXPECT_EQ(Gesplitst("00 HEAD"), "0||HEAD|");
}

TEST(GedRegelTest, CijfersTotHetEersteAndereTekenZijnHetNiveau) {
  EXPECT_EQ(Gesplitst("02 DATE 1890"), "2||DATE|1890");
  EXPECT_EQ(Gesplitst("1a NAME Jan"), "1||NAME|Jan");
}

TEST(GedRegelTest, NiveausLopenTotNegenennegentig) {
  EXPECT_EQ(Gesplitst("99 DIEP"), "99||DIEP|");
  EXPECT_EQ(Gesplitst("100 DIEP"), kFoutLevel);
  EXPECT_EQ(Gesplitst("99999999999999999999 DIEP"), kFoutLevel);
}

TEST(GedRegelTest, CharsetGeldtAlsChar) {
  EXPECT_EQ(Gesplitst("1 CHARSET ANSEL"), "1||CHAR|ANSEL");
  EXPECT_EQ(Gesplitst("0 @C@ CHARSET"), "0|C|CHAR|");
}

TEST(GedRegelTest, EenVerwijzingAlsLaatsteWoordIsEenLabel) {
  EXPECT_EQ(Gesplitst("1 @F1@"), "1||@F1@|");
}

TEST(GedRegelTest, TekensMetNietsErtussenZijnEenLeegId) {
  EXPECT_EQ(Gesplitst("0 @@ INDI"), "0||INDI|");
  EXPECT_EQ(Gesplitst("0 @ INDI"), "0||INDI|");
}

TEST(GedRegelTest, EenTekenMaaktGeenId) {
  EXPECT_EQ(Gesplitst("0 @I1 INDI"), "0||@I1|INDI");
}

TEST(GedRegelTest, NulBytesGaanDoor) {
  using namespace std::string_view_literals;
  EXPECT_EQ(Gesplitst("1 NAME a\0b"sv), std::string("1||NAME|a\0b", 11));
  EXPECT_EQ(Gesplitst("\0\0\0"sv), kGeenLevel);
}

TEST(GedRegelTest, EenRegelVanEenMegabyteIsEenRegel) {
  const std::string waarde(1 << 20, 'x');
  EXPECT_EQ(GedRegel("1 NOTE " + waarde).tag, "NOTE");
  EXPECT_EQ(Gesplitst("1 NOTE " + waarde).size(), waarde.size() + 8);
  EXPECT_EQ(Gesplitst(waarde), kGeenLevel);
}

TEST(GedRegelTest, EenLabelHeeftEenLangsteLengte) {
  const std::string kort(kLangsteTag, 'A');
  const std::string past = "1 " + kort + " x";
  EXPECT_EQ(GedRegel(past).tag, kort);
  const std::string lang = "1 " + kort + "A x";
  EXPECT_EQ(GedRegel(lang).tag, kort);
  EXPECT_EQ(GedRegel(lang).waarde, "x");
}

}  // namespace
}  // namespace lb77
