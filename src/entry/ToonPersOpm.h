// Shows the first line of each remark of a person, by rubric.
#pragma once

#include <cstdint>

#include "app/InvoerFormulier.h"
#include "forms/Keuzen.h"
#include "forms/Regels.h"
#include "forms/Weergave.h"
#include "store/Rubrieken.h"

namespace lb77 {

// A button for each rubric leads to its remarks.
class ToonPersOpm final : public InvoerFormulier {
 public:
  ToonPersOpm(Hoofdmodule& hoofd, std::int16_t persoon);

  struct RubriekRegel {
    RubriekRegel(Formulier& formulier, int nummer);
    Knop Rubriek;
    Teller EersteRegel;
  };

  Teller RecordNr{*this, "RecordNr", "Persoonsnummer:"};
  Teller Naam{*this, "Naam", "Naam:"};
  // In the order of the rubrics, from 1.
  Regels<RubriekRegel, kPersoonRubrieken.size()> Rubrieken{*this, 1};
  Knop BackButton{*this, "BackButton", "&Terug"};

 protected:
  void BijLaden() override;

 private:
  void RubriekKlik(std::int16_t rubriek);

  std::int16_t nr_;
};

// A field of the person in the buffer, as the card shows it; the buffer of places changes.
[[nodiscard]] std::string RubriekWaarde(Hoofdmodule& hoofd, std::int16_t rubriek);

}  // namespace lb77
