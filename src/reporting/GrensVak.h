// A number of a report within its bounds, with its leave check.
#pragma once

#include <cstddef>
#include <string_view>

#include "forms/Velden.h"

namespace lb77 {

class Formulier;
class Gesprek;

// What tells one such field from another.
struct GrensVakSoort {
  std::string_view naam;
  std::string_view bijschrift;
  std::size_t lengte;  // most characters
  int laagste;
  int hoogste;
  std::string_view leeg;  // said of an empty field; without it an empty field is 0
  std::string_view buiten;
  std::string_view herstel = {};  // what a refused text becomes; without it it stays
};

class GrensVak : public Tekstvak {
 public:
  GrensVak(Formulier& formulier, Gesprek& gesprek, const GrensVakSoort& soort);

  [[nodiscard]] int Getal() const;

 private:
  [[nodiscard]] bool Verlaten();

  Gesprek& gesprek_;
  GrensVakSoort soort_;
};

}  // namespace lb77
