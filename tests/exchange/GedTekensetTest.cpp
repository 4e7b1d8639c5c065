#include <gtest/gtest.h>

#include "exchange/GedTekenset.h"
#include "text/Letterlijk.h"

namespace lb77 {
namespace {

TEST(GedTekensetTest, NamenVanTekensets) {
  EXPECT_EQ(GedTekensetVan("IBMPC"), GedTekenset::CP437);
  EXPECT_EQ(GedTekensetVan("CP437"), GedTekenset::CP437);
  EXPECT_EQ(GedTekensetVan("ANSEL"), GedTekenset::ANSEL);
  EXPECT_EQ(GedTekensetVan("CP850"), GedTekenset::CP850);
  EXPECT_EQ(GedTekensetVan("WIN"), GedTekenset::WIN1252);
}

TEST(GedTekensetTest, ElkeAndereNaamGeeftASCII) {
  for (const std::string_view naam : {"", "ASCII", "ANSI", "UTF-8", "ansel", "ANSEL2", "WIN1252"}) {
    EXPECT_EQ(GedTekensetVan(naam), GedTekenset::ASCII) << naam;
  }
}

TEST(GedTekensetTest, SpatiesOmEenNaamTellenNiet) {
  EXPECT_EQ(GedTekensetVan(" ANSEL "), GedTekenset::ANSEL);
}

TEST(GedTekensetTest, TekstenWordenWindowsteksten) {
  EXPECT_EQ(GedNaarWindows(GedTekenset::ANSEL,
                           "Ren\xE2"
                           "e"),
            "René"_w);
  EXPECT_EQ(GedNaarWindows(GedTekenset::CP437, "Ren\x82"), "René"_w);
  EXPECT_EQ(GedNaarWindows(GedTekenset::CP850, "Ren\x82"), "René"_w);
}

TEST(GedTekensetTest, Codepaginas437En850Verschillen) {
  EXPECT_EQ(GedNaarWindows(GedTekenset::CP850, "\xB7"), "À"_w);
  EXPECT_EQ(GedNaarWindows(GedTekenset::CP437, "\xB7"), "\xB7");
}

TEST(GedTekensetTest, DeAndereSetsBlijvenZoalsZeZijn) {
  constexpr std::string_view kTekst =
      "^~Ren\x82\xE2"
      "e";
  for (const GedTekenset set : {GedTekenset::Geen, GedTekenset::ASCII, GedTekenset::WIN1252}) {
    EXPECT_EQ(GedNaarWindows(set, kTekst), kTekst);
  }
}

}  // namespace
}  // namespace lb77
