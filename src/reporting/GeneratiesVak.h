// The field for the last generation of a report, with its leave check.
#pragma once

#include <string_view>

#include "reporting/GrensVak.h"

namespace lb77 {

// What a report can take, its message about any other number, and what a refused one becomes.
struct Generatiegrens {
  int laagste;
  int hoogste;
  std::string_view melding;
  std::string_view herstel = {};
};

inline constexpr Generatiegrens kTotTachtig{1, 80, "Onjuist aantal generaties (1-80)"};

class GeneratiesVak final : public GrensVak {
 public:
  // Named MaxGen. `grens` says what it accepts; an empty field is refused too.
  GeneratiesVak(Formulier& formulier, Gesprek& gesprek, const Generatiegrens& grens)
      : GrensVak(formulier, gesprek,
                 {"MaxGen", "Maximum aantal generaties:", 2, grens.laagste, grens.hoogste,
                  "Het maximum aantal generaties is verplicht", grens.melding, grens.herstel}) {}

  [[nodiscard]] int Generaties() const { return Getal(); }
};

}  // namespace lb77
