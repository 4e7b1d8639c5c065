// The number of ways down a net of persons, compared with walking each of them.
#include <gtest/gtest.h>

#include <limits>
#include <random>

#include "reports/Wegen.h"

namespace lb77 {
namespace {

using Keren = std::vector<std::int64_t>;

// By index; 0 for who is not reached.
Keren Tel(const Net& net, std::int64_t stappen = kMeesteStappen) {
  Keren uit(net.size(), 0);
  for (const Telling& telling : TelWegen(net, stappen)) {
    EXPECT_EQ(uit.at(telling.wie), 0);
    uit.at(telling.wie) = telling.keer;
  }
  return uit;
}

// Each way by itself.
void Loop(const Net& net, std::size_t wie, std::vector<bool>& opPad, Keren& keren) {
  ++keren[wie];
  opPad[wie] = true;
  for (const std::size_t kind : net[wie]) {
    if (!opPad[kind]) Loop(net, kind, opPad, keren);
  }
  opPad[wie] = false;
}

TEST(WegenTest, EenLeegNetHeeftNiemand) {
  EXPECT_TRUE(TelWegen({}).empty());
}

// Whichever of the two is met first: there are two ways to each.
TEST(WegenTest, TweeDieElkaarsOuderZijnTellenLangsElkPad) {
  EXPECT_EQ(Tel({{1, 2}, {2}, {1}}), (Keren{1, 2, 2}));
  EXPECT_EQ(Tel({{2, 1}, {2}, {1}}), (Keren{1, 2, 2}));
}

TEST(WegenTest, WieOnderEenKringStaatTeltLangsElkPad) {
  EXPECT_EQ(Tel({{1, 2}, {2, 3}, {1, 3}, {4}, {}}), (Keren{1, 2, 2, 4, 4}));
}

TEST(WegenTest, WieZijnEigenKindIsTeltDaarvoorNiet) {
  EXPECT_EQ(Tel({{0, 1}, {1}}), (Keren{1, 1}));
}

TEST(WegenTest, EenKringDoorHetBeginKomtNietTerug) {
  EXPECT_EQ(Tel({{1}, {2}, {0, 1}}), (Keren{1, 1, 1}));
}

TEST(WegenTest, OudersStaanVoorHunKinderen) {
  const std::vector<Telling> tellingen = TelWegen({{2, 1}, {2}, {}});
  ASSERT_EQ(tellingen.size(), 3U);
  EXPECT_EQ(tellingen[0].wie, 0U);
  EXPECT_EQ(tellingen[1].wie, 1U);
  EXPECT_EQ(tellingen[2].wie, 2U);
}

TEST(WegenTest, WillekeurigeNettenZijnAlsElkPadGelopen) {
  std::mt19937 toeval(77);
  for (int ronde = 0; ronde < 500; ++ronde) {
    const std::size_t aantal = 2 + toeval() % 6;
    Net net(aantal);
    for (std::size_t i = 0; i < 2 * aantal; ++i) {
      net[toeval() % aantal].push_back(toeval() % aantal);
    }
    Keren verwacht(aantal, 0);
    std::vector<bool> opPad(aantal, false);
    Loop(net, 0, opPad, verwacht);
    EXPECT_EQ(Tel(net), verwacht) << ronde;
  }
}

// Two ways into a knot of three who are all each other's children.
TEST(WegenTest, EenKnoopDieTeGrootIsTeltElkPadErin) {
  const Net net{{1, 2}, {2, 3}, {1, 3}, {1, 2, 4}, {}};
  const Keren alle = Tel(net, 24);
  EXPECT_EQ(alle, (Keren{1, 3, 3, 4, 4}));
  EXPECT_EQ(Tel(net), alle);
  EXPECT_EQ(Tel(net, 23), (Keren{1, 2, 2, 2, 2}));
}

// Thirty who are all each other's children: no machine walks those ways.
TEST(WegenTest, EenGroteKnoopEindigt) {
  constexpr std::size_t kAantal = 30;
  Net net(kAantal);
  for (auto& kinderen : net) {
    for (std::size_t kind = 0; kind < kAantal; ++kind) kinderen.push_back(kind);
  }
  EXPECT_EQ(Tel(net), Keren(kAantal, 1));
}

TEST(WegenTest, EenKringVanAllePersonenWordtHelemaalGelopen) {
  constexpr std::size_t kAantal = 32766;
  Net net(kAantal);
  for (std::size_t wie = 0; wie < kAantal; ++wie) net[wie] = {(wie + 1) % kAantal};
  EXPECT_EQ(Tel(net), Keren(kAantal, 1));
}

// The ways double with each pair, also into a knot.
TEST(WegenTest, EenAantalDatNietMeerInHetGetalPastWordtHetGrootste) {
  Net net;
  for (std::size_t wie = 0; wie < 70; ++wie) net.push_back({wie + 1, wie + 1});
  net.push_back({71});
  net.push_back({70});
  const Keren keren = Tel(net);
  EXPECT_EQ(keren[62], std::int64_t{1} << 62);
  for (const std::size_t wie : {63U, 70U, 71U}) {
    EXPECT_EQ(keren[wie], std::numeric_limits<std::int64_t>::max()) << wie;
  }
}

}  // namespace
}  // namespace lb77
