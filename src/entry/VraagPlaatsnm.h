// Asks a place by its name.
#pragma once

#include <cstdint>
#include <string>

#include "app/InvoerFormulier.h"
#include "entry/InvoerVak.h"
#include "forms/Keuzen.h"
#include "forms/Weergave.h"

namespace lb77 {

// The beginning of the name will do: each place that begins so is offered.
class VraagPlaatsnm final : public InvoerFormulier {
 public:
  explicit VraagPlaatsnm(Hoofdmodule& hoofd);

  InvoerVak PlaatsnaamTekst;
  Teller PlaatsnrTekst{*this, "PlaatsnrTekst", "Plaatscode:"};
  Teller ProvcodeTekst{*this, "ProvcodeTekst", "Provinciecode:"};
  Knop OKButton{*this, "OKButton", "&OK"};
  Knop BackButton{*this, "BackButton", "&Terug"};

  // The place; 0 when none was found or the form was left by Terug.
  [[nodiscard]] std::int16_t Nr() const { return nr_; }

 private:
  [[nodiscard]] bool PlaatsnaamTekstVerlaten();
  void OKButtonKlik();

  std::int16_t gevonden_ = 0;
  std::string gezocht_;
  std::int16_t nr_ = 0;
};

}  // namespace lb77
