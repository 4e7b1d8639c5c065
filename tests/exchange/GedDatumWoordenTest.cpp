// Dates as people write them: what they are rewritten to, and what is read of them.
#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "exchange/GedDatum.h"
#include "exchange/GedDatumWoorden.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

struct Rij {
  std::string_view tekst;
  std::string_view verwacht;
  friend std::ostream& operator<<(std::ostream& uit, const Rij& rij) {
    return uit << '"' << rij.tekst << '"';
  }
};

// The qualifier, the two dates (a second one only when there is one) and the number of log lines.
std::string Gelezen(std::string_view tekst) {
  const GedDatumUitslag uitslag = GedDatumOpnieuw(tekst, tekst, "P-I1", GedDatum(tekst, "P-I1"));
  std::string uit = std::string(1, uitslag.corr) + GedDatumTekst(uitslag.eerste);
  const std::string tweede = GedDatumTekst(uitslag.tweede);
  if (tweede != "00-00-0000") uit += " " + tweede;
  for (const std::string& regel : uitslag.log) uit += "; " + regel;
  return uit;
}

class GedDatumWoordenTest : public ::testing::TestWithParam<Rij> {};

TEST_P(GedDatumWoordenTest, WordtNaarDeStandaardGeschreven) {
  EXPECT_EQ(GedDatumWoorden(GetParam().tekst), GetParam().verwacht);
}

constexpr Rij kMaanden[] = {
    {"3 januari 1950", "3 JAN 1950"},
    {"3 january 1950", "3 JAN 1950"},
    {"3 Januar 1950", "3 JAN 1950"},
    {"3 janvier 1950", "3 JAN 1950"},
    {"3 janv. 1950", "3 JAN 1950"},
    {"3 j\xE4nner 1950", "3 JAN 1950"},
    {"3 februari 1950", "3 FEB 1950"},
    {"3 febr. 1950", "3 FEB 1950"},
    {"3 f\xE9vr. 1950", "3 FEB 1950"},
    {"3 F\xC9VRIER 1950", "3 FEB 1950"},
    {"3 maart 1950", "3 MAR 1950"},
    {"12 mrt. 1890", "12 MAR 1890"},
    {"3 march 1950", "3 MAR 1950"},
    {"3 m\xE4rz 1950", "3 MAR 1950"},
    {"3 mars 1950", "3 MAR 1950"},
    {"3 april 1950", "3 APR 1950"},
    {"3 avril 1950", "3 APR 1950"},
    {"12 mei 1890", "12 MAY 1890"},
    {"3 mai 1950", "3 MAY 1950"},
    {"27 June 1850", "27 JUN 1850"},
    {"3 juni 1950", "3 JUN 1950"},
    {"3 juin 1950", "3 JUN 1950"},
    {"3 juli 1950", "3 JUL 1950"},
    {"3 juillet 1950", "3 JUL 1950"},
    {"3 augustus 1950", "3 AUG 1950"},
    {"3 ao\xFBt 1950", "3 AUG 1950"},
    {"3 sept. 1950", "3 SEP 1950"},
    {"3 september 1950", "3 SEP 1950"},
    {"3 okt 1950", "3 OCT 1950"},
    {"3 octobre 1950", "3 OCT 1950"},
    {"3 november 1950", "3 NOV 1950"},
    {"3 december 1950", "3 DEC 1950"},
    {"3 Dezember 1950", "3 DEC 1950"},
    {"3 d\xE9"
     "c. 1950",
     "3 DEC 1950"},
    {"december 1950", "DEC 1950"},
    {"3 mei 890", "3 MAY 890"},
    {"3 mei 1750/51", "3 MAY 1750/51"},
    {"13. Dezember 1950", "13 DEC 1950"},
    {"  3   mei   1950 ", "3 MAY 1950"},
};
INSTANTIATE_TEST_SUITE_P(Maanden, GedDatumWoordenTest, ::testing::ValuesIn(kMaanden));

constexpr Rij kCijfers[] = {
    {"3-12-1950", "3 DEC 1950"},
    {"03.12.1950", "3 DEC 1950"},
    {"1950-12-03", "3 DEC 1950"},
    {"3-12-950", "3 DEC 950"},
    {"0-12-1950", "DEC 1950"},
    {"0-0-1950", "1950"},
    {"29-2-1904", "29 FEB 1904"},
    {"ABT 3-12-1950", "ABT 3 DEC 1950"},
    {"EST. 3-12-1950", "EST. 3 DEC 1950"},
    {"BETWEEN 3-12-1950 AND 4 mei 1951", "BETWEEN 3 DEC 1950 AND 4 MAY 1951"},
};
INSTANTIATE_TEST_SUITE_P(Cijfers, GedDatumWoordenTest, ::testing::ValuesIn(kCijfers));

