#include "ancestors/KwstTxtParam.h"

#include "app/Hoofdmodule.h"

namespace lb77 {

KwstTxtParam::KwstTxtParam(Hoofdmodule& hoofd, KwstOpties& opties)
    : KetenFormulier("KwstTxtParam", "Kwartierstaat Uitvoeropties", hoofd),
      Proband(*this, "Proband"),
      Nummers(*this, hoofd.gesprek),
      Titels(*this, kSectie),
      opties_(opties) {
  ZetHulpOnderwerp("kwartierstaat");
  ZetEersteVeld(Nummers.KwNrProband);
  OKButton.BijKlik([this] { OKButtonKlik(); });
  KoppelTerug(BackButton);
}

void KwstTxtParam::BijLaden() {
  Proband.Toon(Hoofd().Persoon, opties_.KwProbandNr);
  Nummers.Laad();
  keuzen_.Laad(Hoofd().Ini);
  Titels.Laad(Hoofd().Ini, "Kwartierstaat van " + Proband.Naam());
}

void KwstTxtParam::OKButtonKlik() {
  IniClass& ini = Hoofd().Ini;
  Nummers.Bewaar(opties_);
  keuzen_.Neem();
  opties_.teksten = Titels.Teksten(ini, Hoofd().klok.Nu().jaar);
  if (BewaartVelden(ini)) {
    keuzen_.Bewaar(ini);
    Titels.Bewaar(ini);
    ini.IniSchrijf();
  }
  Sluit();
}

}  // namespace lb77
