// The fields that find a place by the beginning of its name.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "entry/InvoerVak.h"
#include "forms/Weergave.h"

namespace lb77 {

// The controls by their names: the name that is typed, and the code and province that go with it.
struct PlaatsZoekSoort {
  std::string_view naam;
  std::string_view nr;
  std::string_view prov;
};

// Leaving the name offers each place that begins so, and adds none.
class PlaatsZoekVak {
 public:
  PlaatsZoekVak(InvoerFormulier& formulier, const PlaatsZoekSoort& soort);

  InvoerVak Naam;
  Teller Nr;
  Teller Prov;

  // The place that was found; 0 for none.
  [[nodiscard]] std::int16_t PlaatsNr() const { return gevonden_; }

 private:
  [[nodiscard]] bool NaamVerlaten();

  Hoofdmodule& hoofd_;
  std::int16_t gevonden_ = 0;
  std::string gezocht_;
};

}  // namespace lb77
