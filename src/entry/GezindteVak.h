// The code of a denomination, with its name beside it.
#pragma once

#include <string_view>

#include "entry/InvoerVak.h"
#include "forms/Weergave.h"

namespace lb77 {

// Two controls, "<stam>Code" and "<stam>Tekst". Leaving the code shows its name.
class GezindteVak {
 public:
  GezindteVak(InvoerFormulier& formulier, std::string_view stam, std::string_view bijschrift);

  class CodeVak : public InvoerVak {
   public:
    CodeVak(GezindteVak& geheel, InvoerFormulier& formulier, std::string_view naam,
            std::string_view bijschrift);

   protected:
    [[nodiscard]] bool OpVerlaten() override;

   private:
    GezindteVak& geheel_;
  };

  CodeVak Code;
  Teller Tekst;

  void Toon(std::string_view code);
  void ZetZichtbaar(bool zichtbaar);

 private:
  void ToonNaam();

  Hoofdmodule& hoofd_;
};

}  // namespace lb77
