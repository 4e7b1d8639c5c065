#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "text/Utf16.h"

namespace lb77 {
namespace {

using namespace std::string_view_literals;

// In pieces of `stuk` bytes.
std::string Gelezen(std::string_view bytes, Bytevolgorde volgorde, std::size_t stuk = 1000) {
  Utf16Lezing lezing(volgorde);
  std::string uit;
  for (; !bytes.empty(); bytes.remove_prefix(std::min(stuk, bytes.size()))) {
    lezing.Neem(bytes.substr(0, stuk), uit);
  }
  lezing.Sluit(uit);
  return uit;
}

TEST(Utf16Test, LeestBeideVolgorden) {
  EXPECT_EQ(Gelezen("a\0\xE9\0\x2D\x4E"sv, Bytevolgorde::LaagEerst), "aé中");
  EXPECT_EQ(Gelezen("\0a\0\xE9\x4E\x2D"sv, Bytevolgorde::HoogEerst), "aé中");
}

TEST(Utf16Test, EenSurrogaatpaarIsEenTeken) {
  EXPECT_EQ(Gelezen("\x3D\xD8\x00\xDE\x62\0"sv, Bytevolgorde::LaagEerst), "😀b");
  EXPECT_EQ(Gelezen("\xD8\0\xDC\0"sv, Bytevolgorde::HoogEerst), "\U00010000");
  EXPECT_EQ(Gelezen("\xDB\xFF\xDF\xFF"sv, Bytevolgorde::HoogEerst), "\U0010FFFF");
}

TEST(Utf16Test, DeGrenzenVanDeSurrogatenHorenErNietBij) {
  EXPECT_EQ(Gelezen("\xD7\xFF\xE0\0"sv, Bytevolgorde::HoogEerst), "\uD7FF\uE000");
}

TEST(Utf16Test, EenHalfPaarWordtHetVervangendeTeken) {
  EXPECT_EQ(Gelezen("\xDC\0\0b"sv, Bytevolgorde::HoogEerst), "\uFFFDb");
  EXPECT_EQ(Gelezen("\xD8\0\0b"sv, Bytevolgorde::HoogEerst), "\uFFFDb");
  EXPECT_EQ(Gelezen("\xD8\0\xD8\0\xDC\0"sv, Bytevolgorde::HoogEerst), "\uFFFD\U00010000");
  EXPECT_EQ(Gelezen("\0a\xD8\0"sv, Bytevolgorde::HoogEerst), "a\uFFFD");
  EXPECT_EQ(Gelezen("\xD8\0\0b\0c\0d\0e\0f"sv, Bytevolgorde::HoogEerst), "\uFFFDbcdef");
}

TEST(Utf16Test, EenLosseByteAanHetEindVervalt) {
  EXPECT_EQ(Gelezen("\0a\0"sv, Bytevolgorde::HoogEerst), "a");
  EXPECT_EQ(Gelezen("a\0\n"sv, Bytevolgorde::LaagEerst), "a");
}

TEST(Utf16Test, DeStukkenMogenOveralBreken) {
  constexpr std::string_view kTekst = "a\0\xE9\0\x3D\xD8\x00\xDE\x62\0"sv;
  for (std::size_t stuk = 1; stuk <= kTekst.size(); ++stuk) {
    EXPECT_EQ(Gelezen(kTekst, Bytevolgorde::LaagEerst, stuk), "aé😀b");
  }
}

TEST(Utf16Test, EenLangeTekstMetHierEnDaarEenAccent) {
  for (const Bytevolgorde volgorde : {Bytevolgorde::LaagEerst, Bytevolgorde::HoogEerst}) {
    std::string bytes;
    std::string verwacht;
    for (unsigned i = 0; i < 300; ++i) {
      const unsigned eenheid = i % 11 == 0 ? 0xE9 : i % 13 == 0 ? 0x4E2D : 'a' + i % 26;
      const char hoog = static_cast<char>(eenheid >> 8U);
      const char laag = static_cast<char>(eenheid & 255U);
      bytes += volgorde == Bytevolgorde::LaagEerst ? laag : hoog;
      bytes += volgorde == Bytevolgorde::LaagEerst ? hoog : laag;
      verwacht += i % 11 == 0   ? "é"
                  : i % 13 == 0 ? "中"
                                : std::string(1, static_cast<char>(eenheid));
    }
    for (const std::size_t stuk : {1000U, 64U, 17U, 3U}) {
      EXPECT_EQ(Gelezen(bytes, volgorde, stuk), verwacht);
    }
  }
}

TEST(Utf16Test, EenBesturingstekenBoven127IsGeenAscii) {
  EXPECT_EQ(Gelezen("\x80\0b\0c\0d\0"sv, Bytevolgorde::LaagEerst), "\u0080bcd");
}

}  // namespace
}  // namespace lb77
