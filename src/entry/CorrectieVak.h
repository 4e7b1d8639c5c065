// The field of a correction code.
#pragma once

#include <string>
#include <string_view>

#include "entry/InvoerVak.h"
#include "store/Codes.h"

namespace lb77 {

// One letter, or nothing. What stood there when the user came is not judged: a record may hold
// anything.
class CorrectieVak : public InvoerVak {
 public:
  explicit CorrectieVak(InvoerFormulier& formulier, std::string_view naam,
                        std::string_view bijschrift = {});

  // "T": the date beside it is the end of a period.
  [[nodiscard]] bool IsTussen() const { return IsCode(Tekst(), correctie::kTussen); }

 protected:
  void OpBetreden() override { begin_ = Tekst(); }
  [[nodiscard]] bool OpVerlaten() override;

 private:
  std::string begin_;
};

}  // namespace lb77
