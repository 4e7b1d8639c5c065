// A link of a record: its number, and whom that means.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "entry/RecordNrVak.h"
#include "forms/Weergave.h"

namespace lb77 {

// To a person or a relation that is no continuation record. The controls are named `naam` and
// `naam` + "Naam", numbered from 1 when they stand in a row.
class VerwijzingVak {
 public:
  VerwijzingVak(InvoerFormulier& formulier, std::string_view naam, std::string_view bijschrift,
                BestandSoort naar, int nummer = 0);

  // Leaving it shows whom it means.
  class NrVak : public RecordNrVak {
   public:
    NrVak(VerwijzingVak& geheel, InvoerFormulier& formulier, const std::string& naam,
          std::string_view bijschrift, BestandSoort naar)
        : RecordNrVak(formulier, naam, bijschrift, naar, Vervolgtest::GeenVervolg),
          geheel_(geheel) {}

   protected:
    [[nodiscard]] bool OpVerlaten() override;

   private:
    VerwijzingVak& geheel_;
  };

  NrVak Nr;
  Teller Naam;

  // Shows whom the number means that stands there. The buffers of persons and relations change.
  void ToonNaam();

 private:
  InvoerFormulier& formulier_;
  BestandSoort naar_;
};

}  // namespace lb77
