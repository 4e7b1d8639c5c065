// The settings dialog of the function keys.
#pragma once

#include "app/InstelFormulier.h"
#include "forms/Rij.h"

namespace lb77 {

// F9 to F12 have a text in the settings too, which no key types and no field shows.
class IniFunctie final : public InstelFormulier {
 public:
  explicit IniFunctie(Hoofdmodule& hoofd);

  Label DefinieerLabel{*this, "DefinieerLabel", "Definieer de functietoetsen:"};
  Rij<Tekstvak, 8> FtoetsTekst{*this, "FtoetsTekst", 1};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};
};

}  // namespace lb77
