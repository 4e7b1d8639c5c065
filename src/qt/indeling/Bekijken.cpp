// The viewers of text.
#include "qt/indeling/Indelingen.h"

namespace lb77::indeling {

Blok TekstVenster() {
  return Kolom({
      Rij({"ZoekTekst", "ZoekButton", "ZoekLabel", "UTF8Box", "BrowserButton"}),
      "UitvoerBox",
      Knoppen({"MoveButton(*)", "XY_label"}, {"PrintButton(*)", "SaveButton", "BackButton"}),
  });
}

std::vector<Indeling> Bekijken() {
  return {{"ToonTekst", TekstVenster()}, {"BekijkTekst", TekstVenster()}};
}

}  // namespace lb77::indeling
