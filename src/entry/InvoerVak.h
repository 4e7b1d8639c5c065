// A text field of data entry, and the base of all kinds of entry field.
#pragma once

#include <cstddef>
#include <string_view>

#include "app/InvoerFormulier.h"
#include "entry/VeldToets.h"
#include "forms/Velden.h"

namespace lb77 {

// It has the keys of VeldToets, and is trimmed when it is left.
class InvoerVak : public Tekstvak {
 public:
  explicit InvoerVak(InvoerFormulier& formulier, std::string_view naam,
                     std::string_view bijschrift = {}, std::size_t maxLengte = 0,
                     InvoerSoort soort = InvoerSoort::Tekst);

  // Who has been found by F2 is what the form asked for: the focus goes to its OKButton.
  void ZetDanOK() { danOK_ = true; }

 protected:
  [[nodiscard]] bool OpVerlaten() override;
  void OpToets(ToetsGebeurtenis& toets) override;

  [[nodiscard]] InvoerFormulier& Form() const { return formulier_; }
  [[nodiscard]] Hoofdmodule& Hoofd() const { return formulier_.Hoofd(); }

 private:
  InvoerFormulier& formulier_;
  InvoerSoort soort_;
  bool danOK_ = false;
};

}  // namespace lb77
