#include "ancestors/KwstParam.h"

#include "app/Hoofdmodule.h"

namespace lb77 {

KwstParam::KwstParam(std::string_view naam, std::string_view titel, Hoofdmodule& hoofd,
                     KwstOpties& opties)
    : KetenFormulier(naam, titel, hoofd), Proband(*this, "Proband"), opties_(opties) {
  ZetHulpOnderwerp("kwartierstaat");
}

void KwstParam::Koppel(const OptieTabel& keuzen, TitelVelden& titels, Knop& terug) {
  keuzen_ = &keuzen;
  titels_ = &titels;
  KoppelTerug(terug);
}

void KwstParam::BijLaden() {
  Proband.Toon(Hoofd().Persoon, opties_.KwProbandNr);
  keuzen_->Laad(Hoofd().Ini);
  titels_->Laad(Hoofd().Ini, "Kwartierstaat van " + Proband.Naam());
}

void KwstParam::Bewaar() {
  IniClass& ini = Hoofd().Ini;
  keuzen_->Neem();
  opties_.teksten = titels_->Teksten(ini, Hoofd().klok.Nu().jaar);
  if (!BewaartVelden(ini)) return;
  keuzen_->Bewaar(ini);
  titels_->Bewaar(ini);
  ini.IniSchrijf();
}

}  // namespace lb77