// What is not certain stays as it is, in capitals.
constexpr Rij kBlijft[] = {
    {"", ""},
    {"3 december 50", "3 DECEMBER 50"},
    {"3/12/1950", "3/12/1950"},
    {"3-12.1950", "3-12.1950"},
    {"3-12-50", "3-12-50"},
    {"3-13-1950", "3-13-1950"},
    {"31-4-1950", "31-4-1950"},
    {"29-2-1900", "29-2-1900"},
    {"3-0-1950", "3-0-1950"},
    {"3-12-19501", "3-12-19501"},
    {"3-12-1950-1", "3-12-1950-1"},
    {"123-12-1950", "123-12-1950"},
    {"3--1950", "3--1950"},
    {"1950.12.03", "1950.12.03"},
    {"1950-12-3", "1950-12-3"},
    {"1950-12", "1950-12"},
    {"3mei1950", "3MEI1950"},
    {"3-mei-1950", "3-MEI-1950"},
    {"mei", "MEI"},
    {"3 mei", "3 MEI"},
    {"mei 3 1950", "MEI 3 1950"},
    {"3 4 mei 1950", "3 4 MEI 1950"},
    {"3 mei 1950 12", "3 MEI 1950 12"},
    {"1949 mei 1950", "1949 MEI 1950"},
    {"3 mei.. 1950", "3 MEI.. 1950"},
    {"3 meij 1950", "3 MEIJ 1950"},
    {"3 me 1950", "3 ME 1950"},
    {". 3 . 1950", ". 3 . 1950"},
    // A word that is no qualifier of the standard would be lost.
    {"na mei 1890", "NA MEI 1890"},
    {"ca. maart 1890", "CA. MAART 1890"},
    {"vr 3 mei 1890", "VR 3 MEI 1890"},
    {"ABT: 3 mei 1890", "ABT: 3 MEI 1890"},
    {"Abt: 03-02-1909", "ABT: 03-02-1909"},
    {"circa 1909-02-03", "CIRCA 1909-02-03"},
};
INSTANTIATE_TEST_SUITE_P(Blijft, GedDatumWoordenTest, ::testing::ValuesIn(kBlijft));

class GedDatumOpnieuwTest : public ::testing::TestWithParam<Rij> {};

TEST_P(GedDatumOpnieuwTest, WordtGelezen) {
  EXPECT_EQ(Gelezen(GetParam().tekst), GetParam().verwacht);
}

constexpr Rij kGelezen[] = {
    {"3 december 1950", " 03-12-1950"},
    {"ABT 12 mrt. 1890", "C12-03-1890"},
    {"AFTER 27 June 1850", "N27-06-1850"},
    {"BEF. december 1950", "V00-12-1950"},
    {"BET 3 mei 1850 AND 1851-06-04", "T03-05-1850 04-06-1851"},
    {"BET 1850 AND juni 1851", "T00-00-1850 00-06-1851"},
    {"3.12.1950.", " 03-12-1950"},
    {"na mei 1890", " 00-00-0000; P-I1 - Onbekende datum: na mei 1890"},
    {"BET na mei 1890 AND juni 1891",
     "T00-00-0000 00-06-1891; P-I1 - Onbekende datum: BET na mei 1890 AND juni 1891"},
    // Half of a period is better than nothing.
    {"BET 3 mei 1850 AND 3/12/1951",
     "T03-05-1850; P-I1 - Onbekende datum: BET 3 mei 1850 AND 3/12/1951"},
    // What can be read at once is never read anew.
    {"03-12-1950", " 03-12-1950"},
    {"onbekend", " 00-00-0000"},
    {"3/12/1950", " 00-00-0000; P-I1 - Onbekende datum: 3/12/1950"},
    {"3 mei", " 00-00-0000; P-I1 - Onbekende datum: 3 mei"},
    {"FROM 3 mei 1850 TO 1851", " 00-00-0000; P-I1 - Onbekende datum: FROM 3 mei 1850 TO 1851"},
    {"BET 3 mei 1850",
     "N00-00-0000; P-I1 - Fout in datum: BETWEEN zonder AND met 2e datum BET 3 mei 1850"},
};
INSTANTIATE_TEST_SUITE_P(Opnieuw, GedDatumOpnieuwTest, ::testing::ValuesIn(kGelezen));

TEST(GedDatumOpnieuwLosTest, DeLogregelHoudtDeTekstVanHetBestand) {
  const GedDatumUitslag uitslag = GedDatumOpnieuw(
      "3 d\x82"
      "b 1950",
      "3 d\xE9"
      "b 1950",
      "P-I1",
      GedDatum("3 d\x82"
               "b 1950",
               "P-I1"));
  ASSERT_EQ(uitslag.log.size(), 1U);
  EXPECT_EQ(uitslag.log[0],
            "P-I1 - Onbekende datum: 3 d\x82"
            "b 1950");
}

// Whether the date holds all of its text.
TEST(GedDatumHeelTest, WatErNietInPastMaaktHemNietHeel) {
  for (const std::string_view tekst :
       {"", "1890", "890", "12 MAR 1890", "MAR 1890", "12 MAR 890", "12-03-1890", "ABT 1890",
        "BET 1890 AND 12 MAR 1895", "1890.", "BET JAN AND 1895", "3 december 1950"}) {
    EXPECT_TRUE(GedDatumOpnieuw(tekst, tekst, "", GedDatum(tekst, "")).heel) << tekst;
  }
  for (const std::string_view tekst :
       {"1890/91", "12 MAR 1890/91", "1890 (?)", "onbekend", "12", "BET 1890", "1890 AND 1895",
        "10 JAN", "3/12/1950", "-890", "1x MAR 1890", "189x", "BET 1890 AND 1895/96",
        "JAN18901/1"}) {
    EXPECT_FALSE(GedDatumOpnieuw(tekst, tekst, "", GedDatum(tekst, "")).heel) << tekst;
  }
}

}  // namespace
}  // namespace lb77
