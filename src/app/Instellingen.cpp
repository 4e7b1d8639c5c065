#include "app/Instellingen.h"

#include <optional>

#include "app/Sleutels.h"
#include "text/Getallen.h"

namespace lb77 {

std::int16_t Instellingen::Tekstbr() const {
  const std::optional<SleutelPlaats> plaats = VindSleutel("Printer", "Tekstbr");
  if (!plaats || plaats->rij >= waarden.size()) return 0;
  return NaarInt16(Getalwaarde(waarden[plaats->rij][0])).value_or(0);
}

}  // namespace lb77
