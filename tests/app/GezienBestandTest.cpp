#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/Gezien.h"
#include "app/GezienBestand.h"
#include "steun/TijdelijkeMap.h"

namespace lb77 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Gezien, DeLaatsteStaatVooraanEnNiemandTweemaal) {
  Gezien gezien;
  for (const int nr : {2, 3, 4, 3}) gezien.Zag(static_cast<std::int16_t>(nr));
  EXPECT_THAT(gezien.Nummers(), ElementsAre(3, 4, 2));
}

TEST(Gezien, OnthoudtErHoogstensAcht) {
  Gezien gezien;
  for (std::int16_t nr = 2; nr < 20; ++nr) gezien.Zag(nr);
  EXPECT_THAT(gezien.Nummers(), ElementsAre(19, 18, 17, 16, 15, 14, 13, 12));
  gezien.Zet({1, 2, 3, 4, 5, 6, 7, 8, 9});
  EXPECT_EQ(gezien.Nummers().size(), Gezien::kMeeste);
}

TEST(GezienBestand, ElkeSetHeeftZijnRegel) {
  const TijdelijkeMap map;
  SchrijfGezien(map.Pad(), "EEN", {4, 2});
  SchrijfGezien(map.Pad(), "MIJN SET", {7});
  SchrijfGezien(map.Pad(), "EEN", {5, 4});
  EXPECT_EQ(LeesBytes(map / "GEZIEN.TXT"), "EEN,5,4\r\nMIJN SET,7\r\n");
  EXPECT_THAT(LeesGezien(map.Pad(), "EEN"), ElementsAre(5, 4));
  EXPECT_THAT(LeesGezien(map.Pad(), "MIJN SET"), ElementsAre(7));
  EXPECT_THAT(LeesGezien(map.Pad(), "MIJN"), IsEmpty());
}

TEST(GezienBestand, WatNietDeugtWordtVergeten) {
  const TijdelijkeMap map;
  SchrijfBytes(map / "gezien.txt", "EEN,,0,-3,1,x,99999,12");
  EXPECT_THAT(LeesGezien(map.Pad(), "EEN"), ElementsAre(12));
  EXPECT_THAT(LeesGezien(map / "weg", "EEN"), IsEmpty());
  SchrijfGezien(map / "weg", "EEN", {3});
  EXPECT_FALSE(std::filesystem::exists(map / "weg"));
}

}  // namespace
}  // namespace lb77
