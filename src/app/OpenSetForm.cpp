#include "app/OpenSetForm.h"

#include "app/Bestandensets.h"

namespace lb77 {

OpenSetForm::OpenSetForm(Hoofdmodule& hoofd, MenuWindow& menu)
    // kept: the title is spelled as users know it
    : Formulier("OpenSetForm", "Open Bestandendset"), hoofd_(hoofd), menu_(menu) {
  ZetHulpOnderwerp("bestandensets");
  ZetEersteVeld(SetPicklist);
  OKButton.BijKlik([this] { OKButtonKlik(); });
  CancelButton.BijKlik([this] { CancelButtonKlik(); });
}

void OpenSetForm::BijLaden() {
  LaadSetPicklist(hoofd_, menu_, SetPicklist);
}

void OpenSetForm::CancelButtonKlik() {
  menu_.ZetMenu();
  Sluit();
}

void OpenSetForm::OKButtonKlik() {
  if (OpenSetVanRij(hoofd_, menu_, SetPicklist.Tekst())) Sluit();
}

}  // namespace lb77
