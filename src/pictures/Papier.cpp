#include "pictures/Papier.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <variant>
#include <vector>

namespace lb77 {
namespace {

constexpr double kPuntPerMm = 72 / 25.4;
constexpr double kMarge = 10 * kPuntPerMm;
constexpr double kOverlap = 10 * kPuntPerMm;
constexpr double kSpeling = 1e-6;  // of rounding

// How many strips of `ruimte` that lie `stap` apart cover `lengte`.
int Aantal(double lengte, double ruimte, double stap) {
  if (lengte <= ruimte + kSpeling) return 1;
  return 1 + static_cast<int>(std::ceil((lengte - ruimte - kSpeling) / stap));
}

// The boxes around a shape: a line has one for each of its parts.
void Omhul(const Rechthoek& vlak, std::vector<Rechthoek>& uit) {
  uit.push_back(vlak);
}

void Omhul(const Ringdeel& ring, std::vector<Rechthoek>& uit) {
  uit.push_back(
      {ring.midden.x - ring.buiten, ring.midden.y - ring.buiten, 2 * ring.buiten, 2 * ring.buiten});
}

void Omhul(const Lijnstuk& lijn, std::vector<Rechthoek>& uit) {
  for (std::size_t i = 1; i < lijn.punten.size(); ++i) {
    const auto [links, rechts] = std::minmax({lijn.punten[i - 1].x, lijn.punten[i].x});
    const auto [boven, onder] = std::minmax({lijn.punten[i - 1].y, lijn.punten[i].y});
    uit.push_back({links, boven, rechts - links, onder - boven});
  }
}

void Omhul(const Opschrift& tekst, std::vector<Rechthoek>& uit) {
  const double ver = tekst.breedte + tekst.grootte;
  uit.push_back({tekst.plek.x - ver, tekst.plek.y - ver, 2 * ver, 2 * ver});
}

// Strips of `ruimte` that lie `stap` apart, the first one beginning at `begin`.
struct Stroken {
  double begin;
  double ruimte;
  double stap;
  int aantal;

  [[nodiscard]] double Begin(int i) const { return begin + i * stap; }
  // The first and the last that reach into a stretch.
  [[nodiscard]] int Eerste(double van) const {
    return std::clamp(static_cast<int>(std::floor((van - begin - ruimte) / stap)) + 1, 0,
                      aantal - 1);
  }
  [[nodiscard]] int Laatste(double tot) const {
    return std::clamp(static_cast<int>(std::floor((tot - begin) / stap)), 0, aantal - 1);
  }
};

// In the middle of the sheet, or of all sheets together.
Stroken MaakStroken(double lengte, double ruimte, double overlap, int aantal) {
  const double stap = ruimte - overlap;
  return {(lengte - (aantal * stap + overlap)) / 2, ruimte, stap, aantal};
}

// The sheets on which something stands but the ground, which is the first shape.
std::vector<bool> Bezet(const Tekening& tekening, const Stroken& kolommen, const Stroken& rijen) {
  std::vector<bool> uit(static_cast<std::size_t>(kolommen.aantal) *
                        static_cast<std::size_t>(rijen.aantal));
  std::vector<Rechthoek> vakken;
  for (std::size_t i = 1; i < tekening.vormen.size(); ++i) {
    vakken.clear();
    std::visit([&](const auto& wat) { Omhul(wat, vakken); }, tekening.vormen[i].wat);
    for (const Rechthoek& vak : vakken) {
      for (int rij = rijen.Eerste(vak.y); rij <= rijen.Laatste(vak.Onder()); ++rij) {
        for (int kolom = kolommen.Eerste(vak.x); kolom <= kolommen.Laatste(vak.Rechts()); ++kolom) {
          uit[static_cast<std::size_t>(rij * kolommen.aantal + kolom)] = true;
        }
      }
    }
  }
  return uit;
}

Vellen OpMaat(const Tekening& tekening) {
  return {tekening.breedte,
          tekening.hoogte,
          1,
          1,
          1,
          0,
          {{{0, 0, tekening.breedte, tekening.hoogte}, {}, 0, 0}}};
}

Vellen OpEenVel(const Tekening& tekening, Vellen uit) {
  const double breed = uit.breedte - 2 * kMarge;
  const double hoog = uit.hoogte - 2 * kMarge;
  uit.schaal = std::min(breed / tekening.breedte, hoog / tekening.hoogte);
  const double b = breed / uit.schaal;
  const double h = hoog / uit.schaal;
  uit.kolommen = 1;
  uit.rijen = 1;
  uit.vellen = {
      {{(tekening.breedte - b) / 2, (tekening.hoogte - h) / 2, b, h}, {kMarge, kMarge}, 0, 0}};
  return uit;
}

Vellen OpWareGrootte(const Tekening& tekening, Vellen uit) {
  const double breed = uit.breedte - 2 * kMarge;
  const double hoog = uit.hoogte - 2 * kMarge;
  uit.overlap = kOverlap;
  uit.kolommen = Aantal(tekening.breedte, breed, breed - kOverlap);
  uit.rijen = Aantal(tekening.hoogte, hoog, hoog - kOverlap);
  const Stroken kolommen = MaakStroken(tekening.breedte, breed, kOverlap, uit.kolommen);
  const Stroken rijen = MaakStroken(tekening.hoogte, hoog, kOverlap, uit.rijen);
  const std::vector<bool> bezet = Bezet(tekening, kolommen, rijen);
  for (int rij = 0; rij < uit.rijen; ++rij) {
    for (int kolom = 0; kolom < uit.kolommen; ++kolom) {
      if (!bezet[static_cast<std::size_t>(rij * uit.kolommen + kolom)]) continue;
      uit.vellen.push_back(
          {{kolommen.Begin(kolom), rijen.Begin(rij), breed, hoog}, {kMarge, kMarge}, kolom, rij});
    }
  }
  return uit;
}

}  // namespace

Vellen VerdeelOverVellen(const Tekening& tekening, const Papiermaat& papier, Stand stand,
                         Verdeling verdeling) {
  if (papier.breedte <= 0) return OpMaat(tekening);
  Vellen leeg;
  leeg.breedte = papier.breedte * kPuntPerMm;
  leeg.hoogte = papier.hoogte * kPuntPerMm;
  if (stand == Stand::Liggend) std::swap(leeg.breedte, leeg.hoogte);
  return verdeling == Verdeling::EenVel ? OpEenVel(tekening, leeg) : OpWareGrootte(tekening, leeg);
}

}  // namespace lb77
