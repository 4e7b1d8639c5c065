#include "entry/VraagFilter.h"

#include "text/Tekens.h"

namespace lb77 {

VraagFilter::VraagFilter(NaamFilter& filter)
    : Formulier("VraagFilter", "Zoek Persoon - Filter op Naam"), filter_(filter) {
  ZetHulpOnderwerp("zoeken");
  OKButton.BijKlik([this] { OKButtonKlik(); });
  BackButton.BijKlik([this] { Sluit(); });
  AchterNm.ZetEnter(EnterSoort::OK);
  ZetEersteVeld(VoorNm);
}

void VraagFilter::OKButtonKlik() {
  filter_.FilterVoorNm = Trim(VoorNm.Tekst());
  filter_.FilterAchterNm = Trim(AchterNm.Tekst());
  Sluit();
}

}  // namespace lb77
