#include "ancestors/KwstSchema.h"

#include <bit>

namespace lb77 {
namespace {

// Record 1 tells about its file; it is nobody.
constexpr std::int16_t kEerstePersoon = 2;

std::int16_t Iemand(std::int16_t nr) {
  return nr >= kEerstePersoon ? nr : std::int16_t{0};
}

}  // namespace

KwstSchema::KwstSchema(int generaties)
    : generaties_(generaties),
      persoon_(std::size_t{1} << generaties),
      rij_(std::size_t{1} << generaties) {
  for (int k = 1; k <= Aantal(); ++k) {
    const int generatie = Generatie(k);
    const int hoogte = (1 << (generaties_ - generatie + 1)) - 1;  // lines of the subtree
    const int inGeneratie = k - (1 << (generatie - 1));           // its place, from 0
    rij_[Plaats(hoogte / 2 + inGeneratie * (hoogte + 1) + 1)] = k;
  }
}

int KwstSchema::Generatie(int k) {
  return static_cast<int>(std::bit_width(static_cast<unsigned>(k)));
}

void KwstSchema::Bouw(std::int16_t proband, PersoonLB77& persoon, RelatieLB77& relatie) {
  persoon_[1] = Iemand(proband);
  for (int k = 1; Generatie(k) < generaties_; ++k) {
    const bool bekend = SchemaPersoon(k) > 0 && persoon.Lees(SchemaPersoon(k));
    const std::int16_t ouders = bekend ? persoon.RelNrOuders() : std::int16_t{0};
    if (ouders <= 0 || !relatie.Lees(ouders)) continue;
    persoon_[Plaats(2 * k)] = Iemand(relatie.ManNr());
    persoon_[Plaats(2 * k + 1)] = Iemand(relatie.VrouwNr());
  }
}

std::string KwstSchema::Lijnen(int k, int breedte) const {
  if (k == 1) return {};
  const int generatie = Generatie(k);
  std::string lijn(Plaats((generatie - 2) * breedte), ' ');
  lijn += k % 2 == 0 ? '/' : '\\';
  lijn.append(Plaats(breedte - 1), '=');
  lijn += generatie == generaties_ ? '=' : '+';
  // A stroke wherever the line of a descendant passes on its way to his child: from a father's side
  // to a mother's, or back.
  for (int c = k, j = generatie; j > 2; c /= 2, --j) {
    if (c % 2 != c / 2 % 2) lijn[Plaats((j - 3) * breedte)] = '|';
  }
  return lijn;
}

Kwartiernummer SchemaNummer(const Kwartiernummer& begin, int k) {
  Kwartiernummer nummer = begin;
  for (int bit = KwstSchema::Generatie(k) - 2; bit >= 0; --bit) {
    nummer = (k >> bit) % 2 == 0 ? nummer.Vader() : nummer.Moeder();
  }
  return nummer;
}

}  // namespace lb77
