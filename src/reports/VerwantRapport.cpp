#include "reports/VerwantRapport.h"

namespace lb77 {

// kept: the buttons handle the file of the selection of persons, so the report is written there too.
VerwantBestanden VerwantBestandenVan(const Hoofdmodule& hoofd) {
  const std::filesystem::path map = hoofd.Ini.TempDir();
  return {map / "VERWANT.TMP", map / "ZOEK_PRS.TMP"};
}

VerwantRapport::VerwantRapport(Hoofdmodule& hoofd, bool metUitvoer)
    : TekstVenster(hoofd, "VerwantRapport", "Resultaat Verwantschap"), metUitvoer_(metUitvoer) {
  ZetHulpOnderwerp("verwantschap");
}

void VerwantRapport::BijLaden() {
  const VerwantBestanden bestanden = VerwantBestandenVan(hoofd_);
  Toon(bestanden.verslag, metUitvoer_ ? bestanden.uitvoer : bestanden.verslag);
}

}  // namespace lb77
