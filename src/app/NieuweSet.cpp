#include "app/NieuweSet.h"

#include "app/Bestandensets.h"
#include "app/SetMaken.h"
#include "text/Tekens.h"

namespace lb77 {

NieuweSet::NieuweSet(Hoofdmodule& hoofd, MenuWindow& menu)
    : Formulier("NieuweSet", "Nieuwe Bestandenset"), hoofd_(hoofd), menu_(menu) {
  ZetHulpOnderwerp("bestandensets");
  ZetEersteVeld(SetNaam);
  SetNaam.BijVerlaten([this] { return SetNaamVerlaten(); });
  OKButton.BijKlik([this] { OKButtonKlik(); });
  BackButton.BijKlik([this] { Sluit(); });
}

bool NieuweSet::SetNaamVerlaten() {
  SetNaam.ZetTekst(Hoofdletters(SetNaam.Tekst()));
  if (hoofd_.Ini.BestandenSetIndex(SetNaam.Tekst()) == 0) return true;
  hoofd_.gesprek.Waarschuw("Deze bestandenset bestaat al");
  return false;
}

void NieuweSet::OKButtonKlik() {
  const std::string_view tekst = SetNaam.Tekst();
  const std::string naam = Hoofdletters(Trim(tekst.substr(0, tekst.find(','))));
  if (naam.empty()) {
    hoofd_.ActieveSetNaam = kGeenSetActief;
    hoofd_.gesprek.Waarschuw(kGeenSetGekozen);
    menu_.ZetStatus();
  } else if (!KanNieuweSetZijn(hoofd_, naam)) {
    ZetFocus(SetNaam);
    return;
  } else {
    static_cast<void>(MaakSet(hoofd_, menu_, naam, std::string(Trim(SetOmsch.Tekst()))));
  }
  menu_.ZetMenu();
  Sluit();
}

}  // namespace lb77
