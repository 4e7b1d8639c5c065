#include <gtest/gtest.h>

#include "forms/Beeldvlak.h"
#include "forms/Formulier.h"
#include "forms/Tekening.h"

namespace lb77 {
namespace {

Tekening MetRing(double van, double tot) {
  Tekening tekening;
  tekening.vormen = {{.wat = Ringdeel{{100, 100}, 20, 40, van, tot}}};
  tekening.doelen = {{2, "Jan", 0}};
  return tekening;
}

TEST(Tekening, EenPuntInEenRingdeel) {
  const Tekening rechts = MetRing(-45, 45);
  EXPECT_EQ(DoelOp(rechts, {130, 100}), 0);
  EXPECT_EQ(DoelOp(rechts, {119, 100}), -1);
  EXPECT_EQ(DoelOp(rechts, {141, 100}), -1);
  EXPECT_EQ(DoelOp(rechts, {100, 130}), -1);
  EXPECT_EQ(DoelOp(rechts, {120, 119}), 0);
  EXPECT_EQ(DoelOp(rechts, {120, 121}), -1);
  EXPECT_EQ(DoelOp(MetRing(315, 405), {130, 95}), 0);
  EXPECT_EQ(DoelOp(MetRing(315, 405), {130, 105}), 0);
}

TEST(Tekening, HetLaatsteVlakLigtBoven) {
  Tekening tekening;
  tekening.vormen = {{.wat = Rechthoek{0, 0, 10, 10}}, {.wat = Rechthoek{5, 0, 10, 10}}};
  tekening.doelen = {{2, "Jan", 0}, {3, "Anna", 1}};
  EXPECT_EQ(DoelOp(tekening, {4, 5}), 0);
  EXPECT_EQ(DoelOp(tekening, {6, 5}), 1);
  EXPECT_EQ(DoelOp(tekening, {6, 11}), -1);
  EXPECT_EQ(DoelOp(tekening, {16, 5}), -1);
  EXPECT_EQ(DoelOp(tekening, {-1, 5}), -1);
}

TEST(Tekening, HetMidden) {
  const Punt vak = MiddenVan({.wat = Rechthoek{10, 20, 30, 40}});
  EXPECT_EQ(vak.x, 25);
  EXPECT_EQ(vak.y, 40);
  const Punt ring = MiddenVan({.wat = Ringdeel{{100, 100}, 20, 40, 0, 180}});
  EXPECT_NEAR(ring.x, 100, 1e-9);
  EXPECT_NEAR(ring.y, 130, 1e-9);
  EXPECT_EQ(MiddenVan({.wat = Ringdeel{{7, 8}, 0, 40, 0, 360}}).y, 8);
}

class Proefbeeld : public Formulier {
 public:
  Proefbeeld() : Formulier("Proefbeeld", "Proef") {}
  Beeldvlak Beeld{*this, "Beeld", "Een beeld"};
};

Tekening MetPersonen(const std::vector<std::int16_t>& nummers) {
  Tekening tekening;
  for (const std::int16_t nr : nummers) {
    tekening.vormen.push_back({.wat = Rechthoek{0, 0, 10, 10}});
    tekening.doelen.push_back({nr, "P" + std::to_string(nr), 0});
  }
  return tekening;
}

TEST(Beeldvlak, WieGekozenWasBlijftGekozen) {
  Proefbeeld vorm;
  Beeldvlak& beeld = vorm.Beeld;
  EXPECT_EQ(beeld.GekozenNr(), 0);
  beeld.ZetBeeld(MetPersonen({2, 3, 3, 4}));
  EXPECT_EQ(beeld.Index(), -1);
  EXPECT_EQ(beeld.Rijen().size(), 4U);
  beeld.ZetIndex(2);
  EXPECT_EQ(beeld.GekozenNr(), 3);
  beeld.ZetBeeld(MetPersonen({2, 3, 3}));
  EXPECT_EQ(beeld.Index(), 2);  // not the first place of the same person
  beeld.ZetBeeld(MetPersonen({3, 2}));
  EXPECT_EQ(beeld.Index(), 0);
  beeld.ZetBeeld(MetPersonen({2}));
  EXPECT_EQ(beeld.Index(), -1);
  EXPECT_EQ(beeld.Versie(), 4);
}

}  // namespace
}  // namespace lb77
