#include "reports/SelectieVelden.h"

#include <string>

#include "store/PersoonVelden.h"
#include "text/Datum.h"
#include "text/Tekens.h"

namespace lb77 {

const std::string& Getrimd(Invoerveld& veld) {
  veld.ZetTekst(std::string(Trim(veld.Tekst())));
  return veld.Tekst();
}

NaamVelden::NaamVelden(InvoerFormulier& formulier)
    : VoorNm(formulier, "VoorNm", "Voornamen:", persoonveld::Voornaam.breedte),
      AchterNm(formulier, "AchterNm", "Achternaam:", persoonveld::Achternaam.breedte) {}

NaamKeus NaamVelden::Keus() {
  return {Getrimd(VoorNm), Getrimd(AchterNm)};
}

GeslachtVelden::GeslachtVelden(Formulier& formulier)
    : ZoekMan(formulier, "ZoekMan", "&Mannen"), ZoekVrouw(formulier, "ZoekVrouw", "&Vrouwen") {}

void GeslachtVelden::Laad() {
  ZoekMan.Zet(true);
  ZoekVrouw.Zet(true);
}

PeriodeVelden::PeriodeVelden(InvoerFormulier& formulier, std::string_view stam,
                             std::string_view wat)
    : Van(formulier, "VanDatum" + std::string(stam), "Van:"),
      Tot(formulier, "TotDatum" + std::string(stam), "Tot en met:"),
      formulier_(formulier) {
  Van.ZetLeesnaam(std::string(wat) + " van");
  Tot.ZetLeesnaam(std::string(wat) + " tot en met");
}

void PeriodeVelden::Laad() {
  const std::string leeg = LegeDatum(formulier_.Hoofd().schrijfwijze.DatumScheider);
  Van.Toon(leeg);
  Tot.Toon(leeg);
}

}  // namespace lb77
