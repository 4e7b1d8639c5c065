// The settings dialog of the denominations.
#pragma once

#include "app/GezindteRij.h"
#include "app/InstelFormulier.h"
#include "forms/Regels.h"

namespace lb77 {

// One denomination: "GezAfkTekst(0)" and "GezTekst(0)".
struct GezindteRegel {
  GezindteRegel(Formulier& formulier, int nummer);

  Tekstvak GezAfkTekst;
  Tekstvak GezTekst;
};

// The rows 0 to 19 are the settings Gez1 to Gez20: two characters of code, and the name behind them.
class IniGezindte final : public InstelFormulier {
 public:
  explicit IniGezindte(Hoofdmodule& hoofd);

  Label GezindtenLabel{*this, "GezindtenLabel", "Gezindten:"};
  Regels<GezindteRegel, kGezindteRijen> Gezindten{*this, 0};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override;
  void Bewaar() override;
};

}  // namespace lb77
