#include <gtest/gtest.h>

#include "store/PlaatsIndex.h"
#include "text/Letterlijk.h"

using namespace lb77;
using Nummers = std::vector<std::int16_t>;

namespace {

Nummers Gelijke(const PlaatsIndex& index, const std::string& sleutel) {
  const auto gevonden = index.Gelijke(sleutel);
  return {gevonden.begin(), gevonden.end()};
}

}  // namespace

TEST(PlaatsIndexTest, NamenVergelijkenInHoofdlettersEnZonderBlanken) {
  EXPECT_EQ(PlaatsIndex::Sleutel(" Delft "), "DELFT");
  EXPECT_EQ(PlaatsIndex::Sleutel("curaçao"_w), "CURAÇAO"_w);
}

TEST(PlaatsIndexTest, NamenVergelijkenZoalsZijWordenOpgeslagen) {
  EXPECT_EQ(PlaatsIndex::Sleutel("Ò"_w), PlaatsIndex::Sleutel("`O"));
  EXPECT_EQ(PlaatsIndex::Sleutel("€"_w), "C=");
  EXPECT_EQ(PlaatsIndex::Sleutel(std::string(24, 'x') + std::string("€"_w)),
            std::string(24, 'X') + "C");
}

TEST(PlaatsIndexTest, EenLegeIndexHeeftNiets) {
  const PlaatsIndex index;
  EXPECT_EQ(index.Hoogste(), 1);
  EXPECT_EQ(Gelijke(index, "DELFT"), Nummers{});
  EXPECT_EQ(index.Beginnend(""), Nummers{});
}

TEST(PlaatsIndexTest, NummersLopenVanafTweeOokOverStoringenHeen) {
  PlaatsIndex index;
  index.Voeg("DELFT");
  index.VoegStoring(PlaatsStoring::Soort::Naamloos);
  index.Voeg("DEN HAAG");
  index.Voeg("DELFT");
  index.VoegStoring(PlaatsStoring::Soort::Onleesbaar);
  EXPECT_EQ(index.Hoogste(), 6);
  EXPECT_EQ(Gelijke(index, "DELFT"), (Nummers{2, 5}));
  EXPECT_EQ(index.Beginnend("DE"), (Nummers{2, 4, 5}));
  EXPECT_EQ(index.Beginnend("DEN"), Nummers{4});
  ASSERT_EQ(index.Storingen().size(), 2U);
  EXPECT_EQ(index.Storingen()[0].nr, 3);
  EXPECT_EQ(index.Storingen()[0].soort, PlaatsStoring::Soort::Naamloos);
  EXPECT_EQ(index.Storingen()[1].nr, 6);
  EXPECT_EQ(index.Storingen()[1].soort, PlaatsStoring::Soort::Onleesbaar);
}

TEST(PlaatsIndexTest, EenGewisteIndexIsLeeg) {
  PlaatsIndex index;
  index.Voeg("DELFT");
  index.VoegStoring(PlaatsStoring::Soort::Naamloos);
  index.Wis();
  EXPECT_EQ(index.Hoogste(), 1);
  EXPECT_TRUE(index.Storingen().empty());
  EXPECT_EQ(Gelijke(index, "DELFT"), Nummers{});
}
