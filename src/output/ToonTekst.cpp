#include "output/ToonTekst.h"

#include <utility>

namespace lb77 {

ToonTekst::ToonTekst(Hoofdmodule& hoofd, std::filesystem::path UitvoerPad, std::string_view titel,
                     bool HTMLUitvoer)
    : TekstVenster(hoofd, "ToonTekst", titel),
      UitvoerPad_(std::move(UitvoerPad)),
      HTMLUitvoer_(HTMLUitvoer) {}

void ToonTekst::BijLaden() {
  Toon(UitvoerPad_, HTMLUitvoer_);
}

}  // namespace lb77
