#include <gtest/gtest.h>

#include "reporting/Tijdelijk.h"
#include "steun/NepGesprek.h"
#include "steun/TijdelijkeMap.h"

namespace lb77 {
namespace {

TEST(Tijdelijk, OpensAndClosesWithoutAWord) {
  const TijdelijkeMap map;
  NepGesprek gesprek;
  TekstSchrijver uit;
  EXPECT_TRUE(OpenTijdelijk(uit, map / "KWSTDATA.TMP", gesprek));
  EXPECT_TRUE(SluitTijdelijk(uit, map / "KWSTDATA.TMP", gesprek));
  EXPECT_TRUE(gesprek.Neem().empty());
}

TEST(Tijdelijk, TellsWhichFileCannotBeMade) {
  const TijdelijkeMap map;
  NepGesprek gesprek;
  TekstSchrijver uit;
  EXPECT_FALSE(OpenTijdelijk(uit, map.Pad(), gesprek));
  EXPECT_EQ(gesprek.Neem(), (std::vector<std::string>{"! stop \"Kan tijdelijk bestand " +
                                                      map.Pad().string() + " niet openen\""}));
}

TEST(Tijdelijk, TellsOfAFullDisk) {
  if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no device that is always full";
  NepGesprek gesprek;
  TekstSchrijver uit;
  ASSERT_TRUE(OpenTijdelijk(uit, "/dev/full", gesprek));
  uit.VolleRegel("Generatie I");
  EXPECT_FALSE(SluitTijdelijk(uit, "/dev/full", gesprek));
  const std::vector<std::string> boxen = gesprek.Neem();
  ASSERT_EQ(boxen.size(), 1U);
  EXPECT_EQ(boxen[0].rfind("! stop \"Fout bij het schrijven van /dev/full\\n", 0), 0U);
}

}  // namespace
}  // namespace lb77
