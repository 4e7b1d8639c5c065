#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "exchange/GedDatum.h"

namespace lb77 {
namespace {

// The qualifier, the two dates and the log lines; a second date only when there is one.
std::string Gelezen(std::string_view tekst) {
  const GedDatumUitslag uitslag = GedDatum(tekst, "P-I1");
  std::string uit = std::string(1, uitslag.corr) + GedDatumTekst(uitslag.eerste);
  const std::string tweede = GedDatumTekst(uitslag.tweede);
  if (tweede != "00-00-0000") uit += " " + tweede;
  for (const std::string& regel : uitslag.log) uit += "; " + regel;
  return uit;
}

struct Rij {
  std::string_view tekst;
  std::string_view gelezen;
  friend std::ostream& operator<<(std::ostream& uit, const Rij& rij) {
    return uit << '"' << rij.tekst << '"';
  }
};

class GedDatumTest : public ::testing::TestWithParam<Rij> {};

TEST_P(GedDatumTest, WordtGelezen) {
  EXPECT_EQ(Gelezen(GetParam().tekst), GetParam().gelezen);
}

constexpr Rij kBepalingen[] = {
    {"12 MAR 1890", " 12-03-1890"},
    {"ABT 12 MAR 1890", "C12-03-1890"},
    {"AFT MAR 1890", "N00-03-1890"},
    {"BEF 1890", "V00-00-1890"},
    {"EST 1890", "C00-00-1890"},
    {"CAL 1890", "C00-00-1890"},
    {"ABT. 1890", "C00-00-1890"},
    {"abt 12 mar 1890", "C12-03-1890"},
    {"  ABT   1890  ", "C00-00-1890"},
    {"ABT1890", "C00-00-1890"},
    {"ABOUT 1890", " 00-00-0000; P-I1 - Onbekende datum: ABOUT 1890"},
    {"AFTER 1890", "N00-00-1890"},
    {"ABTJAN 1890", "C00-01-1890"},
    {"BEFMARCH 1900", "V00-00-0000; P-I1 - Onbekende datum: BEFMARCH 1900"},
    {"ESTIMATED JAN 1890", "C00-01-1890"},
    {"BEFORE 1890", "V00-00-1890"},
    {"ABT 12-03-1890", "C12-03-1890"},
    {"12-03-1890", " 12-03-1890"},
};
INSTANTIATE_TEST_SUITE_P(Bepalingen, GedDatumTest, ::testing::ValuesIn(kBepalingen));

constexpr Rij kTussen[] = {
    {"BET 1890 AND 31 DEC 1895", "T00-00-1890 31-12-1895"},
    {"BETWEEN 1890 AND 1895", "T00-00-1890 00-00-1895"},
    {"BET. JAN 1890 AND 01-02-1895", "T00-01-1890 01-02-1895"},
    {"BET JAN AND 1895", "T00-01-0000 00-00-1895"},
    {"BET AND 1895", "T00-00-0000 00-00-1895"},
    {"BET 1890", "N00-00-0000; P-I1 - Fout in datum: BETWEEN zonder AND met 2e datum BET 1890"},
    {"bet 1890 ?", "N00-00-0000; P-I1 - Fout in datum: BETWEEN zonder AND met 2e datum bet 1890 ?"},
    {"1890 AND 1895", " 00-00-0000; Fout in datum: AND zonder BETWEEN 1890 AND 1895"},
    {"ABT 1890 AND 1895", "C00-00-0000; Fout in datum: AND zonder BETWEEN  1890 AND 1895"},
    {"BET 18 AND 1895", "T00-00-0000 00-00-1895; P-I1 - Onbekende datum: BET 18 AND 1895"},
    {"BET 1890 AND 18", "T00-00-1890; P-I1 - Onbekende datum: BET 1890 AND 18"},
    {"BET 1 AND 2",
     "T00-00-0000; P-I1 - Onbekende datum: BET 1 AND 2; P-I1 - Onbekende datum: BET 1 AND 2"},
};
INSTANTIATE_TEST_SUITE_P(Tussen, GedDatumTest, ::testing::ValuesIn(kTussen));

constexpr Rij kOverig[] = {
    {"", " 00-00-0000"},
    {"onbekend", " 00-00-0000"},
    {"12", " 00-00-0000"},
    {"0000", " 00-00-0000"},
    {"1890 BC", " 00-00-0000; P-I1 - Onbekende datum: 1890 BC"},
    {"ABT 560 BC", " 00-00-0000; P-I1 - Onbekende datum: ABT 560 BC"},
    {"10 JAN", " 00-00-0000; P-I1 - Onbekende datum: 10 JAN"},
    {"1890 (?)", " 00-00-1890"},
    {"12 MAR 1890 (?)", " 12-03-1890"},
    {"ABT", " 00-00-0000"},
    {"INT 1890 (ca. 1890)", " 00-00-0000; P-I1 - Onbekende datum: INT 1890 (ca. 1890)"},
    {"FROM 1890 TO 1895", " 00-00-0000; P-I1 - Onbekende datum: FROM 1890 TO 1895"},
    {"12 mei 1890", " 00-00-0000; P-I1 - Onbekende datum: 12 mei 1890"},
    {"ABT 12 MEI 1890", "C00-00-0000; P-I1 - Onbekende datum: ABT 12 MEI 1890"},
};
INSTANTIATE_TEST_SUITE_P(Overig, GedDatumTest, ::testing::ValuesIn(kOverig));

// A failure halfway leaves a blank qualifier and no date.
constexpr Rij kMislukt[] = {
    {"-890", " 00-00-0000; P-I1 - Onbekende datum: -890"},
    {"ABT -12", " 00-00-0000; P-I1 - Onbekende datum: ABT -12"},
    {"-2 JAN 1890", " 00-00-0000; P-I1 - Onbekende datum: -2 JAN 1890"},
    {"BET 1890 AND -12", " 00-00-0000; P-I1 - Onbekende datum: BET 1890 AND -12"},
};
INSTANTIATE_TEST_SUITE_P(Mislukt, GedDatumTest, ::testing::ValuesIn(kMislukt));

TEST(GedDatumTekstTest, DelenWordenMetNullenGevuld) {
  EXPECT_EQ(GedDatumTekst({1, 2, 890}), "01-02-0890");
  EXPECT_EQ(GedDatumTekst({12, 11, 1890}), "12-11-1890");
  EXPECT_EQ(GedDatumTekst({}), "00-00-0000");
}

}  // namespace
}  // namespace lb77
