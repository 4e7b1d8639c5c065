#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "text/Bestandstekst.h"
#include "text/Bytes.h"
#include "text/Letterlijk.h"
#include "text/Unicode.h"

namespace lb77 {
namespace {

struct Omgezet {
  std::string tekst;
  std::vector<char32_t> kwijt;
};

Omgezet ZetOm(std::string_view utf8) {
  Omgezet uit;
  uit.tekst = "wat er stond";
  BestandstekstNaarWindows(utf8, uit.tekst, uit.kwijt);
  return uit;
}

TEST(BestandstekstTest, ElkTekenVanWindowsWordtZijnByte) {
  for (unsigned i = 0; i < 256; ++i) {
    const Omgezet omgezet = ZetOm(WindowsNaarUtf8(Byte(i)));
    EXPECT_EQ(omgezet.tekst, Byte(i)) << i;
    EXPECT_TRUE(omgezet.kwijt.empty()) << i;
  }
}

TEST(BestandstekstTest, TranslitereertZonderVerlies) {
  const Omgezet omgezet = ZetOm("Łódź — Dvořák ‘x’ e\u0301 A\u030A g\u0301");
  EXPECT_EQ(omgezet.tekst, "Lódz — Dvorák ‘x’ é Å g"_w);
  EXPECT_TRUE(omgezet.kwijt.empty());
}

TEST(BestandstekstTest, EenMerkKomtOpDeLetterVanDezelfdeTekst) {
  EXPECT_EQ(ZetOm("\u0301e").tekst, "e");
}

TEST(BestandstekstTest, WatGeenEnkelTekenHeeftWordtEenVraagtekenEnWordtVerteld) {
  const Omgezet omgezet = ZetOm("a中Ж中😀b");
  EXPECT_EQ(omgezet.tekst, "a????b");
  EXPECT_EQ(omgezet.kwijt, (std::vector<char32_t>{U'中', U'Ж', U'中', U'😀'}));
}

TEST(BestandstekstTest, EenOngeldigeByteIsEenTekenVanWindows) {
  EXPECT_EQ(ZetOm("Andr\xE9 \x80 \xC3").tekst, "Andr\xE9 \x80 \xC3");
  EXPECT_EQ(ZetOm("\xE2\x82").tekst, "\xE2\x82");
  EXPECT_EQ(ZetOm("\xED\xA0\x80").tekst, "\xED\xA0\x80");
  EXPECT_TRUE(ZetOm("Andr\xE9").kwijt.empty());
}

TEST(BestandstekstTest, HeelUtf8LaatStaanWatGeldigIsEnHersteltDeRest) {
  EXPECT_EQ(HeelUtf8("é中😀\xE9\x80z"), "é中😀é€z");
  EXPECT_EQ(HeelUtf8(""), "");
}

TEST(BestandstekstTest, AsciiGaatTotEnMetByte127) {
  EXPECT_TRUE(IsAscii(""));
  EXPECT_TRUE(IsAscii("abc\x7F"));
  EXPECT_FALSE(IsAscii("abc\x80"));
  EXPECT_FALSE(IsAscii("\xFFzz"));
}

TEST(BestandstekstTest, KentDeAardVanEenTekst) {
  EXPECT_EQ(AardVan("gewoon"), Utf8Aard::Ascii);
  EXPECT_EQ(AardVan("gewóón"), Utf8Aard::Meerbytes);
  EXPECT_EQ(AardVan("gew\xF3n"), Utf8Aard::Ongeldig);
  EXPECT_EQ(AardVan("gewóón\xC3"), Utf8Aard::Ongeldig);
}

}  // namespace
}  // namespace lb77
