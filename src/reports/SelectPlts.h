// Selects what happened at a place.
#pragma once

#include "entry/PlaatsZoekVak.h"
#include "reports/LijstForm.h"
#include "reports/Selecties.h"

namespace lb77 {

class SelectPlts final : public LijstForm {
 public:
  explicit SelectPlts(Hoofdmodule& hoofd);

  PlaatsZoekVak Plaats{*this, {"PltsNm", "PltsNr", "PltsProv"}};
  Vinkje ZoekGeb{*this, "ZoekGeb", "&Geboorte"};
  Vinkje ZoekDoop{*this, "ZoekDoop", "&Doop"};
  Vinkje ZoekOv{*this, "ZoekOv", "O&verlijden"};
  Vinkje ZoekBegr{*this, "ZoekBegr", "&Begraven"};
  Vinkje ZoekOtr{*this, "ZoekOtr", "Onde&rtrouw"};
  Vinkje ZoekWetHuw{*this, "ZoekWetHuw", "&Wettelijk Huwelijk"};
  Vinkje ZoekKerkHuw{*this, "ZoekKerkHuw", "&Kerkelijk Huwelijk"};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override;
  [[nodiscard]] bool IsGenoeg() override { return Plaats.PlaatsNr() > 0; }
  [[nodiscard]] Uitslag Schrijf(RecordBron& bron, TekstSchrijver& uit,
                                const Verloop& verloop) override;
};

}  // namespace lb77
