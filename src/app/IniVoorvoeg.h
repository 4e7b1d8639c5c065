// The settings dialog of the prefixes of surnames.
#pragma once

#include "app/InstelFormulier.h"

namespace lb77 {

// The lists stand as they are typed, with commas between the prefixes.
class IniVoorvoeg final : public InstelFormulier {
 public:
  explicit IniVoorvoeg(Hoofdmodule& hoofd);

  Tekstvak Voorvoeg1Tekst{*this, "Voorvoeg1Tekst", "Eerste voorvoegsel:"};
  Tekstvak Voorvoeg2Tekst{*this, "Voorvoeg2Tekst", "Tweede voorvoegsel:"};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};
};

}  // namespace lb77
