#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "exchange/GedDatumDeel.h"

namespace lb77 {
namespace {

struct Rij {
  std::string_view tekst;
  int dag;
  int maand;
  int jaar;
  friend std::ostream& operator<<(std::ostream& uit, const Rij& rij) {
    return uit << '"' << rij.tekst << '"';
  }
};

class GedDatumDeelTest : public ::testing::TestWithParam<Rij> {};

TEST_P(GedDatumDeelTest, WordtGelezen) {
  const DatumDelen datum = GedDatumDeel(GetParam().tekst);
  EXPECT_EQ(datum.dag, GetParam().dag);
  EXPECT_EQ(datum.maand, GetParam().maand);
  EXPECT_EQ(datum.jaar, GetParam().jaar);
}

constexpr Rij kLeesbaar[] = {
    {"", 0, 0, 0},
    {"12-03-1890", 12, 3, 1890},
    {"00-00-0000", 0, 0, 0},
    {"99-99-9999", 99, 99, 9999},
    {"JAN", 0, 1, 0},
    {"890", 0, 0, 890},
    {"1890", 0, 0, 1890},
    {"18 90", 0, 0, 1890},
    {"JANX", 0, 0, 0},
    {"JAN890", 0, 1, 890},
    {"1890/91", 0, 0, 1890},
    {"JAN 1890", 0, 1, 1890},
    {"1 JAN 1890", 1, 1, 1890},
    {"12 JAN 890", 12, 1, 890},
    {"12 JAN 1890", 12, 1, 1890},
    {"JAN 1890/91", 0, 1, 1890},
    {"1 JAN 1890/91", 1, 1, 1890},
    {"12 JAN 1890/91", 12, 1, 1890},
    {"45 DEC 1890", 45, 12, 1890},
    {" 1 2 F E B 1 8 9 0 ", 12, 2, 1890},
};
INSTANTIATE_TEST_SUITE_P(Leesbaar, GedDatumDeelTest, ::testing::ValuesIn(kLeesbaar));

constexpr Rij kMaanden[] = {
    {"JAN", 0, 1, 0}, {"FEB", 0, 2, 0},  {"MAR", 0, 3, 0},  {"APR", 0, 4, 0},
    {"MAY", 0, 5, 0}, {"JUN", 0, 6, 0},  {"JUL", 0, 7, 0},  {"AUG", 0, 8, 0},
    {"SEP", 0, 9, 0}, {"OCT", 0, 10, 0}, {"NOV", 0, 11, 0}, {"DEC", 0, 12, 0},
};
INSTANTIATE_TEST_SUITE_P(Maanden, GedDatumDeelTest, ::testing::ValuesIn(kMaanden));

class OnleesbareDatumTest : public ::testing::TestWithParam<std::string_view> {};

TEST_P(OnleesbareDatumTest, HeeftDagMinEen) {
  EXPECT_EQ(GedDatumDeel(GetParam()).dag, -1);
}

// One character, two, five, thirteen and more; and words that are no month, length by length.
INSTANTIATE_TEST_SUITE_P(Vorm, OnleesbareDatumTest,
                         ::testing::Values("1", "12", "  ", "18901", "1234567890123", "MEI",
                                           "MEI890", "MEI 1890", "1 MEI 1890", "12 MEI 890",
                                           "12 MEI 1890", "MEI 1890/91", "1 MEI 1890/91",
                                           "12 MEI 1890/91", "12-03-189O", "12/03/1890", "3 5 1890",
                                           "jan"));

// kept: by its length of ten this is read as a month and a year, whatever it looks like.
TEST(GedDatumDeelLengteTest, DeLengteBepaaltDeVorm) {
  EXPECT_EQ(GedDatumDeel("1JAN1890/1").dag, -1);
}

}  // namespace
}  // namespace lb77
