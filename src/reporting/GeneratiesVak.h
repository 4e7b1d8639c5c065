// The field for the last generation of a report, with its leave check.
#pragma once

#include <string_view>

#include "forms/Velden.h"

namespace lb77 {

class Formulier;
class Gesprek;

// What a report can take, and its message about any other number.
struct Generatiegrens {
  int laagste;
  int hoogste;
  std::string_view melding;
};

inline constexpr Generatiegrens kTotTachtig{1, 80, "Onjuist aantal generaties (1-80)"};

class GeneratiesVak final : public Tekstvak {
 public:
  // Named MaxGen. `grens` says what it accepts; an empty field is refused too.
  GeneratiesVak(Formulier& formulier, Gesprek& gesprek, const Generatiegrens& grens);

  [[nodiscard]] int Generaties() const;

 private:
  [[nodiscard]] bool Verlaten();

  Gesprek& gesprek_;
  Generatiegrens grens_;
};

}  // namespace lb77
