// What the report phrases need: the record classes that they read, and the options of the run.
#pragma once

#include <string>

#include "store/Codes.h"
#include "store/OpmLB77.h"
#include "store/PersoonLB77.h"
#include "store/PlaatsLB77.h"
#include "store/RelatieLB77.h"
#include "store/Volgers.h"
#include "text/Schrijfwijze.h"

namespace lb77 {

// References only; all must outlive the phrases. The buffers of the record classes change.
struct ZinBronnen {
  PersoonLB77& persoon;
  RelatieLB77& relatie;
  PlaatsLB77& plaats;
  OpmLB77& opmerking;
  Volgers& volgers;
  const Schrijfwijze& schrijfwijze;
};

// How a report tells its persons.
struct ZinOpties {
  bool ookOpm = false;  // with remarks
  bool ookNrs = false;  // with record numbers
  bool inHTML = false;
  int opmMasker = uitvoer::kKwartierstaat;  // the bit of this kind of report
  std::string toonTrouw = "2";  // how three marriage events are shortened: "0", "1" or "2"
};

}  // namespace lb77
