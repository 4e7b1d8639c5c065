// Selects lines of remarks by their text.
#pragma once

#include "forms/Velden.h"
#include "reports/LijstForm.h"

namespace lb77 {

class SelectOpm final : public LijstForm {
 public:
  explicit SelectOpm(Hoofdmodule& hoofd);

  // Blanks around the text are part of it.
  Tekstvak ZoekTekst;
  Optie OptionCapsJa{*this, "OptionCapsJa", "met identieke HOOFD- en kleine letters"};
  Optie OptionCapsNee{*this, "OptionCapsNee", "niet letten op HOOFD- of kleine letters"};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override { OptionCapsNee.Zet(true); }
  [[nodiscard]] bool IsGenoeg() override { return !ZoekTekst.Tekst().empty(); }
  [[nodiscard]] Uitslag Schrijf(RecordBron& bron, TekstSchrijver& uit,
                                const Verloop& verloop) override;
};

}  // namespace lb77
