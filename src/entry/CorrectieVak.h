// The field of a correction code.
#pragma once

#include <string_view>

#include "entry/InvoerVak.h"

namespace lb77 {

// One letter, or nothing.
class CorrectieVak : public InvoerVak {
 public:
  explicit CorrectieVak(InvoerFormulier& formulier, std::string_view naam,
                        std::string_view bijschrift = {});

  // "T": the date beside it is the end of a period.
  [[nodiscard]] bool IsTussen() const { return Tekst() == "T"; }

 protected:
  [[nodiscard]] bool OpVerlaten() override;
};

}  // namespace lb77
