// Selects persons by their names, occupation and dates.
#pragma once

#include "reports/LijstForm.h"
#include "reports/SelectieVelden.h"

namespace lb77 {

class SelectPrs final : public LijstForm {
 public:
  explicit SelectPrs(Hoofdmodule& hoofd);

  Label ZoekLabel{*this, "ZoekLabel", "Zoek naar Personen met:"};
  NaamVelden Namen{*this};
  InvoerVak BeroepTekst;
  GeslachtVelden Geslacht{*this};
  Label GebLabel{*this, "GebLabel", "Geboorte of Doop in de Periode:"};
  PeriodeVelden Geboorte{*this, "Geb", "Geboorte of Doop"};
  Label OvLabel{*this, "OvLabel", "Overlijden of Begraven in de Periode:"};
  PeriodeVelden Overlijden{*this, "Ov", "Overlijden of Begraven"};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override;
  [[nodiscard]] bool IsGenoeg() override;
  [[nodiscard]] Uitslag Schrijf(RecordBron& bron, TekstSchrijver& uit,
                                const Verloop& verloop) override;

 private:
  PersoonKeus keus_;
};

}  // namespace lb77
