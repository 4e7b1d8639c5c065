#include <gtest/gtest.h>

#include <cstdint>
#include <map>

#include "pictures/Boomplaatsing.h"

namespace lb77 {
namespace {

constexpr Boomafstand kAfstand{2, 6};

using Knopen = std::vector<Boomknoop>;

std::vector<double> Plaats(const Knopen& knopen) {
  return PlaatsBoom(knopen, kAfstand);
}

// A child for each digit of the previous row, by its parent's place.
std::vector<int> Generaties(const Knopen& knopen) {
  std::vector<int> uit;
  for (const Boomknoop& knoop : knopen) {
    uit.push_back(knoop.vorige < 0 ? 0 : uit[static_cast<std::size_t>(knoop.vorige)] + 1);
  }
  return uit;
}

// Neighbours of a generation keep their distance; a parent stands in the middle.
void VerwachtNet(const Knopen& knopen) {
  const std::vector<double> plek = Plaats(knopen);
  const std::vector<int> generatie = Generaties(knopen);
  for (std::size_t i = 1; i < knopen.size(); ++i) {
    if (generatie[i] != generatie[i - 1]) continue;
    const double wit = knopen[i].vorige == knopen[i - 1].vorige ? kAfstand.samen : kAfstand.apart;
    ASSERT_GE(plek[i] - knopen[i].breedte / 2 + 1e-6, plek[i - 1] + knopen[i - 1].breedte / 2 + wit)
        << i;
  }
  std::map<int, std::pair<double, double>> kinderen;
  for (std::size_t i = 1; i < knopen.size(); ++i) {
    const auto [kind, nieuw] = kinderen.emplace(knopen[i].vorige, std::pair{plek[i], plek[i]});
    if (!nieuw) kind->second.second = plek[i];
  }
  for (const auto& [ouder, uiterste] : kinderen) {
    ASSERT_NEAR(plek[static_cast<std::size_t>(ouder)], (uiterste.first + uiterste.second) / 2,
                1e-6);
  }
}

// Each node `i` from 1 hangs on node `ouder(i)`.
template <class Ouder>
Knopen Boom(int aantal, Ouder ouder) {
  Knopen uit{{-1, 10}};
  for (int i = 1; i < aantal; ++i) uit.push_back({ouder(i), 4.0 + i % 7});
  return uit;
}

TEST(Boomplaatsing, NiemandEnEen) {
  EXPECT_TRUE(Plaats({}).empty());
  EXPECT_EQ(Plaats({{-1, 10}}), std::vector<double>{5});
}

TEST(Boomplaatsing, KinderenStaanNaastElkaarEnHunOuderErtussen) {
  EXPECT_EQ(Plaats({{-1, 10}, {0, 10}, {0, 20}, {0, 10}}), (std::vector<double>{22, 5, 22, 39}));
}

TEST(Boomplaatsing, NevenStaanVerderUitElkaarDanBroers) {
  EXPECT_EQ(Plaats({{-1, 10}, {0, 10}, {0, 10}, {1, 10}, {2, 10}}),
            (std::vector<double>{13, 5, 21, 5, 21}));
}

TEST(Boomplaatsing, EenSmalleBroerStaatMiddenTussenDeBrede) {
  // Nodes 1 and 3 have three children each, between whom 2 has none.
  const Knopen knopen{{-1, 10}, {0, 10}, {0, 10}, {0, 10}, {1, 10},
                      {1, 10},  {1, 10}, {3, 10}, {3, 10}, {3, 10}};
  VerwachtNet(knopen);
  const std::vector<double> plek = Plaats(knopen);
  EXPECT_DOUBLE_EQ(plek[2], (plek[1] + plek[3]) / 2);
}

TEST(Boomplaatsing, DezelfdeTakHeeftOveralDezelfdeVorm) {
  // The branches of 1 and 2 are alike.
  const Knopen knopen{{-1, 10}, {0, 10}, {0, 10}, {1, 10}, {1, 30}, {2, 10},
                      {2, 30},  {4, 10}, {4, 10}, {6, 10}, {6, 10}};
  VerwachtNet(knopen);
  const std::vector<double> plek = Plaats(knopen);
  for (const auto& [een, ander] : {std::pair{3U, 5U}, {4U, 6U}, {7U, 9U}, {8U, 10U}}) {
    EXPECT_DOUBLE_EQ(plek[een] - plek[1], plek[ander] - plek[2]);
  }
}

// Trees of every shape: each node has up to four children, most have none.
TEST(Boomplaatsing, NooitRaaktIemandEenAnder) {
  std::uint32_t worp = 1;
  for (int keer = 0; keer < 400; ++keer) {
    Knopen knopen{{-1, 10}};
    for (std::size_t ouder = 0; ouder < knopen.size() && knopen.size() < 120; ++ouder) {
      worp = worp * 1103515245U + 12345U;
      const std::uint32_t kinderen =
          (worp >> 16U) % 5U * ((worp >> 24U) % 2U) + (ouder < 3 ? 2 : 0);
      for (std::uint32_t k = 0; k < kinderen; ++k) {
        knopen.push_back({static_cast<int>(ouder), 3.0 + (worp >> 20U) % 9U});
      }
    }
    VerwachtNet(knopen);
  }
}

TEST(Boomplaatsing, NietsLigtLinksVanNul) {
  const Knopen knopen = Boom(500, [](int i) { return (i - 1) * 2 / 3; });
  const std::vector<double> plek = Plaats(knopen);
  double laagste = 1e9;
  for (std::size_t i = 0; i < plek.size(); ++i) {
    laagste = std::min(laagste, plek[i] - knopen[i].breedte / 2);
  }
  EXPECT_DOUBLE_EQ(laagste, 0);
}

// A run that grew with the square of the nodes would not end; recursion would leave no stack.
TEST(Boomplaatsing, KanEenHeelDiepeBoomAan) {
  VerwachtNet(Boom(300'000, [](int i) { return i - 1; }));
}

TEST(Boomplaatsing, KanEenHeelGroteBoomAan) {
  VerwachtNet(Boom(300'000, [](int i) { return (i - 1) / 2; }));
  VerwachtNet(Boom(300'000, [](int i) { return i < 3 ? 0 : i - 2; }));  // two long branches
  VerwachtNet(Boom(300'000, [](int) { return 0; }));
}

}  // namespace
}  // namespace lb77
