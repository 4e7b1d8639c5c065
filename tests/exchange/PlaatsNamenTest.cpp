#include <gtest/gtest.h>

#include <cstdint>

#include "exchange/PlaatsNamen.h"
#include "steun/ProefSet.h"

namespace lb77 {
namespace {

TEST(PlaatsNamenToets, EenNaamKomtZonderBepaling) {
  ProefSet set;
  const std::int16_t nr = set.bouw.Plaats("Breda");
  PlaatsNamen namen(set.Plaats);
  EXPECT_EQ(namen.Naam(nr), "Breda");
  EXPECT_EQ(namen.Naam(static_cast<std::int16_t>(nr + 10000)), "Breda");
  EXPECT_EQ(namen.Naam(static_cast<std::int16_t>(nr + 20000)), "Breda");
}

TEST(PlaatsNamenToets, EenPlaatsDieErNietIsHeeftGeenNaam) {
  ProefSet set;
  PlaatsNamen namen(set.Plaats);
  constexpr std::int16_t kNummers[] = {0, 1, 2, -1, -32768, 10000, 32767};
  for (const std::int16_t nr : kNummers) {
    EXPECT_EQ(namen.Naam(nr), "") << nr;
  }
}

TEST(PlaatsNamenToets, EenNaamWordtEenmaalGelezen) {
  ProefSet set;
  const std::int16_t nr = set.bouw.Plaats("Breda");
  PlaatsNamen namen(set.Plaats);
  ASSERT_EQ(namen.Naam(nr), "Breda");
  set.bestanden.Sluit(BestandSoort::Plaatsen);
  EXPECT_EQ(namen.Naam(nr), "Breda");
  EXPECT_TRUE(set.Getoond().empty());
}

}  // namespace
}  // namespace lb77
