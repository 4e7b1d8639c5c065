#include <gtest/gtest.h>

#include <string>

#include "exchange/GedcomDatum.h"
#include "text/Maanden.h"

namespace lb77 {
namespace {

TEST(GedcomDatumToets, EenDatumStaatMetDagMaandEnJaar) {
  EXPECT_EQ(GedcomDatum("18900312"), "12 MAR 1890");
  EXPECT_EQ(GedcomDatum("18901231"), "31 DEC 1890");
}

TEST(GedcomDatumToets, ElkeMaandHeeftZijnWoord) {
  for (int maand = 1; maand <= 12; ++maand) {
    const std::string cijfers = (maand < 10 ? "0" : "") + std::to_string(maand);
    const std::string woord(kGedMaanden.at(static_cast<std::size_t>(maand) - 1));
    EXPECT_EQ(GedcomDatum("1890" + cijfers + "01"), "01 " + woord + " 1890");
  }
}

TEST(GedcomDatumToets, EenDagHoudtZijnNul) {
  EXPECT_EQ(GedcomDatum("18900302"), "02 MAR 1890");
}

TEST(GedcomDatumToets, WatOntbreektBlijftWeg) {
  EXPECT_EQ(GedcomDatum("18900300"), "MAR 1890");
  EXPECT_EQ(GedcomDatum("18900000"), "1890");
}

TEST(GedcomDatumToets, ZonderMaandStaanErVijfSpaties) {
  EXPECT_EQ(GedcomDatum("18900012"), "12     1890");
  EXPECT_EQ(GedcomDatum("18901312"), "12     1890");
  EXPECT_EQ(GedcomDatum("18901300"), "1890");
}

TEST(GedcomDatumToets, ZonderDatumStaanErNullen) {
  EXPECT_EQ(GedcomDatum(""), "0000");
  EXPECT_EQ(GedcomDatum("0"), "0000");
}

TEST(GedcomDatumToets, KorteGetallenKrijgenNullenEnLangeVerliezenCijfers) {
  EXPECT_EQ(GedcomDatum("8900312"), "12 MAR 0890");
  EXPECT_EQ(GedcomDatum("312"), "12 MAR 0000");
  EXPECT_EQ(GedcomDatum("918900312"), "12 MAR 1890");
}

TEST(GedcomDatumToets, EenBeschadigdGetalGeeftEenTekst) {
  EXPECT_EQ(GedcomDatum("-1"), "-1     0000");
}

TEST(GedcomDatumToets, ElkeCodeHeeftZijnWoord) {
  EXPECT_EQ(GedcomDatumPrefix("V"), "BEF ");
  EXPECT_EQ(GedcomDatumPrefix("C"), "ABT ");
  EXPECT_EQ(GedcomDatumPrefix("N"), "AFT ");
  EXPECT_EQ(GedcomDatumPrefix("T"), "BET ");
  for (const char* code : {"", "Z", "c", "VV"}) EXPECT_EQ(GedcomDatumPrefix(code), "") << code;
}

TEST(GedcomDatumToets, AlleenTussenHeeftEenTweedeDatum) {
  EXPECT_EQ(GedcomDatumMetCode("", "18900312", "18910000"), "12 MAR 1890");
  EXPECT_EQ(GedcomDatumMetCode("C", "18900312", "18910000"), "ABT 12 MAR 1890");
  EXPECT_EQ(GedcomDatumMetCode("X", "18900312", "18910000"), "12 MAR 1890");
  EXPECT_EQ(GedcomDatumMetCode("T", "18900000", "18951231"), "BET 1890 AND 31 DEC 1895");
  EXPECT_EQ(GedcomDatumMetCode("T", "18900000", "0"), "BET 1890 AND 0000");
}

}  // namespace
}  // namespace lb77
