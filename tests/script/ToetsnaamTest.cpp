#include <gtest/gtest.h>

#include <map>
#include <string>

#include "script/Toetsnaam.h"

namespace lb77 {
namespace {

TEST(Toetsnaam, KentAlleNamen) {
  const std::map<std::string, int> codes = {
      {"Enter", 13},    {"NumEnter", 108}, {"Escape", 27}, {"Tab", 9},     {"Space", 32},
      {"Insert", 45},   {"Delete", 46},    {"Home", 36},   {"End", 35},    {"Left", 37},
      {"Right", 39},    {"Up", 38},        {"Down", 40},   {"PageUp", 33}, {"PageDown", 34},
      {"NumLock", 144}, {"Num0", 96},      {"Num9", 105},  {"F1", 112},    {"F8", 119},
      {"F12", 123}};
  for (const auto& [naam, code] : codes) {
    const auto kaal = ToetsVanNaam(naam);
    const auto metShift = ToetsVanNaam("Shift+" + naam);
    ASSERT_TRUE(kaal && metShift) << naam;
    EXPECT_EQ(kaal->code, code) << naam;
    EXPECT_FALSE(kaal->shift) << naam;
    EXPECT_EQ(metShift->code, code) << naam;
    EXPECT_TRUE(metShift->shift) << naam;
  }
}

TEST(Toetsnaam, WatEenTekenTyptDraagtDatTeken) {
  EXPECT_EQ(ToetsVanNaam("Num7")->teken, '7');
  EXPECT_EQ(ToetsVanNaam("Space")->teken, ' ');
  EXPECT_EQ(ToetsVanNaam("Enter")->teken, '\n');
  EXPECT_EQ(ToetsVanNaam("F1")->teken, '\0');
  EXPECT_EQ(ToetsVanNaam("Delete")->teken, '\0');
}

TEST(Toetsnaam, EenTekenIsZijnEigenToets) {
  EXPECT_EQ(ToetsVanNaam("a")->teken, 'a');
  EXPECT_EQ(ToetsVanNaam("a")->code, 'A');
  EXPECT_EQ(ToetsVanNaam("F")->teken, 'F');
  EXPECT_EQ(ToetsVanNaam("-")->code, 0);
  EXPECT_EQ(ToetsVanNaam("ë")->teken, '\xEB');
}

TEST(Toetsnaam, KentGeenAndereNamen) {
  for (const auto* const naam : {"", "enter", "F0", "F13", "F01", "Num10", "Num", "Shift+",
                                 "Shift+a", "Shift+Shift+Tab", "ab", "日", "\xFF"}) {
    EXPECT_FALSE(ToetsVanNaam(naam).has_value()) << naam;
  }
}

}  // namespace
}  // namespace lb77
