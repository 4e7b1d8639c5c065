// What a reader of records needs: the four record classes, and what goes with them.
#pragma once

#include "store/OpmLB77.h"
#include "store/PersoonLB77.h"
#include "store/PlaatsLB77.h"
#include "store/RelatieLB77.h"
#include "store/Volgers.h"
#include "text/Schrijfwijze.h"

namespace lb77 {

// References only; all must outlive the reader. The buffers of the record classes change.
struct Gegevens {
  PersoonLB77& persoon;
  RelatieLB77& relatie;
  PlaatsLB77& plaats;
  OpmLB77& opmerking;
  Volgers& volgers;
  const Schrijfwijze& schrijfwijze;
};

}  // namespace lb77
