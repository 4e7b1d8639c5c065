#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <optional>

#include "text/Getallen.h"

namespace lb77 {
namespace {

TEST(GetalwaardeTest, LeestCijfersTotHetEersteAndereTeken) {
  EXPECT_EQ(Getalwaarde("123"), 123);
  EXPECT_EQ(Getalwaarde("12a4"), 12);
  EXPECT_EQ(Getalwaarde("12.5"), 12);
  EXPECT_EQ(Getalwaarde("12 34"), 12);
}

TEST(GetalwaardeTest, SlaatBlanksVooraanOver) {
  EXPECT_EQ(Getalwaarde("   7"), 7);
  EXPECT_EQ(Getalwaarde("\t7"), 0);
}

TEST(GetalwaardeTest, LeestHoogstensEenTeken) {
  EXPECT_EQ(Getalwaarde("-7"), -7);
  EXPECT_EQ(Getalwaarde(" +7"), 7);
  EXPECT_EQ(Getalwaarde("--7"), 0);
  EXPECT_EQ(Getalwaarde("- 7"), 0);
}

TEST(GetalwaardeTest, IsNulZonderCijfers) {
  EXPECT_EQ(Getalwaarde(""), 0);
  EXPECT_EQ(Getalwaarde("   "), 0);
  EXPECT_EQ(Getalwaarde("-"), 0);
  EXPECT_EQ(Getalwaarde("abc"), 0);
}

TEST(GetalwaardeTest, BlijftOpDeGrensVanHetTypeStaan) {
  using Grens = std::numeric_limits<std::int32_t>;
  EXPECT_EQ(Getalwaarde("2147483647"), Grens::max());
  EXPECT_EQ(Getalwaarde("2147483648"), Grens::max());
  EXPECT_EQ(Getalwaarde("-2147483648"), Grens::min());
  EXPECT_EQ(Getalwaarde("-2147483649"), Grens::min());
  EXPECT_EQ(Getalwaarde("99999999999999999999999999999999"), Grens::max());
  EXPECT_EQ(Getalwaarde("-99999999999999999999999999999999"), Grens::min());
}

TEST(NaarInt16Test, GeeftNietsBuitenHetBereik) {
  EXPECT_EQ(NaarInt16(32767), std::optional<std::int16_t>(32767));
  EXPECT_EQ(NaarInt16(-32768), std::optional<std::int16_t>(-32768));
  EXPECT_EQ(NaarInt16(32768), std::nullopt);
  EXPECT_EQ(NaarInt16(-32769), std::nullopt);
  EXPECT_EQ(NaarInt16(40000), std::nullopt);
}

TEST(TelOpTest, LooptNooitRond) {
  EXPECT_EQ(TelOp(32766, 1), std::optional<std::int16_t>(32767));
  EXPECT_EQ(TelOp(32767, 1), std::nullopt);
  EXPECT_EQ(TelOp(-32768, -1), std::nullopt);
  EXPECT_EQ(TelOp(1, std::numeric_limits<std::int32_t>::max()), std::nullopt);
  EXPECT_EQ(TelOp(-1, -2), std::optional<std::int16_t>(-3));
}

TEST(MaximumTest, NoemtHetHoogsteRecordnummer) {
  EXPECT_EQ(kMaximumBereikt, "Het maximum van 32767 records is bereikt");
  EXPECT_EQ(kMaxRecords, 32767);
}

TEST(GetalTekstTest, SchrijftCijfersMetHetTekenVooraan) {
  EXPECT_EQ(GetalTekst(0), "0");
  EXPECT_EQ(GetalTekst(-12), "-12");
  EXPECT_EQ(GetalTekst(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
}

TEST(NrTekstTest, IsLeegVoorNul) {
  EXPECT_EQ(NrTekst(0), "");
  EXPECT_EQ(NrTekst(12), "12");
  EXPECT_EQ(NrTekst(-3), "-3");
}

TEST(NulGevuldTest, VultMetNullenTotDeBreedte) {
  EXPECT_EQ(NulGevuld(5, 2), "05");
  EXPECT_EQ(NulGevuld(0, 4), "0000");
  EXPECT_EQ(NulGevuld(-5, 4), "-005");
  EXPECT_EQ(NulGevuld(123, 2), "123");
  EXPECT_EQ(NulGevuld(7, 0), "7");
}

}  // namespace
}  // namespace lb77
