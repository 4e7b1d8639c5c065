#include <gtest/gtest.h>

#include <string_view>

#include "text/Letterlijk.h"

namespace lb77 {
namespace {

TEST(LetterlijkTest, IsAlBijHetVertalenWindowsTekst) {
  constexpr std::string_view kTekst = "geëxporteerd"_w;
  static_assert(kTekst.size() == 12);
  EXPECT_EQ(kTekst, "ge\xEBxporteerd");
}

TEST(LetterlijkTest, KentDeTekensTussen128En159) {
  EXPECT_EQ("€—†‡Ÿž"_w, "\x80\x97\x86\x87\x9F\x9E");
}

TEST(LetterlijkTest, LaatGewoneTekstEnDeLegeTekstZoalsZeZijn) {
  EXPECT_EQ("Kwartierstaat\r\n"_w, "Kwartierstaat\r\n");
  EXPECT_TRUE(""_w.empty());
}

TEST(LetterlijkTest, StaatInVastGeheugen) {
  const auto lever = [] { return "één"_w; };
  EXPECT_EQ(lever().data(), lever().data());
  EXPECT_EQ(lever().data()[3], '\0');
}

}  // namespace
}  // namespace lb77
