// Selects relations by a partner and by their dates.
#pragma once

#include "reports/LijstForm.h"
#include "reports/SelectieVelden.h"

namespace lb77 {

class SelectRel final : public LijstForm {
 public:
  explicit SelectRel(Hoofdmodule& hoofd);

  NaamVelden Namen{*this};
  GeslachtVelden Geslacht{*this};
  Label HuwLabel{*this, "HuwLabel", "Ondertrouw, Wettelijk of Kerkelijk Huwelijk  in de Periode:"};
  PeriodeVelden Huwelijk{*this, "Huw", "Huwelijk"};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override;
  [[nodiscard]] bool IsGenoeg() override;
  [[nodiscard]] Uitslag Schrijf(RecordBron& bron, TekstSchrijver& uit,
                                const Verloop& verloop) override;

 private:
  RelatieKeus keus_;
};

}  // namespace lb77
