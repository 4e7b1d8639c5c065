#include "entry/VraagPlaatsnr.h"

namespace lb77 {

VraagPlaatsnr::VraagPlaatsnr(Hoofdmodule& hoofd)
    : InvoerFormulier("VraagPlaatsnr", "Ga naar een Plaatscode", hoofd),
      RecordNr(*this, "RecordNr", "Plaatscode:", BestandSoort::Plaatsen, Vervolgtest::Geen) {
  ZetHulpOnderwerp("plaatsen");
  RecordNr.ZetEnter(EnterSoort::OK);
  RecordNr.BijVerlaten([this] { return RecordNrVerlaten(); });
  OKButton.BijKlik([this] { OKButtonKlik(); });
  BackButton.BijKlik([this] { Sluit(); });
  ZetEersteVeld(RecordNr);
}

bool VraagPlaatsnr::RecordNrVerlaten() {
  PlaatsNm.ZetTekst(Hoofd().Plaats.Naam(RecordNr.Nr()));
  return true;
}

void VraagPlaatsnr::OKButtonKlik() {
  nr_ = RecordNr.Nr();
  Sluit();
}

}  // namespace lb77
