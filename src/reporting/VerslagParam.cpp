#include "reporting/VerslagParam.h"

#include <string>

#include "app/Hoofdmodule.h"

namespace lb77 {

VerslagParam::VerslagParam(const VerslagParamSoort& soort, Hoofdmodule& hoofd,
                           const std::int16_t& nr, PaginaTeksten& teksten)
    : KetenFormulier(soort.naam, soort.titel, hoofd),
      Persoon(*this, soort.wie),
      opschrift_(soort.opschrift),
      nr_(nr),
      teksten_(teksten) {
  ZetHulpOnderwerp(soort.hulp);
}

void VerslagParam::Koppel(const OptieTabel& keuzen, TitelVelden& titels, Knop& terug) {
  Koppel(keuzen);
  titels_ = &titels;
  KoppelTerug(terug);
}

void VerslagParam::BijLaden() {
  const IniClass& ini = Hoofd().Ini;
  Persoon.Toon(Hoofd().Persoon, nr_);
  for (const OptieTabel* tabel : keuzen_) tabel->Laad(ini);
  titels_->Laad(ini, std::string(opschrift_) + Persoon.Naam());
}

void VerslagParam::Bewaar() {
  IniClass& ini = Hoofd().Ini;
  for (const OptieTabel* tabel : keuzen_) tabel->Neem();
  teksten_ = titels_->Teksten(ini, Hoofd().klok.Nu().jaar);
  if (!BewaartVelden(ini)) return;
  for (const OptieTabel* tabel : keuzen_) tabel->Bewaar(ini);
  titels_->Bewaar(ini);
  ini.IniSchrijf();
}

}  // namespace lb77
