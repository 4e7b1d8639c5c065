// Replaces a place by another in all persons and relations.
#pragma once

#include <cstdint>
#include <functional>

#include "store/Bestandenset.h"
#include "store/PersoonLB77.h"
#include "store/RelatieLB77.h"

namespace lb77 {

// Numbers are compared as they are stored: a place that is presumed or questionable carries another.
// Continuation records, and records that can't be read, are left alone, the latter without a box. The
// buffers of both classes change.
class PlaatsVervanging {
 public:
  // How far it is.
  struct Voortgang {
    std::function<void(std::int16_t nr)> persoon;           // before it is read
    std::function<void(std::int16_t nr)> relatie;           // before it is read
    std::function<void(std::int32_t vervangen)> vervangen;  // behind each record that was changed
  };

  PlaatsVervanging(PersoonLB77& persoon, RelatieLB77& relatie, Bestandenset& bestanden)
      : persoon_(persoon), relatie_(relatie), bestanden_(bestanden) {}

  // How many fields name that place, as far as the admin records say that there are records.
  [[nodiscard]] std::int32_t Tel(std::int16_t oud);
  // Stores `nieuw` in each field that names `oud`. Warns of wrong counts first, then shows nothing
  // but a failure to write, which ends it: False then.
  [[nodiscard]] bool Vervang(std::int16_t oud, std::int16_t nieuw, const Voortgang& voortgang);

 private:
  PersoonLB77& persoon_;
  RelatieLB77& relatie_;
  Bestandenset& bestanden_;
};

}  // namespace lb77
