// A tree of boxes: the ancestors of a person, or his descendants.
#pragma once

#include <string>

#include "forms/Tekening.h"
#include "pictures/BeeldPersoon.h"
#include "pictures/Lettermaat.h"

namespace lb77 {

enum class Groei { Rechts, Omhoog, Omlaag };

struct BoomKeuzen {
  Groei groei = Groei::Rechts;
  Kleurwijze kleuren = Kleurwijze::Generatie;
  std::string titel;
};

// Everybody in a box behind that of the person whom he hangs on, who stands halfway those behind him.
[[nodiscard]] Tekening MaakBoom(const BeeldPersonen& personen, const BoomKeuzen& keuzen,
                                const Lettermaat& maat);

}  // namespace lb77
