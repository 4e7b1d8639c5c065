#include "app/OverLB77Form.h"

namespace lb77 {

OverLB77Form::OverLB77Form() : Formulier("OverLB77Form", "Over LB77 voor Windows") {
  ZetHulpOnderwerp("starten");
  ZetEersteVeld(OKButton);
  OKButton.BijKlik([this] { Sluit(); });
}

}  // namespace lb77
