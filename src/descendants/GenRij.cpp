#include "descendants/GenRij.h"

#include <algorithm>

namespace lb77 {
namespace {

GenRij::Bereik BereikVan(const GenTabel& tabel, const GenRij& rijen, int ouder) {
  const int eerste = tabel.EersteKind(ouder);
  GenRij::Bereik uit{rijen.Rij(eerste), rijen.Rij(eerste)};
  for (int kind = tabel.VolgendKind(eerste); kind > 0; kind = tabel.VolgendKind(kind)) {
    uit.van = std::min(uit.van, rijen.Rij(kind));
    uit.tot = std::max(uit.tot, rijen.Rij(kind));
  }
  return uit;
}

}  // namespace

void GenRij::Begin(int aantal) {
  rij_.assign(Plaats(aantal), -1);
  blad_.clear();
  kinderen_.assign(Plaats(aantal), {});
}

void GenRij::PlaatsBlad(int i) {
  rij_[Plaats(i)] = static_cast<std::int16_t>(Aantal());
  blad_.push_back(static_cast<std::int16_t>(i));
}

void GenRij::PlaatsOuder(int i, Bereik kinderen, bool centreren) {
  const int rij = centreren ? (kinderen.van + kinderen.tot) / 2 : kinderen.van;
  rij_[Plaats(i)] = static_cast<std::int16_t>(rij);
  kinderen_[Plaats(i)] = kinderen;
}

Uitslag PlaatsGen(GenRij& rijen, const GenTabel& tabel, bool centreren, const Verloop& verloop) {
  rijen.Begin(tabel.GenAantal());
  int i = 0;
  do {
    if (verloop.afbreken()) return Einde::Afgebroken;
    if (tabel.EersteKind(i) == 0) rijen.PlaatsBlad(i);
    verloop.toon(tabel.Persoon(i), rijen.Aantal());
    i = tabel.VolgendeInTak(i);
  } while (i > 0);
  // A child stands behind his parent in the table, so the walk from its end finds all children placed.
  for (int ouder = tabel.GenAantal() - 1; ouder >= 0; --ouder) {
    if (tabel.EersteKind(ouder) == 0) continue;
    rijen.PlaatsOuder(ouder, BereikVan(tabel, rijen, ouder), centreren);
  }
  return Einde::Klaar;
}

}  // namespace lb77
