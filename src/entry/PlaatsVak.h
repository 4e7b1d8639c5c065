// The fields of a place: its name and its number.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "entry/InvoerVak.h"

namespace lb77 {

// Two controls, "<stam>Nm" and "<stam>Nr". The number carries the qualifier of the place: typed as
// 10012, it is place 12, presumed. As long as neither text is changed the number stays what was
// shown, also when its place can't be read.
class PlaatsVak {
 public:
  PlaatsVak(InvoerFormulier& formulier, std::string_view stam, std::string_view bijschrift);

  // One of the two; leaving it settles both.
  class Deel : public InvoerVak {
   public:
    using Controle = bool (PlaatsVak::*)();
    Deel(PlaatsVak& geheel, Controle controle, InvoerFormulier& formulier, std::string_view naam,
         std::string_view bijschrift, std::size_t breedte);

   protected:
    [[nodiscard]] bool OpVerlaten() override;

   private:
    PlaatsVak& geheel_;
    Controle controle_;
  };

  Deel Nm;
  Deel Nr;

  // Shows a stored place number, 0 for none. The buffer of places changes.
  void Toon(std::int16_t plaatsNr);
  // The number as it was settled last; 0 for no place.
  [[nodiscard]] std::int16_t PlaatsNr() const { return plaatsNr_; }
  void ZetZichtbaar(bool zichtbaar);

 private:
  [[nodiscard]] bool NaamVerlaten();
  [[nodiscard]] bool NrVerlaten();
  [[nodiscard]] bool IsOngewijzigd() const;
  void Neem(std::int16_t plaatsNr, std::string_view naam);

  Hoofdmodule& hoofd_;
  std::int16_t plaatsNr_ = 0;
  std::string naam_;  // that of plaatsNr_
};

}  // namespace lb77
