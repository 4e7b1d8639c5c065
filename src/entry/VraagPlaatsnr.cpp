#include "entry/VraagPlaatsnr.h"

namespace lb77 {

VraagPlaatsnr::VraagPlaatsnr(Hoofdmodule& hoofd)
    : InvoerFormulier("VraagPlaatsnr", "Ga naar een Plaatscode", hoofd),
      RecordNr(*this, "RecordNr", "Plaatscode:", BestandSoort::Plaatsen, Vervolgtest::Geen) {
  RecordNr.ZetEnter(EnterSoort::OK);
  RecordNr.BijVerlaten([this] {
    PlaatsNm.ZetTekst(Hoofd().Plaats.Naam(RecordNr.Nr()));
    return true;
  });
  OKButton.BijKlik([this] { OKButtonKlik(); });
  BackButton.BijKlik([this] { Sluit(); });
  ZetEersteVeld(RecordNr);
}

void VraagPlaatsnr::OKButtonKlik() {
  nr_ = RecordNr.Nr();
  Sluit();
}

}  // namespace lb77
