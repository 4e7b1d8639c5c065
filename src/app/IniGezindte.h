// The settings dialog of the denominations.
#pragma once

#include <string_view>

#include "app/InstelFormulier.h"
#include "forms/Rij.h"

namespace lb77 {

// One denomination: "GezAfkTekst(0)" and "GezTekst(0)".
struct GezindteRegel {
  GezindteRegel(Formulier& formulier, std::string_view nummer);

  Tekstvak GezAfkTekst;
  Tekstvak GezTekst;
};

// The rows 0 to 19 are the settings Gez1 to Gez20: two characters of code, and the name behind them.
class IniGezindte final : public InstelFormulier {
 public:
  explicit IniGezindte(Hoofdmodule& hoofd);

  Label GezindtenLabel{*this, "GezindtenLabel", "Gezindten:"};
  Rij<GezindteRegel, 20> Regels{*this, "", 0};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override;
  void Bewaar() override;
};

}  // namespace lb77
