#include "entry/PersInfoForm.h"

#include "app/Hoofdmodule.h"
#include "entry/PersoonInfo.h"
#include "text/Getallen.h"

namespace lb77 {

PersInfoForm::PersInfoForm(Hoofdmodule& hoofd)
    : Formulier("PersInfoForm", "Info Persoon"), hoofd_(hoofd) {
  ZetHulpOnderwerp("zoeken");
  InfoTekst.ZetAlleenLezen(true);
  InfoTekst.ZetLeesnaam("Gegevens van de persoon");
  OKButton.BijKlik([this] { Sluit(); });
  ZetEersteVeld(OKButton);
}

void PersInfoForm::BijLaden() {
  const std::int16_t nr = hoofd_.volgers.HuidigPersoonNr;
  PNr.ZetTekst(NrTekst(nr));
  InfoTekst.ZetTekst(PersoonInfo(hoofd_.MaakGegevens(), hoofd_.Ini.ToonTrouw(), nr));
}

}  // namespace lb77
