// How a run of the report phrases tells its persons.
#pragma once

#include <string>

#include "store/Codes.h"

namespace lb77 {

struct ZinOpties {
  bool ookOpm = false;  // with remarks
  bool ookNrs = false;  // with record numbers
  bool inHTML = false;
  int opmMasker = uitvoer::kKwartierstaat;  // the bit of this kind of report
  std::string toonTrouw = "2";  // how three marriage events are shortened: "0", "1" or "2"
};

}  // namespace lb77
