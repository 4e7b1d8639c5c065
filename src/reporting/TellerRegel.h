// A counter of a form that works, behind the label that tells what it counts.
#pragma once

#include <string>
#include <string_view>

#include "forms/Weergave.h"

namespace lb77 {

class Formulier;

// The control's own name, and the text of the label; the label is named after it.
struct TellerSoort {
  std::string_view naam;
  std::string_view label;
  std::string_view tekst;
};

struct TellerRegel {
  TellerRegel(Formulier& formulier, const TellerSoort& soort)
      : Bijschrift(formulier, soort.label, soort.tekst), Stand(formulier, soort.naam) {}

  Label Bijschrift;
  Teller Stand;
};

// The person being read.
inline constexpr TellerSoort kPersoonsNr{"PersoonsNr", "PersNrLabel", "Bezig met persoon:"};

}  // namespace lb77
