// The drawing of a chain of kinship, worked out by hand.
#include <gtest/gtest.h>

#include "reports/VerwantTekening.h"

namespace lb77 {
namespace {

using enum VerwantSoort;

std::string Tekening(const std::vector<VerwantEntry>& keten) {
  std::string uit;
  for (const std::string& regel : TekenVerwantschap(keten)) uit += regel + "\n";
  return uit;
}

TEST(VerwantTekeningTest, ZonderKetenIsErNiets) {
  EXPECT_EQ(Tekening({}), "");
}

TEST(VerwantTekeningTest, EenOuderStaatBovenEnEenKindOnder) {
  EXPECT_EQ(Tekening({{12, 0, Ouder}, {7, 0, Begin}}),
            "12        \n"
            "|         \n"
            "7         \n");
  EXPECT_EQ(Tekening({{12, 0, Kind}, {7, 0, Begin}}),
            "7         \n"
            "|         \n"
            "12        \n");
}

TEST(VerwantTekeningTest, EenPartnerStaatErnaast) {
  EXPECT_EQ(Tekening({{12, 0, Partner}, {7, 0, Begin}}), "7     -**-----12    \n");
}

// Behind a number that fills its cell the sign has a cell of its own.
TEST(VerwantTekeningTest, TussenPartnersStaatAltijdEenTeken) {
  EXPECT_EQ(Tekening({{12345, 0, Partner}, {3, 0, Partner}, {32767, 0, Partner}, {12, 0, Begin}}),
            "12    -**-----32767 -**-      ----3 -**-----12345 \n");
  EXPECT_EQ(Tekening({{14, 0, Partner}, {13, 0, Partner}, {32767, 0, Begin}}),
            "32767 -**-----13    -**-      ----14    \n");
}

TEST(VerwantTekeningTest, LijnenStaanNaastHetTekenOnderHunPersoon) {
  EXPECT_EQ(
      Tekening({{90, 0, Kind}, {14, 0, Partner}, {13, 0, Partner}, {12, 0, Ouder}, {2, 0, Begin}}),
      "12    -**-----13    -**-      ----14    \n"
      "|                             |         \n"
      "2                             90        \n");
}

TEST(VerwantTekeningTest, BroerEnZusStaanNaastElkaar) {
  EXPECT_EQ(Tekening({{14, 0, Kind}, {12, 0, Ouder}, {16, 0, Begin}}),
            "12        +         \n"
            "|         |         \n"
            "16        14        \n");
}

TEST(VerwantTekeningTest, OudersVanEenKindStaanNaastElkaar) {
  EXPECT_EQ(Tekening({{14, 0, Ouder}, {12, 0, Kind}, {16, 0, Begin}}),
            "16        14        \n"
            "|         |         \n"
            "12        +         \n");
}

TEST(VerwantTekeningTest, EenLangeKetenGaatVanLinksNaarRechts) {
  EXPECT_EQ(Tekening({{90, 0, Kind},
                      {80, 0, Ouder},
                      {70, 0, Partner},
                      {60, 0, Kind},
                      {50, 0, Ouder},
                      {40, 0, Ouder},
                      {2, 0, Begin}}),
            "50        +         80        +         \n"
            "|         |         |         |         \n"
            "40        60    -**-----70    90        \n"
            "|                                       \n"
            "2                                       \n");
}

// The sheet would have as many cells as the square of the chain.
TEST(VerwantTekeningTest, EenTrapDieTeGrootIsWordtNietGetekend) {
  std::vector<VerwantEntry> keten;
  for (std::int16_t nr = 2; nr < 30000; nr += 2) {
    keten.push_back({nr, 0, Ouder});
    keten.push_back({static_cast<std::int16_t>(nr + 1), 0, Partner});
  }
  keten.push_back({30001, 0, Begin});
  EXPECT_EQ(TekenVerwantschap(keten), std::vector<std::string>{});
  keten.erase(keten.begin(), keten.end() - 1999);  // 1,000 generations of 1,000 columns
  EXPECT_EQ(TekenVerwantschap(keten).size(), 1999U);
  keten.insert(keten.begin(), {{1, 0, Ouder}, {1, 0, Partner}});
  EXPECT_EQ(TekenVerwantschap(keten), std::vector<std::string>{});
}

TEST(VerwantTekeningTest, DeLangsteKetenWordtGetekend) {
  std::vector<VerwantEntry> keten;
  for (std::int16_t nr = 2; nr < 32767; ++nr) keten.push_back({nr, 0, Ouder});
  keten.push_back({32767, 0, Begin});
  EXPECT_EQ(TekenVerwantschap(keten).size(), 65531U);
  for (VerwantEntry& entry : keten) {
    if (entry.soort == Ouder) entry.soort = Partner;
  }
  const auto regels = TekenVerwantschap(keten);
  ASSERT_EQ(regels.size(), 1U);
  EXPECT_EQ(regels.front().size(), 655230U);  // all but nine of the numbers fill their cells
}

}  // namespace
}  // namespace lb77
