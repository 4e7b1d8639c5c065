#include "entry/VraagProv.h"

#include <cstddef>

#include "text/Namen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::size_t kProvBreedte = 2;

std::string TweeTekens(std::string_view prov) {
  return Links(Trim(prov), kProvBreedte);
}

}  // namespace

VraagProv::VraagProv(std::string_view naam, std::string_view prov)
    : Formulier("VraagProv", "Invoer Plaats - Provinciecode"), plaatsProv_(TweeTekens(prov)) {
  ZetHulpOnderwerp("plaatsen");
  PltsLabel.ZetTekst(naam);
  ProvCode.ZetFilter(InHoofdletters);
  ProvCode.ZetEnter(EnterSoort::OK);
  // kept: each time the field is entered it holds the caller's code again. Without its padding,
  // which would leave no room to type.
  ProvCode.BijBetreden([this] { ProvCode.ZetTekst(Trim(plaatsProv_)); });
  OKButton.BijKlik([this] { OKButtonKlik(); });
  ZetEersteVeld(ProvCode);
}

void VraagProv::OKButtonKlik() {
  plaatsProv_ = TweeTekens(ProvCode.Tekst());
  Sluit();
}

}  // namespace lb77
