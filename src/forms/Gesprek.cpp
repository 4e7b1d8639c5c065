#include "forms/Gesprek.h"

#include "forms/Formulier.h"

namespace lb77 {

void Gesprek::ToonModaal(Formulier& formulier) {
  if (!formulier.Laad()) return;
  Open(formulier);
  try {
    formulier.Activeer();
    if (!formulier.Gesloten() && !formulier.Verborgen()) Voer(formulier);
  } catch (...) {
    Dicht(formulier);  // no window may outlive its form
    throw;
  }
  Dicht(formulier);
  formulier.Beeindig();
}

}  // namespace lb77
