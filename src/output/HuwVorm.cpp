#include "output/HuwVorm.h"

#include <array>

namespace lb77 {

namespace {

using huw::kKerk;
using huw::kOndertrouw;
using huw::kWettig;

constexpr unsigned kO = kOndertrouw;
constexpr unsigned kW = kWettig;
constexpr unsigned kK = kKerk;

enum class Eis { Geen, EenVan, NietEen };

struct Regel {
  unsigned bekend;
  std::string_view toonTrouw;  // empty: any
  Eis eis;
  int bits;
  HuwVorm vorm;
};

// The first row that fits decides. kept: a remark on the kind of the civil marriage (16) parts no
// pair of two events, only one out of three.
constexpr std::array kRegels = {
    Regel{kO, "", Eis::Geen, 0, {kO, 0}},
    Regel{kW, "", Eis::Geen, 0, {kW, 0}},
    Regel{kK, "", Eis::Geen, 0, {kK, 0}},
    Regel{kO | kK, "", Eis::EenVan, 1 | 2 | 32 | 64, {kO | kK, 0}},
    Regel{kO | kK, "", Eis::NietEen, 1 | 2 | 32 | 64, {0, kO | kK}},
    Regel{kO | kW, "", Eis::EenVan, 1 | 2 | 4 | 8, {kO | kW, 0}},
    Regel{kO | kW, "", Eis::NietEen, 1 | 2 | 4 | 8, {0, kO | kW}},
    Regel{kW | kK, "", Eis::EenVan, 4 | 8 | 32 | 64, {kW | kK, 0}},
    Regel{kW | kK, "", Eis::NietEen, 4 | 8 | 32 | 64, {0, kW | kK}},
    Regel{kO | kW | kK, "0", Eis::EenVan, 1 | 2 | 4 | 8 | 16, {kO | kW, 0}},
    Regel{kO | kW | kK, "0", Eis::NietEen, 1 | 2 | 4 | 8 | 16, {0, kO | kW}},
    Regel{kO | kW | kK, "1", Eis::EenVan, 4 | 8 | 16 | 32 | 64, {kW | kK, 0}},
    Regel{kO | kW | kK, "1", Eis::NietEen, 4 | 8 | 16 | 32 | 64, {0, kW | kK}},
    Regel{kO | kW | kK, "", Eis::NietEen, 4 | 8 | 16 | 32 | 64, {kO, kW | kK}},
    Regel{kO | kW | kK, "", Eis::NietEen, 1 | 2 | 4 | 8 | 16, {kK, kO | kW}},
    Regel{kO | kW | kK, "", Eis::Geen, 0, {kO | kW | kK, 0}},
};

bool Past(const Regel& regel, unsigned bekend, int opmCode, std::string_view toonTrouw) {
  if (regel.bekend != bekend) return false;
  if (!regel.toonTrouw.empty() && regel.toonTrouw != toonTrouw) return false;
  switch (regel.eis) {
    case Eis::Geen:
      return true;
    case Eis::EenVan:
      return (opmCode & regel.bits) != 0;
    case Eis::NietEen:
      return (opmCode & regel.bits) == 0;
  }
  return false;
}

}  // namespace

HuwVorm KiesHuwVorm(unsigned bekend, int opmCode, std::string_view toonTrouw) {
  for (const Regel& regel : kRegels) {
    if (Past(regel, bekend, opmCode, toonTrouw)) return regel.vorm;
  }
  return {};
}

}  // namespace lb77
