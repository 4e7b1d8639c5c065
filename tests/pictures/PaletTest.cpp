// Can the texts be read on the colours, and the colours be told apart, by everybody and in grey?
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "pictures/Palet.h"

namespace lb77 {
namespace {

using Drie = std::array<double, 3>;

// How the eye of somebody who lacks one kind of cones mixes red, green and blue (linear light).
// Source: Machado, Oliveira and Fernandes, "A Physiologically-based Model for Simulation of Color
// Vision Deficiency", 2009, severity 1.
using Menging = std::array<Drie, 3>;
constexpr Menging kGewoonOog{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
constexpr Menging kRoodblind{{{0.152286, 1.052583, -0.204868},
                              {0.114503, 0.786281, 0.099216},
                              {-0.003882, -0.048116, 1.051998}}};
constexpr Menging kGroenblind{{{0.367322, 0.860646, -0.227968},
                               {0.280085, 0.672501, 0.047413},
                               {-0.011820, 0.042940, 0.968881}}};
constexpr Menging kBlauwblind{{{1.255528, -0.076749, -0.178779},
                               {-0.078411, 0.930809, 0.147602},
                               {0.004733, 0.691367, 0.303900}}};

double Lineair(std::uint8_t waarde) {
  const double deel = waarde / 255.0;
  return deel <= 0.04045 ? deel / 12.92 : std::pow((deel + 0.055) / 1.055, 2.4);
}

Drie Licht(const Kleur& kleur, const Menging& oog = kGewoonOog) {
  const Drie bron{Lineair(kleur.rood), Lineair(kleur.groen), Lineair(kleur.blauw)};
  Drie uit{};
  for (std::size_t i = 0; i < 3; ++i) {
    const double som = oog[i][0] * bron[0] + oog[i][1] * bron[1] + oog[i][2] * bron[2];
    uit[i] = std::clamp(som, 0.0, 1.0);
  }
  return uit;
}

double Helderheid(const Drie& licht) {
  return 0.2126 * licht[0] + 0.7152 * licht[1] + 0.0722 * licht[2];
}

// The contrast of the web's guidelines for accessibility, 1 to 21.
double Contrast(const Kleur& een, const Kleur& ander) {
  const auto [laag, hoog] = std::minmax(Helderheid(Licht(een)), Helderheid(Licht(ander)));
  return (hoog + 0.05) / (laag + 0.05);
}

// CIE L*a*b*, in which equal distances look alike.
Drie Lab(const Drie& licht) {
  const auto f = [](double t) { return t > 0.008856 ? std::cbrt(t) : 7.787 * t + 16.0 / 116; };
  const double x = f((0.4124 * licht[0] + 0.3576 * licht[1] + 0.1805 * licht[2]) / 0.9505);
  const double y = f(Helderheid(licht));
  const double z = f((0.0193 * licht[0] + 0.1192 * licht[1] + 0.9505 * licht[2]) / 1.089);
  return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

double Verschil(const Kleur& een, const Kleur& ander, const Menging& oog) {
  const Drie a = Lab(Licht(een, oog));
  const Drie b = Lab(Licht(ander, oog));
  return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
}

// In grey, steps of L* are told apart from about 2; in prints of small areas from about 8.
void VerwachtVerschil(const Kleur& een, const Kleur& ander) {
  for (const Menging& oog : {kGewoonOog, kRoodblind, kGroenblind, kBlauwblind}) {
    EXPECT_GE(Verschil(een, ander, oog), 14);
  }
  EXPECT_GE(std::abs(Lab(Licht(een))[0] - Lab(Licht(ander))[0]), 8);
}

TEST(Palet, DeTekstIsTeLezenOpElkeKleur) {
  std::vector<Kleur> gronden(kGeneratiekleuren.begin(), kGeneratiekleuren.end());
  gronden.insert(gronden.end(), {kMankleur, kVrouwkleur, kOnbekendkleur, kPapier});
  for (const Kleur& grond : gronden) {
    EXPECT_GE(Contrast(kInkt, grond), 6);
    EXPECT_GE(Contrast(kZacht, grond), 4.5);
  }
}

TEST(Palet, DeRandIsTeZienOpElkVak) {
  EXPECT_GE(Contrast(kRand, kPapier), 3);
}

TEST(Palet, TweeBurenVerschillenInKleur) {
  for (std::size_t i = 0; i < kGeneratiekleuren.size(); ++i) {
    VerwachtVerschil(kGeneratiekleuren[i], kGeneratiekleuren[(i + 1) % kGeneratiekleuren.size()]);
  }
}

TEST(Palet, DeGeslachtenVerschillen) {
  VerwachtVerschil(kMankleur, kVrouwkleur);
  VerwachtVerschil(kMankleur, kOnbekendkleur);
  VerwachtVerschil(kVrouwkleur, kOnbekendkleur);
}

TEST(Palet, DeKeuzeBepaaltDeKleur) {
  EXPECT_EQ(KleurVan(Kleurwijze::Generatie, 7, Geslacht::Man), kGeneratiekleuren[1]);
  EXPECT_EQ(KleurVan(Kleurwijze::Geslacht, 7, Geslacht::Man), kMankleur);
  EXPECT_EQ(KleurVan(Kleurwijze::Geslacht, 7, Geslacht::Vrouw), kVrouwkleur);
  EXPECT_EQ(KleurVan(Kleurwijze::Geslacht, 7, Geslacht::Onbekend), kOnbekendkleur);
  EXPECT_EQ(KleurVan(Kleurwijze::Geen, 7, Geslacht::Man), kPapier);
}

}  // namespace
}  // namespace lb77
