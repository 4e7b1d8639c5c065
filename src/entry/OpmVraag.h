// What the button of a field hands to the dialogs on its remarks.
#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "store/Rubrieken.h"

namespace lb77 {

// A rubric above 0 is one of person `eigenaar`, one below 0 of relation `eigenaar`.
struct OpmVraag {
  std::int16_t eigenaar = 0;
  std::int16_t rubriek = 0;
  std::string bijschrift;  // how the field is headed: ">> Achternaam"
  std::string waarde;      // what the field shows

  [[nodiscard]] bool BijPersoon() const { return rubriek > 0; }
  [[nodiscard]] std::int16_t Persoon() const { return BijPersoon() ? eigenaar : std::int16_t{0}; }
  [[nodiscard]] std::int16_t Relatie() const { return BijPersoon() ? std::int16_t{0} : eigenaar; }
};

// As ToonPersOpm asks.
[[nodiscard]] inline OpmVraag MaakOpmVraag(std::int16_t eigenaar, std::int16_t rubriek,
                                           std::string waarde) {
  return {eigenaar, rubriek, std::string(RubriekOpschrift(rubriek)), std::move(waarde)};
}

// As the cards of a person and of a relation ask.
[[nodiscard]] inline OpmVraag OpmVraagOpKaart(std::int16_t eigenaar, std::int16_t rubriek,
                                              std::string waarde) {
  OpmVraag vraag = MaakOpmVraag(eigenaar, rubriek, std::move(waarde));
  if (rubriek == persoonrubriek::kOvlDatum) vraag.bijschrift = kOvlDatumOpKaart;
  return vraag;
}

}  // namespace lb77
