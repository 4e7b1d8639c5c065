// Asks a place by its name.
#pragma once

#include <cstdint>

#include "app/InvoerFormulier.h"
#include "entry/PlaatsZoekVak.h"
#include "forms/Keuzen.h"

namespace lb77 {

// The beginning of the name will do: each place that begins so is offered.
class VraagPlaatsnm final : public InvoerFormulier {
 public:
  explicit VraagPlaatsnm(Hoofdmodule& hoofd);

  PlaatsZoekVak Plaats{*this, {"PlaatsnaamTekst", "PlaatsnrTekst", "ProvcodeTekst"}};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

  // The place; 0 when none was found or the form was left by Terug.
  [[nodiscard]] std::int16_t Nr() const { return nr_; }

 private:
  void OKButtonKlik();

  std::int16_t nr_ = 0;
};

}  // namespace lb77
