// How many persons bear each surname.
#pragma once

#include "forms/Velden.h"
#include "reports/LijstForm.h"

namespace lb77 {

class RptFamilies final : public LijstForm {
 public:
  explicit RptFamilies(Hoofdmodule& hoofd);

  Label UitlegLabel{*this, "UitlegLabel",
                    "De Verdeling Familienamen brengt het aantal naamdragers per familienaam in "
                    "beeld."};
  // Asked for on OK, not when it is left.
  Tekstvak MinimumAantal{*this, "MinimumAantal", "Minimum aantal dragers per naam:", 4};
  Teller AantalNamen{*this, "AantalNamen", "Aantal gevonden familienamen:"};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override { MinimumAantal.ZetTekst("1"); }
  [[nodiscard]] bool IsGenoeg() override;
  [[nodiscard]] Uitslag Schrijf(RecordBron& bron, TekstSchrijver& uit,
                                const Verloop& verloop) override;

 private:
  [[nodiscard]] int Minimum() const;
};

}  // namespace lb77
