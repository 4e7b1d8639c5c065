#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <string_view>

#include "text/Letterlijk.h"
#include "text/Tekens.h"
#include "text/Translitteratie.h"

namespace lb77 {
namespace {

struct Geval {
  char32_t codepunt = 0;
  std::string_view verwacht;
};

TEST(TranslitteratieTest, GeeftDeBasisletterVanLettersMetAccent) {
  constexpr std::array kGevallen = {
      Geval{U'ā', "a"}, Geval{U'Ć', "C"}, Geval{U'đ', "d"},   Geval{U'ğ', "g"},   Geval{U'ı', "i"},
      Geval{U'İ', "I"}, Geval{U'ł', "l"}, Geval{U'ŉ', "'n"},  Geval{U'ő', "o"},   Geval{U'Ř', "R"},
      Geval{U'ş', "s"}, Geval{U'ţ', "t"}, Geval{U'ű', "u"},   Geval{U'ŷ', "y"},   Geval{U'ż', "z"},
      Geval{U'ſ', "s"}, Geval{U'ǎ', "a"}, Geval{U'ș', "s"},   Geval{U'ț', "t"},   Geval{U'Ɇ', "E"},
      Geval{U'ɏ', "y"}, Geval{U'Ḁ', "A"}, Geval{U'ẁ', "w"},   Geval{U'ẞ', "SS"},  Geval{U'ế', "e"},
      Geval{U'ỳ', "y"}, Geval{U'ỿ', "y"}, Geval{U'Ǽ', "Æ"_w}, Geval{U'ǿ', "ø"_w},
  };
  for (const Geval& geval : kGevallen) {
    EXPECT_EQ(Translitteratie(geval.codepunt), geval.verwacht)
        << static_cast<unsigned>(geval.codepunt);
  }
}

TEST(TranslitteratieTest, SchrijftLigaturenUit) {
  EXPECT_EQ(Translitteratie(U'ĳ'), "ij");
  EXPECT_EQ(Translitteratie(U'Ĳ'), "IJ");
  EXPECT_EQ(Translitteratie(U'ﬁ'), "fi");
  EXPECT_EQ(Translitteratie(U'ﬆ'), "st");
  EXPECT_EQ(Translitteratie(U'ǆ'), "dz");
}

TEST(TranslitteratieTest, KentStrepenAanhalingstekensEnBlanks) {
  EXPECT_EQ(Translitteratie(0x2010), "-");
  EXPECT_EQ(Translitteratie(0x2012), "–"_w);
  EXPECT_EQ(Translitteratie(0x2015), "—"_w);
  EXPECT_EQ(Translitteratie(0x2212), "-");
  EXPECT_EQ(Translitteratie(0x201B), "‘"_w);
  EXPECT_EQ(Translitteratie(0x2032), "'");
  EXPECT_EQ(Translitteratie(0x2033), "\"");
  EXPECT_EQ(Translitteratie(0x02BC), "'");
  EXPECT_EQ(Translitteratie(0x2009), " ");
  EXPECT_EQ(Translitteratie(0x3000), " ");
}

TEST(TranslitteratieTest, KentTekensVanGenealogen) {
  EXPECT_EQ(Translitteratie(U'♀'), "V");
  EXPECT_EQ(Translitteratie(U'♂'), "M");
  EXPECT_EQ(Translitteratie(U'⚭'), "x");
  EXPECT_EQ(Translitteratie(U'✝'), "†"_w);
}

TEST(TranslitteratieTest, KentBreukenCijfersEnRomeinseGetallen) {
  EXPECT_EQ(Translitteratie(U'⅓'), "1/3");
  EXPECT_EQ(Translitteratie(U'Ⅻ'), "XII");
  EXPECT_EQ(Translitteratie(U'ⅿ'), "m");
  EXPECT_EQ(Translitteratie(U'⁴'), "4");
  EXPECT_EQ(Translitteratie(U'₎'), ")");
}

TEST(TranslitteratieTest, MaaktVolleBreedteGewoon) {
  EXPECT_EQ(Translitteratie(U'！'), "!");
  EXPECT_EQ(Translitteratie(U'Ａ'), "A");
  EXPECT_EQ(Translitteratie(U'？'), "?");
  EXPECT_EQ(Translitteratie(U'～'), "~");
}

TEST(TranslitteratieTest, LaatMerkenZonderBreedteWeg) {
  for (const char32_t codepunt : {0x0301, 0x036F, 0x200B, 0x200E, 0x202C, 0x2060, 0xFE0F, 0xFEFF}) {
    EXPECT_EQ(Translitteratie(codepunt), "") << static_cast<unsigned>(codepunt);
  }
}

TEST(TranslitteratieTest, HeeftNietsVoorAnderTekenschrift) {
  for (const char32_t codepunt : {U'Ж', U'ω', U'中', U'א', U'Ɣ', U'😀', char32_t{0xFFFD}}) {
    EXPECT_EQ(Translitteratie(codepunt), std::nullopt) << static_cast<unsigned>(codepunt);
  }
}

TEST(TranslitteratieTest, KentElkeLetterVanDeLatijnseUitbreidingenAenEBijvoegsel) {
  const auto telLetters = [](char32_t van, char32_t tot) {
    int aantal = 0;
    for (char32_t codepunt = van; codepunt <= tot; ++codepunt) {
      const auto tekst = Translitteratie(codepunt);
      if (tekst && !tekst->empty() && (IsLetter(tekst->front()) || tekst->front() == '\'')) {
        ++aantal;
      }
    }
    return aantal;
  };
  EXPECT_EQ(telLetters(0x0100, 0x017F), 128);
  EXPECT_EQ(telLetters(0x1E00, 0x1EFF), 256);
}

TEST(TranslitteratieTest, HoudtHoofdletterEnKleineLetterUitElkaar) {
  for (char32_t codepunt = 0x1E00; codepunt < 0x1E96; codepunt += 2) {
    const std::string_view groot = Translitteratie(codepunt).value_or("");
    const std::string_view klein = Translitteratie(codepunt + 1).value_or("");
    EXPECT_EQ(KleineLetters(groot), klein) << static_cast<unsigned>(codepunt);
    EXPECT_NE(groot, klein) << static_cast<unsigned>(codepunt);
  }
}

}  // namespace
}  // namespace lb77
