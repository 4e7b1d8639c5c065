#include <limits>

#include "pictures/BeeldToets.h"
#include "pictures/Beeldlezer.h"
#include "pictures/Tijdbeeld.h"

namespace lb77 {
namespace {

constexpr std::int64_t kMeeste = std::numeric_limits<std::int64_t>::max();

Tekening Teken(const std::vector<Tijdstaaf>& staven, bool kleur = true) {
  return MaakTijdbeeld(staven, {kleur, "Nakomelingen van Jan", "Totaal: 5"}, Helveticamaat());
}

// The parts of the bars, without the ground and the two boxes of the key.
std::vector<const Rechthoek*> Staven(const Tekening& tekening) {
  std::vector<const Rechthoek*> uit = AlleVan<Rechthoek>(tekening, false);
  uit.erase(uit.begin());
  uit.resize(uit.size() - 2);
  return uit;
}

TEST(Tijdbeeld, EenStaafIsZoHoogAlsZijnAantal) {
  const auto staven = Staven(Teken({{"1800-1849", 10, 4}, {"1850-1899", 20, 20}}));
  ASSERT_EQ(staven.size(), 3U);
  EXPECT_DOUBLE_EQ(staven[0]->hoogte, 6 * 12);  // of unknown years, above the certain ones
  EXPECT_DOUBLE_EQ(staven[1]->hoogte, 4 * 12);
  EXPECT_DOUBLE_EQ(staven[0]->Onder(), staven[1]->y);
  EXPECT_DOUBLE_EQ(staven[2]->hoogte, 20 * 12);
  EXPECT_DOUBLE_EQ(staven[1]->Onder(), staven[2]->Onder());
  EXPECT_LT(staven[0]->Rechts(), staven[2]->x);
}

TEST(Tijdbeeld, AllesStaatOpHetVel) {
  VerwachtOpVel(Teken({}));
  VerwachtOpVel(Teken({{"1800-1849", 1, 0}}));
  VerwachtOpVel(Teken({{"1800-1849", kMeeste, kMeeste}, {"1850-1899", kMeeste - 1, 0}}));
  VerwachtOpVel(Teken(std::vector<Tijdstaaf>(1300, {"-32768--32719", 99, 1})));
}

TEST(Tijdbeeld, DeKleurenZijnErOokInGrijs) {
  const Tekening grijs = Teken({{"1800-1849", 10, 4}}, false);
  for (const Vorm& vorm : grijs.vormen) {
    if (!std::holds_alternative<Rechthoek>(vorm.wat)) continue;
    EXPECT_EQ(vorm.vulling->rood, vorm.vulling->blauw);
  }
}

TEST(Tijdbeeld, PeriodesZonderIemandStaanErbij) {
  const auto staven = StavenVan({{{1700, {3, 1}}, {1850, {2, 2}}}, 5});
  ASSERT_EQ(staven.size(), 4U);
  EXPECT_EQ(staven[0].periode, "1700-1749");
  EXPECT_EQ(staven[0].zeker, 1);
  EXPECT_EQ(staven[1].periode, "1750-1799");
  EXPECT_EQ(staven[1].aantal, 0);
  EXPECT_EQ(staven[3].aantal, 2);
}

TEST(Tijdbeeld, EenGrootGatWordtPuntjes) {
  const auto staven = StavenVan({{{-32800, {1, 0}}, {0, {1, 0}}, {350, {1, 0}}, {750, {1, 0}}}, 4});
  std::vector<std::string> periodes;
  for (const Tijdstaaf& staaf : staven) periodes.push_back(staaf.periode);
  EXPECT_EQ(periodes, (std::vector<std::string>{"-32800--32751", "...", "0-49", "50-99", "100-149",
                                                "150-199", "200-249", "250-299", "300-349",
                                                "350-399", "...", "750-799"}));
}

TEST(Tijdbeeld, NiemandGeeftGeenStaven) {
  EXPECT_TRUE(StavenVan({}).empty());
}

}  // namespace
}  // namespace lb77
