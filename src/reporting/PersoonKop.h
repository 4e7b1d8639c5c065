// The person that a report is about, as its parameter dialog shows him.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "forms/Weergave.h"

namespace lb77 {

class Formulier;
class PersoonLB77;

// Four values at the head of a dialog. `wie` ("Proband") ends the names of the first three:
// NrProband, VoorNmProband, AchterNmProband, Periode.
struct PersoonKop {
  PersoonKop(Formulier& formulier, std::string_view wie);

  // Shows number, names ("<onbekend>" for a missing one) and lifetime. Reads `nr`.
  void Toon(PersoonLB77& persoon, std::int16_t nr);
  // First names and surname with a blank between them.
  [[nodiscard]] std::string Naam() const;

  Teller Nr;
  Teller VoorNm;
  Teller AchterNm;
  Teller Periode;
};

}  // namespace lb77
