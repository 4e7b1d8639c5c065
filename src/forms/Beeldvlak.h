// The control that shows a drawing, and on whose persons the user can stand.
#pragma once

#include "forms/Keuzen.h"
#include "forms/Tekening.h"

namespace lb77 {

// Its rows are the names of the persons in the drawing, in their order. A double click is the wish to
// open the chosen one.
class Beeldvlak : public Lijst {
 public:
  Beeldvlak(Formulier& formulier, std::string_view naam, std::string_view leesnaam);

  [[nodiscard]] const Tekening& Beeld() const { return beeld_; }
  // How often it was given a drawing.
  [[nodiscard]] int Versie() const { return versie_; }
  // The same person stays chosen when he is in it, on the same place if he is on several.
  void ZetBeeld(Tekening beeld);
  // The record number of the chosen person; 0 for none.
  [[nodiscard]] std::int16_t GekozenNr() const;

 private:
  Tekening beeld_;
  int versie_ = 0;
};

}  // namespace lb77
