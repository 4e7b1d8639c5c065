// Which rows of the table of places pass, forwards and back.
#include <gtest/gtest.h>

#include "contact/ContactToets.h"
#include "contact/GciFilter.h"

namespace lb77 {
namespace {

using Rijen = std::vector<std::int16_t>;

const GciPlaatsen& Plaatsen() {
  static const GciPlaatsen plaatsen(
      {PlaatsRij("Bergen", "NH", "NL"), PlaatsRij("Bergen op Zoom", "NB", "NL"),
       PlaatsRij("Delft", "ZH", "NL"), PlaatsRij("BERGHEM", "NB", "NL"),
       PlaatsRij("Bergen", "", "B")});
  return plaatsen;
}

Rijen Alle(const GciFilter& filter) {
  return RijenVanaf(Plaatsen(), filter, 1, 10);
}

TEST(GciFilter, EenLegeFilterLaatAllesDoor) {
  EXPECT_EQ(Alle({}), (Rijen{1, 2, 3, 4, 5}));
  EXPECT_EQ(Alle({"*", " ", ""}), (Rijen{1, 2, 3, 4, 5}));
}

TEST(GciFilter, EenNaamIsHetBeginMetOfZonderSter) {
  EXPECT_EQ(Alle({"bergen", "", ""}), (Rijen{1, 2, 5}));
  EXPECT_EQ(Alle({"Berg*", "", ""}), (Rijen{1, 2, 4, 5}));
  EXPECT_EQ(Alle({" Berg * ", "", ""}), (Rijen{1, 2, 4, 5}));
  EXPECT_EQ(Alle({"erg", "", ""}), Rijen{});
}

TEST(GciFilter, ProvincieEnLandZijnDeHeleCode) {
  EXPECT_EQ(Alle({"", "nb", ""}), (Rijen{2, 4}));
  EXPECT_EQ(Alle({"", " nb ", ""}), (Rijen{2, 4}));
  EXPECT_EQ(Alle({"", "", "nl"}), (Rijen{1, 2, 3, 4}));
  EXPECT_EQ(Alle({"Bergen", "NH", "NL"}), Rijen{1});
  EXPECT_EQ(Alle({"Bergen", "NH", "B"}), Rijen{});
  EXPECT_EQ(Alle({"", "N", ""}), Rijen{});
}

TEST(GciFilter, UitIsAllesErdoor) {
  EXPECT_EQ(Alle({"Delft", "ZH", "NL", false}), (Rijen{1, 2, 3, 4, 5}));
}

TEST(GciFilter, VanafEenRijZoveelAlsErGevraagdZijn) {
  EXPECT_EQ(RijenVanaf(Plaatsen(), {"Berg", "", ""}, 2, 2), (Rijen{2, 4}));
  EXPECT_EQ(RijenVanaf(Plaatsen(), {"Berg", "", ""}, 5, 2), Rijen{5});
  EXPECT_EQ(RijenVanaf(Plaatsen(), {"Berg", "", ""}, 6, 2), Rijen{});
}

TEST(GciFilter, VoorEenRijZijnHetDeLaatste) {
  EXPECT_EQ(RijenVoor(Plaatsen(), {"Berg", "", ""}, 5, 2), (Rijen{2, 4}));
  EXPECT_EQ(RijenVoor(Plaatsen(), {"Berg", "", ""}, 2, 2), Rijen{1});
  EXPECT_EQ(RijenVoor(Plaatsen(), {"Berg", "", ""}, 1, 2), Rijen{});
}

}  // namespace
}  // namespace lb77
