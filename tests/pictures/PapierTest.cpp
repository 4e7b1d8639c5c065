#include <gtest/gtest.h>

#include "pictures/Papier.h"

namespace lb77 {
namespace {

constexpr double kMm = 72 / 25.4;
constexpr const Papiermaat& kA4 = kPapiermaten[0];

// With a diagonal from corner to corner, which keeps any sheet from being blank.
Tekening VanMaat(double breedte, double hoogte) {
  Tekening tekening;
  tekening.vormen = {{.wat = Rechthoek{0, 0, breedte * kMm, hoogte * kMm}},
                     {.wat = Lijnstuk{{{0, 0}, {breedte * kMm, hoogte * kMm}}}}};
  tekening.breedte = breedte * kMm;
  tekening.hoogte = hoogte * kMm;
  return tekening;
}

TEST(Papier, OpEenVelPastHetBeeldTussenDeMarges) {
  const Vellen vellen =
      VerdeelOverVellen(VanMaat(1900, 100), kA4, Stand::Staand, Verdeling::EenVel);
  ASSERT_EQ(vellen.vellen.size(), 1U);
  EXPECT_NEAR(vellen.breedte, 210 * kMm, 1e-9);
  EXPECT_NEAR(vellen.schaal, 0.1, 1e-9);
  EXPECT_NEAR(vellen.vellen[0].plek.x, 10 * kMm, 1e-9);
  EXPECT_NEAR(vellen.vellen[0].deel.x, 0, 1e-9);
  EXPECT_NEAR(vellen.vellen[0].deel.y, -(2770 - 100) / 2.0 * kMm, 1e-6);  // in the middle
}

TEST(Papier, LiggendWisseltBreedteEnHoogte) {
  const Vellen vellen =
      VerdeelOverVellen(VanMaat(100, 100), kA4, Stand::Liggend, Verdeling::EenVel);
  EXPECT_NEAR(vellen.breedte, 297 * kMm, 1e-9);
  EXPECT_NEAR(vellen.hoogte, 210 * kMm, 1e-9);
  EXPECT_NEAR(vellen.schaal, 1.9, 1e-9);
}

TEST(Papier, OpWareGrootteHebbenBurenEenStrookGemeen) {
  const Vellen vellen =
      VerdeelOverVellen(VanMaat(400, 500), kA4, Stand::Staand, Verdeling::WareGrootte);
  EXPECT_EQ(vellen.kolommen, 3);  // 190 + 180 + 180
  EXPECT_EQ(vellen.rijen, 2);     // 277 + 267
  EXPECT_EQ(vellen.schaal, 1);
  ASSERT_EQ(vellen.vellen.size(), 6U);
  const Rechthoek een = vellen.vellen[0].deel;
  const Rechthoek rechts = vellen.vellen[1].deel;
  const Rechthoek onder = vellen.vellen[3].deel;
  EXPECT_NEAR(een.Rechts() - rechts.x, 10 * kMm, 1e-9);
  EXPECT_NEAR(een.Onder() - onder.y, 10 * kMm, 1e-9);
  EXPECT_LE(een.x, 0);
  EXPECT_GE(vellen.vellen[5].deel.Rechts(), 400 * kMm);
  EXPECT_GE(vellen.vellen[5].deel.Onder(), 500 * kMm);
}

TEST(Papier, WatPreciesPastNeemtGeenVelMeer) {
  for (const auto& [breedte, kolommen] :
       {std::pair{190.0, 1}, {190.1, 2}, {370.0, 2}, {370.1, 3}}) {
    EXPECT_EQ(VerdeelOverVellen(VanMaat(breedte, 10), kA4, Stand::Staand, Verdeling::WareGrootte)
                  .kolommen,
              kolommen)
        << breedte;
  }
}

TEST(Papier, EenVelWaarNietsOpStaatIsErNiet) {
  Tekening tekening = VanMaat(400, 500);
  tekening.vormen[1].wat = Lijnstuk{{{kMm, kMm}, {399 * kMm, kMm}, {399 * kMm, 499 * kMm}}};
  tekening.vormen.push_back({.wat = Rechthoek{180 * kMm, 400 * kMm, 40 * kMm, 10 * kMm}});
  const Vellen vellen = VerdeelOverVellen(tekening, kA4, Stand::Staand, Verdeling::WareGrootte);
  std::vector<std::pair<int, int>> plekken;
  for (const Vel& vel : vellen.vellen) plekken.emplace_back(vel.rij, vel.kolom);
  EXPECT_EQ(plekken, (std::vector<std::pair<int, int>>{{0, 0}, {0, 1}, {0, 2}, {1, 1}, {1, 2}}));
  EXPECT_EQ(vellen.kolommen, 3);
}

TEST(Papier, ElkeVormHoudtZijnVel) {
  const std::vector<decltype(Vorm::wat)> vormen = {
      Rechthoek{300 * kMm, 0, kMm, kMm}, Ringdeel{{300 * kMm, 9 * kMm}, 0, 9, 0, 360},
      Lijnstuk{{{300 * kMm, 0}, {310 * kMm, 0}}},
      Opschrift{{320 * kMm, 9 * kMm}, "Jan", 9, false, Tekstanker::Midden, 0, 20}};
  for (const auto& wat : vormen) {
    Tekening tekening = VanMaat(400, 100);
    tekening.vormen[1].wat = wat;
    const Vellen vellen = VerdeelOverVellen(tekening, kA4, Stand::Staand, Verdeling::WareGrootte);
    ASSERT_EQ(vellen.vellen.size(), 1U) << wat.index();
    EXPECT_EQ(vellen.vellen[0].kolom, 2);
  }
}

TEST(Papier, OokVeelVellenPassenPrecies) {
  for (int meer = 1; meer < 60; ++meer) {
    EXPECT_EQ(VerdeelOverVellen(VanMaat(190 + 180.0 * meer, 10), kA4, Stand::Staand,
                                Verdeling::WareGrootte)
                  .kolommen,
              meer + 1);
  }
}

TEST(Papier, ZoGrootAlsHetBeeldIsEenVelZonderMarge) {
  const Vellen vellen = VerdeelOverVellen(VanMaat(400, 500), kPapiermaten.back(), Stand::Liggend,
                                          Verdeling::WareGrootte);
  ASSERT_EQ(vellen.vellen.size(), 1U);
  EXPECT_NEAR(vellen.breedte, 400 * kMm, 1e-9);
  EXPECT_NEAR(vellen.hoogte, 500 * kMm, 1e-9);
  EXPECT_EQ(vellen.vellen[0].plek.x, 0);
}

}  // namespace
}  // namespace lb77
