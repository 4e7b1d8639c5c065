#include "forms/Tekening.h"

#include <cmath>
#include <numbers>

namespace lb77 {
namespace {

constexpr double kRond = 360;
constexpr double kHalf = 180;

bool Bevat(const Rechthoek& vlak, Punt punt) {
  return punt.x >= vlak.x && punt.x <= vlak.Rechts() && punt.y >= vlak.y && punt.y <= vlak.Onder();
}

bool Bevat(const Ringdeel& ring, Punt punt) {
  const double dx = punt.x - ring.midden.x;
  const double dy = punt.y - ring.midden.y;
  const double afstand = std::hypot(dx, dy);
  if (afstand < ring.binnen || afstand > ring.buiten) return false;
  const double hoek = std::atan2(dy, dx) * kHalf / std::numbers::pi;
  const double vanaf = std::fmod(std::fmod(hoek - ring.van, kRond) + kRond, kRond);
  return vanaf <= ring.tot - ring.van;
}

}  // namespace

Punt OpCirkel(Punt midden, double straal, double graden) {
  const double hoek = graden * std::numbers::pi / kHalf;
  return {midden.x + straal * std::cos(hoek), midden.y + straal * std::sin(hoek)};
}

int DoelOp(const Tekening& tekening, Punt punt) {
  for (std::size_t i = tekening.doelen.size(); i-- > 0;) {
    const auto& wat = tekening.vormen[tekening.doelen[i].vlak].wat;
    const auto* vlak = std::get_if<Rechthoek>(&wat);
    const auto* ring = std::get_if<Ringdeel>(&wat);
    if ((vlak && Bevat(*vlak, punt)) || (ring && Bevat(*ring, punt))) return static_cast<int>(i);
  }
  return -1;
}

Punt MiddenVan(const Vorm& vorm) {
  if (const auto* vlak = std::get_if<Rechthoek>(&vorm.wat)) {
    return {vlak->x + vlak->breedte / 2, vlak->y + vlak->hoogte / 2};
  }
  if (const auto* ring = std::get_if<Ringdeel>(&vorm.wat)) {
    if (ring->binnen <= 0) return ring->midden;
    return OpCirkel(ring->midden, (ring->binnen + ring->buiten) / 2, (ring->van + ring->tot) / 2);
  }
  return {};
}

}  // namespace lb77
