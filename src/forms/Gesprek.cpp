#include "forms/Gesprek.h"

#include "forms/Formulier.h"

namespace lb77 {

void Gesprek::ToonModaal(Formulier& formulier) {
  if (!formulier.Laad()) return;
  Open(formulier);
  formulier.Activeer();
  if (!formulier.Gesloten()) Voer(formulier);
  Dicht(formulier);
  formulier.Beeindig();
}

}  // namespace lb77
