#include "entry/VraagProv.h"

#include <cstddef>

#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::size_t kProvBreedte = 2;

std::string TweeTekens(std::string_view prov) {
  std::string uit(Trim(prov));
  uit.resize(kProvBreedte, ' ');
  return uit;
}

}  // namespace

VraagProv::VraagProv(std::string_view naam, std::string_view prov)
    : Formulier("VraagProv", "Invoer Plaats - Provinciecode"), plaatsProv_(TweeTekens(prov)) {
  PltsLabel.ZetTekst(naam);
  ProvCode.ZetFilter(InHoofdletters);
  ProvCode.ZetEnter(EnterSoort::OK);
  // Without its padding, which would leave no room to type.
  ProvCode.BijBetreden([this] { ProvCode.ZetTekst(Trim(plaatsProv_)); });
  OKButton.BijKlik([this] { OKKlik(); });
  ZetEersteVeld(ProvCode);
}

void VraagProv::OKKlik() {
  plaatsProv_ = TweeTekens(ProvCode.Tekst());
  Sluit();
}

}  // namespace lb77
