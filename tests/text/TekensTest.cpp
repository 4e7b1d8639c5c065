#include <gtest/gtest.h>

#include <cstddef>
#include <string_view>

#include "text/Bytes.h"
#include "text/Letterlijk.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

constexpr std::string_view kKlein =
    "abcdefghijklmnopqrstuvwxyzàáâãäåæçèéêëìíîïðñòóôõöøùúûüýþšœžÿ"_w;
constexpr std::string_view kGroot =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖØÙÚÛÜÝÞŠŒŽŸ"_w;

TEST(KastTest, KentElkeLetterMetZijnHoofdletter) {
  EXPECT_EQ(Hoofdletters(kKlein), kGroot);
  EXPECT_EQ(KleineLetters(kGroot), kKlein);
  EXPECT_EQ(Hoofdletters(kGroot), kGroot);
  EXPECT_EQ(KleineLetters(kKlein), kKlein);
}

TEST(KastTest, LaatAlleAndereBytesZoalsZeZijn) {
  for (std::size_t i = 0; i < 256; ++i) {
    const char teken = static_cast<char>(i);
    if (kKlein.find(teken) == std::string_view::npos) {
      EXPECT_EQ(Hoofdletter(teken), teken) << i;
    }
    if (kGroot.find(teken) == std::string_view::npos) {
      EXPECT_EQ(KleineLetter(teken), teken) << i;
    }
  }
}

TEST(KastTest, LaatMaalGedeeldEnScherpeSMetRust) {
  EXPECT_EQ(Hoofdletters("×÷ß"_w), "×÷ß"_w);
  EXPECT_EQ(KleineLetters("×÷ß"_w), "×÷ß"_w);
}

TEST(KastTest, GelijkZonderKastLetOpLengteEnAccenten) {
  EXPECT_TRUE(GelijkZonderKast("Élise Œuvre"_w, "éLISE œUVRE"_w));
  EXPECT_TRUE(GelijkZonderKast("", ""));
  EXPECT_FALSE(GelijkZonderKast("Jan", "Jans"));
  EXPECT_FALSE(GelijkZonderKast("Elise", "Élise"_w));
}

TEST(SoortTest, KentCijfersEnLettersVanAlle256Bytes) {
  for (std::size_t i = 0; i < 256; ++i) {
    const char teken = static_cast<char>(i);
    const bool letter = kKlein.find(teken) != std::string_view::npos ||
                        kGroot.find(teken) != std::string_view::npos || i == 0xDF;
    EXPECT_EQ(IsLetter(teken), letter) << i;
    EXPECT_EQ(IsCijfer(teken), i >= 48 && i <= 57) << i;
  }
}

TEST(TrimTest, NeemtAlleenBlanksWeg) {
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(TrimLinks("  a b  "), "a b  ");
  EXPECT_EQ(TrimRechts("  a b  "), "  a b");
  EXPECT_EQ(Trim("\t a \xA0"), "\t a \xA0");
}

TEST(TrimTest, MaaktAlleenBlanksLeeg) {
  EXPECT_EQ(Trim("   "), "");
  EXPECT_EQ(TrimLinks("   "), "");
  EXPECT_EQ(TrimRechts("   "), "");
  EXPECT_EQ(Trim(""), "");
}

TEST(BeginEindeTest, LettenOpHoofdletters) {
  EXPECT_TRUE(BegintMet("verm. Breda", "verm. "));
  EXPECT_FALSE(BegintMet("Verm. Breda", "verm. "));
  EXPECT_FALSE(BegintMet("ver", "verm"));
  EXPECT_TRUE(EindigtOp("Breda (?)", "(?)"));
  EXPECT_FALSE(EindigtOp("Breda", "Z"));
}

}  // namespace
}  // namespace lb77
