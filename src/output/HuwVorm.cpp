#include "output/HuwVorm.h"

#include <array>

#include "store/Rubrieken.h"

namespace lb77 {

namespace {

using huw::kKerk;
using huw::kOndertrouw;
using huw::kWettig;

constexpr unsigned kO = kOndertrouw;
constexpr unsigned kW = kWettig;
constexpr unsigned kK = kKerk;

// The remarks on each event.
constexpr int kOtr = RubriekBits(relatierubriek::kOtrPlaats, relatierubriek::kOtrDatum);
constexpr int kWetHuw = RubriekBits(relatierubriek::kWetHuwPlaats, relatierubriek::kWetHuwDatum);
constexpr int kSoort = RubriekBits(relatierubriek::kHuwSoort);
constexpr int kKHuw = RubriekBits(relatierubriek::kKHuwPlaats, relatierubriek::kKHuwDatum);

enum class Eis { Geen, EenVan, NietEen };

struct Regel {
  unsigned bekend;
  std::string_view toonTrouw;  // empty: any
  Eis eis;
  int bits;
  HuwVorm vorm;
};

// The first row that fits decides. kept: a remark on the kind of the civil marriage parts no
// pair of two events, only one out of three.
constexpr std::array kRegels = {
    Regel{kO, "", Eis::Geen, 0, {kO, 0}},
    Regel{kW, "", Eis::Geen, 0, {kW, 0}},
    Regel{kK, "", Eis::Geen, 0, {kK, 0}},
    Regel{kO | kK, "", Eis::EenVan, kOtr | kKHuw, {kO | kK, 0}},
    Regel{kO | kK, "", Eis::NietEen, kOtr | kKHuw, {0, kO | kK}},
    Regel{kO | kW, "", Eis::EenVan, kOtr | kWetHuw, {kO | kW, 0}},
    Regel{kO | kW, "", Eis::NietEen, kOtr | kWetHuw, {0, kO | kW}},
    Regel{kW | kK, "", Eis::EenVan, kWetHuw | kKHuw, {kW | kK, 0}},
    Regel{kW | kK, "", Eis::NietEen, kWetHuw | kKHuw, {0, kW | kK}},
    Regel{kO | kW | kK, "0", Eis::EenVan, kOtr | kWetHuw | kSoort, {kO | kW, 0}},
    Regel{kO | kW | kK, "0", Eis::NietEen, kOtr | kWetHuw | kSoort, {0, kO | kW}},
    Regel{kO | kW | kK, "1", Eis::EenVan, kWetHuw | kSoort | kKHuw, {kW | kK, 0}},
    Regel{kO | kW | kK, "1", Eis::NietEen, kWetHuw | kSoort | kKHuw, {0, kW | kK}},
    Regel{kO | kW | kK, "", Eis::NietEen, kWetHuw | kSoort | kKHuw, {kO, kW | kK}},
    Regel{kO | kW | kK, "", Eis::NietEen, kOtr | kWetHuw | kSoort, {kK, kO | kW}},
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
