// How many persons or relations a file tells of.
#pragma once

#include <cstdint>

namespace lb77 {

// The records 2 to `laatste` that are no continuation of another; those that cannot be read do not
// count. The buffer of `klasse` (PersoonLB77 or RelatieLB77) holds another record afterwards.
template <class Klasse>
[[nodiscard]] int AantalHoofdrecords(Klasse& klasse, std::int32_t laatste) {
  int aantal = 0;
  for (std::int32_t nr = 2; nr <= laatste; ++nr) {
    if (klasse.Lees(static_cast<std::int16_t>(nr)) && !klasse.IsVolgRecord()) ++aantal;
  }
  return aantal;
}

}  // namespace lb77
