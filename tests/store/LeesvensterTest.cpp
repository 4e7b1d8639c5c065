#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "steun/TijdelijkeMap.h"
#include "store/Bestandenset.h"
#include "store/SchijfBestand.h"
#include "store/VooruitLezen.h"

using namespace lb77;

namespace {

constexpr std::int32_t kRecords = 20'000;  // more than one stretch holds

// Record `nr` of four bytes: its number.
std::string Cijfers(std::int32_t nr) {
  return std::string("00000").append(std::to_string(nr)).substr(std::to_string(nr).size() + 1);
}

// A file of one kind, read by `bestanden` and changed by others behind its back.
struct LeesvensterTest : ::testing::Test {
  LeesvensterTest()
      : bestanden([this](const std::filesystem::path& pad, std::size_t) {
          auto schijf = std::make_unique<SchijfBestand>(4);
          EXPECT_FALSE(schijf->Open(pad));
          return Bestandenset::Opening{std::move(schijf), {}};
        }) {
    std::string bytes;
    for (std::int32_t nr = 1; nr <= kRecords; ++nr) bytes += Cijfers(nr % 10'000);
    SchrijfBytes(map / "r", bytes);
    EXPECT_FALSE(bestanden.Open(BestandSoort::Personen, map / "r"));
  }

  RecordBestand& Bestand() { return bestanden.Bestand(BestandSoort::Personen); }
  std::string Lees(std::int32_t nr) {
    std::array<char, 4> doel{};
    const Leesuitslag uitslag = Bestand().Lees(nr, doel);
    EXPECT_FALSE(uitslag.fout) << uitslag.fout.tekst;
    return {doel.data(), uitslag.gelezen};
  }
  // Another program writes a record.
  void SchrijfVreemd(std::int32_t nr, std::string_view bytes) {
    SchijfBestand ander{4};
    ASSERT_FALSE(ander.Open(map / "r"));
    ASSERT_FALSE(ander.Schrijf(nr, bytes));
  }

  TijdelijkeMap map;
  Bestandenset bestanden;
};

}  // namespace

TEST_F(LeesvensterTest, InElkeVolgordeKomenDezelfdeRecords) {
  const VooruitLezen vooruit(bestanden);
  for (std::int32_t nr = 1; nr <= kRecords; ++nr) ASSERT_EQ(Lees(nr), Cijfers(nr % 10'000)) << nr;
  for (std::int32_t nr = kRecords; nr >= 1; nr -= 7)
    ASSERT_EQ(Lees(nr), Cijfers(nr % 10'000)) << nr;
  // Away and back, as for a continuation record.
  for (std::int32_t nr = 1; nr < kRecords / 2; ++nr) {
    ASSERT_EQ(Lees(nr), Cijfers(nr % 10'000)) << nr;
    ASSERT_EQ(Lees(kRecords - nr), Cijfers((kRecords - nr) % 10'000)) << nr;
  }
}

TEST_F(LeesvensterTest, WieOpVolgordeLeestKrijgtEenHeelStukInEenKeer) {
  const VooruitLezen vooruit(bestanden);
  EXPECT_EQ(Lees(1), "0001");
  SchrijfVreemd(3, "nuuu");
  EXPECT_EQ(Lees(2), "0002");
  EXPECT_EQ(Lees(3), "0003");
}

TEST_F(LeesvensterTest, OokMiddenInHetBestand) {
  const VooruitLezen vooruit(bestanden);
  EXPECT_EQ(Lees(500), "0500");
  EXPECT_EQ(Lees(501), "0501");
  SchrijfVreemd(502, "nuuu");
  EXPECT_EQ(Lees(502), "0502");
}

TEST_F(LeesvensterTest, WieSpringtLeestVanDeSchijf) {
  const VooruitLezen vooruit(bestanden);
  EXPECT_EQ(Lees(500), "0500");
  SchrijfVreemd(502, "nuuu");
  EXPECT_EQ(Lees(502), "nuuu");
  // It did not go on from where the last read ended, so nothing was read with it.
  SchrijfVreemd(504, "toen");
  EXPECT_EQ(Lees(504), "toen");
}

TEST_F(LeesvensterTest, EenSprongLaatHetStukStaan) {
  const VooruitLezen vooruit(bestanden);
  EXPECT_EQ(Lees(1), "0001");
  EXPECT_EQ(Lees(2), "0002");
  EXPECT_EQ(Lees(19'999), "9999");
  SchrijfVreemd(3, "nuuu");
  EXPECT_EQ(Lees(3), "0003");
}

TEST_F(LeesvensterTest, ZonderVooruitLezenKomtElkRecordVanDeSchijf) {
  EXPECT_EQ(Lees(1), "0001");
  EXPECT_EQ(Lees(2), "0002");
  SchrijfVreemd(3, "nuuu");
  EXPECT_EQ(Lees(3), "nuuu");
  {
    const VooruitLezen vooruit(bestanden);
    EXPECT_EQ(Lees(4), "0004");
    EXPECT_EQ(Lees(5), "0005");
  }
  SchrijfVreemd(6, "toen");
  EXPECT_EQ(Lees(6), "toen");
}

TEST_F(LeesvensterTest, WatZelfGeschrevenWordtIsErMeteen) {
  const VooruitLezen vooruit(bestanden);
  EXPECT_EQ(Lees(1), "0001");
  EXPECT_EQ(Lees(2), "0002");
  ASSERT_FALSE(Bestand().Schrijf(3, std::string_view("zelf")));
  EXPECT_EQ(Lees(3), "zelf");
  ASSERT_FALSE(Bestand().Kap(12));
  EXPECT_EQ(Lees(4), "");
}

TEST_F(LeesvensterTest, HetEindeVanHetBestandBlijftHetEinde) {
  SchrijfBytes(map / "r", "aaaabbbbcc");
  const VooruitLezen vooruit(bestanden);
  EXPECT_EQ(Lees(1), "aaaa");
  EXPECT_EQ(Lees(2), "bbbb");
  EXPECT_EQ(Lees(3), "cc");
  EXPECT_EQ(Lees(4), "");
  EXPECT_EQ(Lees(5), "");
}

TEST_F(LeesvensterTest, RecordNulIsErOokDanNiet) {
  const VooruitLezen vooruit(bestanden);
  std::array<char, 4> doel{};
  EXPECT_EQ(Bestand().Lees(0, doel).fout.tekst, "Onjuist recordnummer");
  EXPECT_EQ(Lees(1), "0001");
}

TEST_F(LeesvensterTest, EenGeslotenBestandIsGeenBezwaar) {
  bestanden.Sluit(BestandSoort::Personen);
  const VooruitLezen vooruit(bestanden);
  std::array<char, 4> doel{};
  EXPECT_EQ(Bestand().Lees(2, doel).fout.tekst, "Bestand is niet open");
}
