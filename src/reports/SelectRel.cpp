#include "reports/SelectRel.h"

namespace lb77 {

SelectRel::SelectRel(Hoofdmodule& hoofd) : LijstForm(kSelectRel, hoofd) {
  Koppel(Namen.VoorNm, OKButton, BackButton);
}

void SelectRel::BijLaden() {
  Geslacht.Laad();
  Huwelijk.Laad();
}

bool SelectRel::IsGenoeg() {
  keus_ = {Namen.Keus(), Geslacht.Keus(), Huwelijk.Keus()};
  return !keus_.IsLeeg();
}

Uitslag SelectRel::Schrijf(RecordBron& bron, TekstSchrijver& uit, const Verloop& verloop) {
  return SelecteerRelaties(keus_, bron, uit, verloop);
}

}  // namespace lb77
