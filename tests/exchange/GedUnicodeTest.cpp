#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "exchange/GedUnicode.h"
#include "steun/TijdelijkeMap.h"

namespace lb77 {
namespace {

using namespace std::string_view_literals;

class GedUnicodeTest : public ::testing::Test {
 protected:
  Codering Van(std::string_view bytes) {
    SchrijfBytes(Pad(), bytes);
    EXPECT_FALSE(lezer_.Open(Pad()));
    return CoderingVan(lezer_);
  }
  // All lines of a file that is converted.
  std::vector<std::string> Regels(std::string_view bytes, Codering codering) {
    SchrijfBytes(Pad(), bytes);
    EXPECT_FALSE(lezer_.Open(Pad()));
    lezer_.BeginMet(codering);
    return Rest();
  }
  std::vector<std::string> Rest() {
    std::vector<std::string> regels;
    std::string_view regel;
    while (lezer_.Volgende(regel)) regels.emplace_back(regel);
    EXPECT_FALSE(lezer_.Fout());
    return regels;
  }
  [[nodiscard]] std::string Log() const {
    std::string uit;
    lezer_.Tekens().Noteer([&uit](std::string_view regel) { uit.append(regel).append("\n"); });
    return uit;
  }
  [[nodiscard]] std::filesystem::path Pad() const { return map_.Pad() / "in.ged"; }

