// The field of a record number.
#pragma once

#include <cstdint>
#include <string_view>

#include "entry/Invoer.h"
#include "entry/InvoerVak.h"

namespace lb77 {

// Leaving it asks whether there is such a record. It may be empty, and is 0 then.
class RecordNrVak : public InvoerVak {
 public:
  RecordNrVak(InvoerFormulier& formulier, std::string_view naam, std::string_view bijschrift,
              BestandSoort bestand, Vervolgtest vervolgtest);

  // The number; 0 for none.
  [[nodiscard]] std::int16_t Nr() const;
  void ToonNr(std::int16_t nr);

 protected:
  [[nodiscard]] bool OpVerlaten() override;

 private:
  BestandSoort bestand_;
  Vervolgtest vervolgtest_;
};

}  // namespace lb77
