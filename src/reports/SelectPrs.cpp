#include "reports/SelectPrs.h"

#include "store/PersoonVelden.h"

namespace lb77 {

SelectPrs::SelectPrs(Hoofdmodule& hoofd)
    : LijstForm(kSelectPrs, hoofd),
      BeroepTekst(*this, "BeroepTekst", "Beroep:", persoonveld::beroep.breedte) {
  Koppel(Namen.VoorNm, OKButton, BackButton);
}

void SelectPrs::BijLaden() {
  Geslacht.Laad();
  Geboorte.Laad();
  Overlijden.Laad();
}

bool SelectPrs::IsGenoeg() {
  keus_ = {Namen.Keus(), Getrimd(BeroepTekst), Geslacht.Keus(), Geboorte.Keus(), Overlijden.Keus()};
  return !keus_.IsLeeg();
}

Uitslag SelectPrs::Schrijf(RecordBron& bron, TekstSchrijver& uit, const Verloop& verloop) {
  return SelecteerPersonen(keus_, bron, uit, verloop);
}

}  // namespace lb77
