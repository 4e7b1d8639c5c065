#include "text/RomeinsGetal.h"

#include <array>
#include <string_view>

namespace lb77 {

namespace {

struct Teken {
  std::int16_t waarde = 0;
  std::string_view tekst;
};

constexpr std::array kTekens = {
    Teken{1000, "M"}, Teken{900, "CM"}, Teken{500, "D"}, Teken{400, "CD"}, Teken{100, "C"},
    Teken{90, "XC"},  Teken{50, "L"},   Teken{40, "XL"}, Teken{10, "X"},   Teken{9, "IX"},
    Teken{5, "V"},    Teken{4, "IV"},   Teken{1, "I"},
};

}  // namespace

std::string RomeinsGetal(std::int16_t getal) {
  std::string uit;
  int rest = getal;
  for (const Teken& teken : kTekens) {
    for (; rest >= teken.waarde; rest -= teken.waarde) uit += teken.tekst;
  }
  return uit;
}

}  // namespace lb77
