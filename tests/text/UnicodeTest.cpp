#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "text/Bytes.h"
#include "text/Letterlijk.h"
#include "text/Unicode.h"
#include "text/Utf8.h"

namespace lb77 {
namespace {

// Windows bytes 128 to 159.
constexpr std::array<char32_t, 32> kCodepunten = {
    U'€', 0x81, U'‚', U'ƒ', U'„', U'…', U'†', U'‡', U'ˆ', U'‰', U'Š', U'‹', U'Œ', 0x8D, U'Ž', 0x8F,
    0x90, U'‘', U'’', U'“', U'”', U'•', U'–', U'—', U'˜', U'™', U'š', U'›', U'œ', 0x9D, U'ž', U'Ÿ',
};

char32_t Verwacht(std::size_t byte) {
  return byte >= 128 && byte < 160 ? kCodepunten[byte - 128] : static_cast<char32_t>(byte);
}

TEST(CodepuntTest, HeeftVoorElkeByteEenCodepuntDatTerugkomt) {
  for (std::size_t i = 0; i < 256; ++i) {
    const char teken = static_cast<char>(i);
    EXPECT_EQ(CodepuntVan(teken), Verwacht(i)) << i;
    EXPECT_EQ(TekenVan(Verwacht(i)), teken) << i;
    EXPECT_EQ(CodepuntNaarWindows(Verwacht(i)), Byte(i)) << i;
  }
}

TEST(CodepuntTest, KentDeAndereBesturingstekensBoven127Niet) {
  EXPECT_EQ(CodepuntNaarWindows(0x80), std::nullopt);
  EXPECT_EQ(CodepuntNaarWindows(0x9F), std::nullopt);
}

TEST(Utf8Test, ElkeByteGaatHeenEnTerug) {
  for (std::size_t i = 0; i < 256; ++i) {
    EXPECT_EQ(Utf8NaarWindows(WindowsNaarUtf8(Byte(i))), Byte(i)) << i;
    EXPECT_EQ(Utf8NaarWindowsRuim(WindowsNaarUtf8(Byte(i))), Byte(i)) << i;
  }
}

TEST(Utf8Test, ZetHeleTekstenOm) {
  EXPECT_EQ(WindowsNaarUtf8("één €"_w), "één €");
  EXPECT_EQ(Utf8NaarWindows("Curaçao – ‘Œuvre’"), "Curaçao – ‘Œuvre’"_w);
  EXPECT_EQ(Utf8NaarWindows(""), "");
}

TEST(Utf8Test, TranslitereertWatWindowsNietHeeft) {
  EXPECT_EQ(Utf8NaarWindows("Dvořák, Łódź, Ĳsselstein"), "Dvorák, Lódz, IJsselstein"_w);
  EXPECT_EQ(Utf8NaarWindows("A\u2010B\u00A0C\u200BD"), "A-B\xA0\x43\x44");
}

TEST(Utf8Test, VoegtLosseAccentenMetDeLetterSamen) {
  EXPECT_EQ(Utf8NaarWindows("e\u0301e\u0300e\u0302n\u0303o\u0308A\u030Ac\u0327s\u030CZ\u030C"),
            "éèêñöÅçšŽ"_w);
  EXPECT_EQ(Utf8NaarWindows("Y\u0308y\u0308"), "Ÿÿ"_w);
}

TEST(Utf8Test, LaatEenLosAccentZonderZulkeLetterWeg) {
  EXPECT_EQ(Utf8NaarWindows("g\u0301 \u0301r\u030C"), "g r");
  EXPECT_EQ(Utf8NaarWindows("\u0301"), "");
}

TEST(Utf8Test, WeigertWatNietTeSchrijvenIs) {
  EXPECT_EQ(Utf8NaarWindows("Иван"), std::nullopt);
  EXPECT_EQ(Utf8NaarWindows("Jan 😀"), std::nullopt);
}

TEST(Utf8Test, ZetRuimVraagtekensVoorWatNietTeSchrijvenIs) {
  EXPECT_EQ(Utf8NaarWindowsRuim("Иван é"), "???? é"_w);
  EXPECT_EQ(Utf8NaarWindowsRuim("Jan 😀"), "Jan ?");
}

TEST(Utf8Test, WeigertOngeldigeBytesOfZetErVraagtekensVoor) {
  EXPECT_EQ(Utf8NaarWindows("a\xFF"), std::nullopt);
  EXPECT_EQ(Utf8NaarWindowsRuim("a\xFF\x62"), "a?b");
  EXPECT_EQ(Utf8NaarWindowsRuim("a\xC3"), "a?");
  EXPECT_EQ(Utf8NaarWindowsRuim("\xE2\x82"), "??");
}

TEST(LeesUtf8Test, LeestElkeLengteOpDeGrenzen) {
  const auto lees = [](std::string_view tekst) {
    const Utf8Teken gelezen = LeesUtf8(tekst, 0);
    EXPECT_EQ(gelezen.lengte, tekst.size());
    return gelezen.codepunt;
  };
  EXPECT_EQ(lees("\x7F"), char32_t{0x7F});
  EXPECT_EQ(lees("\xC2\x80"), char32_t{0x80});
  EXPECT_EQ(lees("\xDF\xBF"), char32_t{0x7FF});
  EXPECT_EQ(lees("\xE0\xA0\x80"), char32_t{0x800});
  EXPECT_EQ(lees("\xEF\xBF\xBF"), char32_t{0xFFFF});
  EXPECT_EQ(lees("\xF0\x90\x80\x80"), char32_t{0x10000});
  EXPECT_EQ(lees("\xF4\x8F\xBF\xBF"), char32_t{0x10FFFF});
}

TEST(LeesUtf8Test, WeigertTeLangeVormenSurrogatenEnAfgekapteReeksen) {
  for (const std::string_view tekst :
       {"\x80", "\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xED\xBF\xBF",
        "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xC3", "\xE2\x82",
        "\xF0\x9F\x98", "\xC3\x28", "\xE2\x28\xAC"}) {
    EXPECT_EQ(LeesUtf8(tekst, 0).lengte, 0U);
  }
}

TEST(LeesUtf8Test, LeestOpElkePlaats) {
  const Utf8Teken gelezen = LeesUtf8("a\xC3\xA9", 1);
  EXPECT_EQ(gelezen.codepunt, U'é');
  EXPECT_EQ(gelezen.lengte, 2U);
}

}  // namespace
}  // namespace lb77
