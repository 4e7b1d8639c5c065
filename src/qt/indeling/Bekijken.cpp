// The viewers of text.
#include "qt/indeling/Indelingen.h"

namespace lb77::indeling {

namespace {

Blok TekstVenster() {
  return Kolom({
      "UitvoerBox",
      Knoppen({"MoveButton(*)", "XY_label"}, {"PrintButton(*)", "SaveButton", "BackButton"}),
  });
}

}  // namespace

std::vector<Indeling> Bekijken() {
  return {{"ToonTekst", TekstVenster()}, {"BekijkTekst", TekstVenster()}};
}

}  // namespace lb77::indeling
