// What a computation or a report asks and tells while it runs, and how it ended.
#pragma once

#include <functional>

#include "output/Leesfout.h"

namespace lb77 {

// Vol: a table is full, and what it holds can be written. Schrijffout: the file could not be made
// or written, and that has been told.
enum class Einde { Klaar, Vol, Afgebroken, Leesfout, Schrijffout };

// An end, and the record of a read that failed.
struct Uitslag {
  Uitslag(Einde hoe) : einde(hoe) {}  // NOLINT(google-explicit-constructor): every end is one
  Uitslag(const Leesfout& welk)       // NOLINT(google-explicit-constructor)
      : einde(Einde::Leesfout), fout(welk) {}

  Einde einde;
  Leesfout fout;

  friend bool operator==(const Uitslag& uitslag, Einde einde) { return uitslag.einde == einde; }
};

struct Verloop {
  std::function<bool()> afbreken;                     // tested often; True ends the work
  std::function<void(int persoon, int aantal)> toon;  // person 0: none being read
};

}  // namespace lb77
