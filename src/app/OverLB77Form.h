// The box that tells which version this is.
#pragma once

#include "forms/Formulier.h"

namespace lb77 {

class OverLB77Form final : public Formulier {
 public:
  OverLB77Form();

  Label Programma{*this, "Programma", "LB77 voor Windows"};
  Label Versie{*this, "Versie", "Versie " LB77_VERSIE};
  Knop OKButton{*this, "OKButton", "&OK"};
};

}  // namespace lb77
