// Asks the province code of a new place.
#pragma once

#include <string>
#include <string_view>

#include "forms/Formulier.h"

namespace lb77 {

// Any two characters will do: there is no table of provinces.
class VraagProv final : public Formulier {
 public:
  VraagProv(std::string_view naam, std::string_view prov);

  Label VraagLabel{*this, "VraagLabel", "Geef de Provinciecode voor deze Plaats"};
  Teller PltsLabel{*this, "PltsLabel", "Plaats:"};
  Tekstvak ProvCode{*this, "ProvCode", "Provinciecode:", 2};
  Knop OKButton{*this, "OKButton", "&OK"};

  // The code, two characters; what the caller gave when the form was left without OK.
  [[nodiscard]] const std::string& PlaatsProv() const { return plaatsProv_; }

 private:
  void OKButtonKlik();

  std::string plaatsProv_;
};

}  // namespace lb77
