// What becomes of each line below a record that is no person and no relation.
#pragma once

#include <span>
#include <string_view>

namespace lb77 {

enum class OverigeActie {
  Tekenset,  // the character set of the file
  BronNaam,  // shown while the import runs
  // Of a file of our own.
  EigenVorm,   // that it is one
  PlaatsProv,  // the province of the place that its name follows
  PlaatsNaam,  // a place
  Niets        // known, and passed over
};

struct OverigPad {
  std::string_view pad;
  OverigeActie actie;
};

[[nodiscard]] std::span<const OverigPad> AlleOverigePaden();

}  // namespace lb77
