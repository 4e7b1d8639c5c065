#include "entry/VraagPlaatsnm.h"

namespace lb77 {

VraagPlaatsnm::VraagPlaatsnm(Hoofdmodule& hoofd)
    : InvoerFormulier("VraagPlaatsnm", "Ga naar een Plaatsnaam", hoofd) {
  ZetHulpOnderwerp("plaatsen");
  OKButton.BijKlik([this] { OKButtonKlik(); });
  BackButton.BijKlik([this] { Sluit(); });
  ZetEersteVeld(Plaats.Naam);
}

void VraagPlaatsnm::OKButtonKlik() {
  nr_ = Plaats.PlaatsNr();
  Sluit();
}

}  // namespace lb77
