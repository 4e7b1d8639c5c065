// A sheet of an ancestor table: one person and three generations of his ancestors, in fixed places.
#pragma once

#include <array>
#include <cstddef>

#include "ancestors/KwstTabel.h"

namespace lb77 {

inline constexpr int kBladPlaatsen = 15;
// The first place of the last generation, and the generations of a sheet.
inline constexpr int kBladLaatste = 8;
inline constexpr int kBladGeneraties = 4;

// The entry of the father or mother of entry `kind`; 0 when he or she is not in the table.
[[nodiscard]] int index_ouder(const KwstTabel& tabel, int kind, bool moeder);

struct BladPlaats {
  bool bezet = false;  // a place without an entry has a number all the same
  int KW_Index = 0;    // its entry; 0 of an empty place too
  Kwartiernummer KW_Nr;
  bool Kwartier_A = false;  // the ancestors of this one lie on a further sheet
};

// Places count from 1, the root of the sheet; the father of place p stands on 2p, the mother on
// 2p + 1. A place under an empty place is empty.
class KwstBlad {
 public:
  // All places empty, and without a number of their own.
  KwstBlad() = default;
  // `wortel` is an entry of the table.
  KwstBlad(const KwstTabel& tabel, int wortel);

  [[nodiscard]] const BladPlaats& Plaats(int p) const {
    return plaatsen_[static_cast<std::size_t>(p)];
  }

 private:
  std::array<BladPlaats, kBladPlaatsen + 1> plaatsen_;
};

}  // namespace lb77
