#include "output/ToonTekst.h"

#include <utility>

namespace lb77 {

ToonTekst::ToonTekst(Hoofdmodule& hoofd, std::filesystem::path UitvoerPad, std::string_view titel,
                     bool HTMLUitvoer, std::optional<ExtraKnop> extra)
    : TekstVenster(hoofd, "ToonTekst", titel),
      UitvoerPad_(std::move(UitvoerPad)),
      HTMLUitvoer_(HTMLUitvoer) {
  if (!extra) return;
  Extra.emplace(*this, extra->naam, extra->bijschrift);
  Extra->BijKlik([this] { ExtraKlik(); });
  bijExtra_ = std::move(extra->bijKlik);
}

void ToonTekst::BijLaden() {
  Toon(UitvoerPad_, HTMLUitvoer_);
}

void ToonTekst::ExtraKlik() {
  bijExtra_();
}

}  // namespace lb77
