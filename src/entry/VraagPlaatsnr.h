// Asks a place by its code.
#pragma once

#include <cstdint>

#include "app/InvoerFormulier.h"
#include "entry/RecordNrVak.h"
#include "forms/Keuzen.h"
#include "forms/Weergave.h"

namespace lb77 {

class VraagPlaatsnr final : public InvoerFormulier {
 public:
  explicit VraagPlaatsnr(Hoofdmodule& hoofd);

  RecordNrVak RecordNr;
  Teller PlaatsNm{*this, "PlaatsNm", "Plaatsnaam:"};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

  // The place; 0 when none was given or the form was left by Terug.
  [[nodiscard]] std::int16_t Nr() const { return nr_; }

 private:
  [[nodiscard]] bool RecordNrVerlaten();
  void OKButtonKlik();

  std::int16_t nr_ = 0;
};

}  // namespace lb77
