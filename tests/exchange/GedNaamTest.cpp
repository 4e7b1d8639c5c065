#include <gtest/gtest.h>

#include <string>

#include "exchange/GedNaam.h"

namespace lb77 {
namespace {

// "voornaam|achternaam|rest"
std::string Gesplitst(std::string_view waarde) {
  const GedNaamDelen delen = GedNaam(waarde);
  std::string uit(delen.voornaam);
  return uit.append("|").append(delen.achternaam).append("|").append(delen.rest);
}

TEST(GedNaamTest, DeAchternaamStaatTussenStrepen) {
  EXPECT_EQ(Gesplitst("Jan Piet /van den Berg/"), "Jan Piet|van den Berg|");
}

TEST(GedNaamTest, WatAchterDeTweedeStreepStaatIsDeRest) {
  EXPECT_EQ(Gesplitst("Jan /Jansen/ jr"), "Jan|Jansen| jr");
  EXPECT_EQ(Gesplitst("Jan /Jansen/a/b"), "Jan|Jansen|a/b");
}

TEST(GedNaamTest, ZonderStreepIsHetEenAchternaam) {
  EXPECT_EQ(Gesplitst(" Jan Jansen "), "|Jan Jansen|");
  EXPECT_EQ(Gesplitst(""), "||");
}

TEST(GedNaamTest, EenStreepAlsLaatsteTekenHoortBijDeAchternaam) {
  EXPECT_EQ(Gesplitst("Jan/"), "|Jan/|");
  EXPECT_EQ(Gesplitst("/"), "|/|");
}

TEST(GedNaamTest, ZonderTweedeStreepLooptDeAchternaamTotHetEind) {
  EXPECT_EQ(Gesplitst("Jan /Jansen"), "Jan|Jansen|");
}

TEST(GedNaamTest, ElkDeelMagLeegZijn) {
  EXPECT_EQ(Gesplitst("Jan //"), "Jan||");
  EXPECT_EQ(Gesplitst("/Jansen/"), "|Jansen|");
  EXPECT_EQ(Gesplitst("//"), "||");
}

TEST(GedNaamTest, DelenWordenAfgekaptVoorZeWordenGetrimd) {
  EXPECT_EQ(Gesplitst(std::string(31, 'v') + "/" + std::string(26, 'a') + "/"),
            std::string(30, 'v') + "|" + std::string(25, 'a') + "|");
  EXPECT_EQ(Gesplitst(std::string(29, ' ') + "Jan/ " + std::string(24, ' ') + "Jansen/"), "J||");
}

}  // namespace
}  // namespace lb77
