#include "output/BekijkTekst.h"

#include <string>

namespace lb77 {

BekijkTekst::BekijkTekst(Hoofdmodule& hoofd)
    : TekstVenster(hoofd, "BekijkTekst", "Bekijk Tekstbestand") {}

void BekijkTekst::BijLaden() {
  const auto pad = hoofd_.gesprek.VraagBestand(
      {BestandsWijze::Openen, std::string(kTekstFilter) + "|GEDCOM-bestanden (*.GED)|*.GED",
       hoofd_.Ini.TekstDir()});
  if (pad) {
    Toon(*pad, false);
  } else {
    Sluit();
  }
}

}  // namespace lb77
