#include <gtest/gtest.h>

#include "store/Veld.h"

using namespace lb77;

namespace {

constexpr TekstVeld kTekst{0, 3, "T"};
constexpr GetalVeld kGetal{3, 2, "G"};
constexpr VrijVeld kVrij{5, 1};

}  // namespace

TEST(VeldTest, AansluitendeVeldenDieHetRecordVullenSluiten) {
  EXPECT_TRUE(IsSluitend(std::array<Veld, 3>{kTekst, kGetal, kVrij}, 6));
}

TEST(VeldTest, EenGatEenOverlapOfEenTekortWordtGezien) {
  EXPECT_FALSE(IsSluitend(std::array<Veld, 2>{kTekst, kVrij}, 6));
  EXPECT_FALSE(IsSluitend(std::array<Veld, 3>{kTekst, TekstVeld{2, 3, "O"}, kVrij}, 6));
  EXPECT_FALSE(IsSluitend(std::array<Veld, 2>{kTekst, kGetal}, 6));
  EXPECT_FALSE(IsSluitend(std::array<Veld, 3>{kTekst, kGetal, kVrij}, 7));
}

TEST(VeldTest, EenGetalIsTweeBytesBreedEnEenKeuzeEen) {
  EXPECT_FALSE(IsSluitend(std::array<Veld, 1>{GetalVeld{0, 3, "G"}}, 3));
  EXPECT_FALSE(IsSluitend(std::array<Veld, 1>{DatumVeld{0, 4, "D"}}, 4));
  EXPECT_FALSE(IsSluitend(std::array<Veld, 1>{KeuzeVeld{0, 2, "K", " J"}}, 2));
}

TEST(VeldTest, EenLeegRecordHeeftBlankeTekstEnGetallenNul) {
  constexpr std::array<Veld, 3> kVelden{kTekst, kGetal, kVrij};
  constexpr auto kLeeg = LeegRecord<6>(kVelden);
  EXPECT_EQ(std::string_view(kLeeg.data(), kLeeg.size()), std::string_view("   \0\0 ", 6));
}

TEST(VeldTest, GetallenStaanMetHetLageByteVooraan) {
  std::array<char, 4> record{};
  ZetGetalOp(record, 1, 0x1234);
  EXPECT_EQ(std::string_view(record.data(), 4), std::string_view("\0\x34\x12\0", 4));
  for (const int getal : {0, 1, -1, 255, 256, 32767, -32768}) {
    ZetGetalOp(record, 1, static_cast<std::int16_t>(getal));
    EXPECT_EQ(GetalOp(record, 1), getal);
  }
}

TEST(VeldTest, TekstWordtAangevuldOfAfgekapt) {
  std::array<char, 5> record{'-', '-', '-', '-', '-'};
  constexpr TekstVeld kVeld{1, 3, "V"};
  ZetBytes(record, kVeld, "a");
  EXPECT_EQ(std::string_view(record.data(), 5), "-a  -");
  ZetBytes(record, kVeld, "abcdef");
  EXPECT_EQ(std::string_view(record.data(), 5), "-abc-");
  EXPECT_EQ(BytesVan(record, kVeld), "abc");
}