  TijdelijkeMap map_;
  RegelLezer lezer_;
};

using Regelrij = std::vector<std::string>;

TEST_F(GedUnicodeTest, HetVolgordetekenGaatVoorAlles) {
  EXPECT_EQ(Van("\xEF\xBB\xBF"
                "0 HEAD\n1 CHAR ANSEL\n"),
            Codering::Utf8);
  EXPECT_EQ(Van("\xFF\xFE"
                "0\0"sv),
            Codering::Utf16Laag);
  EXPECT_EQ(Van("\xFE\xFF\0"
                "0"sv),
            Codering::Utf16Hoog);
  EXPECT_EQ(Van("\xFE\xFE"), Codering::Bytes);
  EXPECT_EQ(Van(""), Codering::Bytes);
}

TEST_F(GedUnicodeTest, DeNaamInDeKopGeldtOokVoorEenBestandZonderAccenten) {
  for (const std::string_view naam : {"UTF-8", "UNICODE", "utf-8", "UTF8", " UTF-8 "}) {
    EXPECT_EQ(Van("0 HEAD\n1 CHAR " + std::string(naam) + "\n0 TRLR\n"), Codering::Utf8) << naam;
  }
  EXPECT_EQ(Van("0 HEAD\n1 CHARSET UTF-8\n0 TRLR\n"), Codering::Utf8);
  EXPECT_EQ(Van("0 HEAD\n1 CHAR UTF-8\n1 NOTE \xE9\n0 TRLR\n"), Codering::Utf8);
  EXPECT_EQ(Van("0 HEAD\n1 NOTE \xE9\n1 CHAR UTF-8\n0 TRLR\n"), Codering::Utf8);
}

TEST_F(GedUnicodeTest, EenAndereNaamBeslistOok) {
  for (const std::string_view naam : {"ANSEL", "IBMPC", "CP850", "WIN", "ASCII", "UTF-16?"}) {
    EXPECT_EQ(Van("0 HEAD\n1 CHAR " + std::string(naam) + "\n1 NOTE é\n"), Codering::Bytes) << naam;
  }
}

TEST_F(GedUnicodeTest, ZonderNaamOfMetAnsiBeslissenDeBytes) {
  for (const std::string_view kop :
       {"0 HEAD\n", "0 HEAD\n1 CHAR ANSI\n", "0 HEAD\n1 CHAR ansi\n"}) {
    const std::string begin(kop);
    EXPECT_EQ(Van(begin + "0 @I1@ INDI\n1 NAME André //\n0 TRLR\n"), Codering::Utf8);
    EXPECT_EQ(Van(begin + "0 @I1@ INDI\n1 NAME Andre //\n0 TRLR\n"), Codering::Bytes);
    EXPECT_EQ(Van(begin + "0 @I1@ INDI\n1 NAME Andr\xE9 //\n0 TRLR\n"), Codering::Bytes);
    EXPECT_EQ(Van(begin + "1 NOTE é\n1 NOTE \xE9\n0 TRLR\n"), Codering::Bytes);
    EXPECT_EQ(Van(begin + "1 NOTE \xE9\n1 NOTE é\n0 TRLR\n"), Codering::Bytes);
  }
}

TEST_F(GedUnicodeTest, EenNaamElderDanInDeKopTeltNietMee) {
  EXPECT_EQ(Van("0 HEAD\n0 @I1@ INDI\n1 CHAR ANSEL\n1 NOTE é\n"), Codering::Utf8);
  EXPECT_EQ(Van("0 HEAD\n1 NOTE é\n0 @M1@ SUBM\n1 CHAR ANSEL\n"), Codering::Bytes);
}

TEST_F(GedUnicodeTest, Utf16WordtRegelVoorRegelGelezen) {
  EXPECT_EQ(Regels("\xFF\xFE\xE9\0\r\0\n\0b\0\n\0"sv, Codering::Utf16Laag),
            (Regelrij{"\xE9", "b"}));
  EXPECT_EQ(Regels("\xFE\xFF\0\xE9\0\r\0b"sv, Codering::Utf16Hoog), (Regelrij{"\xE9", "b"}));
  EXPECT_EQ(Regels("\xFF\xFE"sv, Codering::Utf16Laag), Regelrij{});
  EXPECT_EQ(Regels("\xFF\xFE"
                   "a"sv,
                   Codering::Utf16Laag),
            Regelrij{});
}

TEST_F(GedUnicodeTest, Utf16VanVeleBlokkenKomtHeelBinnen) {
  std::string bytes = "\xFF\xFE";
  Regelrij verwacht;
  for (int i = 0; i < 40000; ++i) {
    bytes += "a\0\xE9\0\x3D\xD8\x00\xDE\n\0"sv;
    verwacht.emplace_back("a\xE9?");
  }
  EXPECT_EQ(Regels(bytes, Codering::Utf16Laag), verwacht);
  EXPECT_EQ(Log(),
            "LET OP: teken U+1F600 niet overgenomen: 40000 keer, voor het eerst in regel 1\n");
}

TEST_F(GedUnicodeTest, EenLangeRegelInUtf16) {
  std::string bytes = "\xFF\xFE";
  for (int i = 0; i < 700000; ++i) bytes += "\x14\x20"sv;
  const Regelrij regels = Regels(bytes, Codering::Utf16Laag);
  ASSERT_EQ(regels.size(), 1U);
  EXPECT_EQ(regels[0].size(), 700000U);
}

TEST_F(GedUnicodeTest, VerlorenTekensWordenPerSoortGeteld) {
  EXPECT_EQ(Regels("\xEF\xBB\xBF"
                   "a\n中é\nЖ中\n\n中",
                   Codering::Utf8),
            (Regelrij{"a", "?\xE9", "??", "", "?"}));
  EXPECT_EQ(Log(),
            "LET OP: teken U+0416 niet overgenomen: 1 keer, voor het eerst in regel 3\n"
            "LET OP: teken U+4E2D niet overgenomen: 3 keer, voor het eerst in regel 2\n");
  lezer_.Begin();
  EXPECT_EQ(Log(), "");
  EXPECT_EQ(Rest().size(), 5U);
  EXPECT_NE(Log(), "");
}

TEST_F(GedUnicodeTest, VanElkeRegelIsTeZienWatErStondEnOfErIetsVerlorenGing) {
  SchrijfBytes(Pad(), "中é\né\na");
  ASSERT_FALSE(lezer_.Open(Pad()));
  lezer_.BeginMet(Codering::Utf8);
  std::string_view regel;
  for (const auto& [bron, verloor] :
       {std::pair{"中é"sv, true}, std::pair{"é"sv, false}, std::pair{"a"sv, false}}) {
    ASSERT_TRUE(lezer_.Volgende(regel));
    EXPECT_EQ(lezer_.Bron(), bron);
    EXPECT_EQ(lezer_.VerloorTekens(), verloor);
  }
}

TEST_F(GedUnicodeTest, EenVolgendBestandWordtWeerGelezenZoalsHetIs) {
  EXPECT_EQ(Regels("é", Codering::Utf8), Regelrij{"\xE9"});
  EXPECT_TRUE(lezer_.ZetOm());
  ASSERT_FALSE(lezer_.Open(Pad()));
  EXPECT_FALSE(lezer_.ZetOm());
  EXPECT_EQ(Rest(), Regelrij{"é"});
}

}  // namespace
}  // namespace lb77
