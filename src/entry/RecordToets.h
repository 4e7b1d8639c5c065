// May a form show the record that it was given the number of?
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "entry/KaartVelden.h"
#include "forms/Gesprek.h"
#include "text/Getallen.h"

namespace lb77 {

// What the user is told of a number outside the file, and of a record that can't be read, with its
// number behind it; empty when the class itself has told.
struct ToetsWoorden {
  std::string_view komtNietVoor;
  std::string_view leesfout;
};

// Reads it. Says no, with the reason, when there is none, and for a continuation.
template <class Klasse>
[[nodiscard]] bool LeesHoofdrecord(Gesprek& gesprek, Klasse& klasse, std::int16_t nr,
                                   const ToetsWoorden& woorden) {
  if (nr < 2 || nr > klasse.AantalRecords()) {
    gesprek.Waarschuw(woorden.komtNietVoor);
  } else if (!klasse.Lees(nr)) {
    if (!woorden.leesfout.empty()) gesprek.Fout(std::string(woorden.leesfout) + GetalTekst(nr));
  } else if (klasse.IsVolgRecord()) {
    gesprek.Waarschuw(kIsVervolgrecord);
  } else {
    return true;
  }
  return false;
}

}  // namespace lb77
