#include "reporting/GeneratiesVak.h"

#include "forms/Gesprek.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

GeneratiesVak::GeneratiesVak(Formulier& formulier, Gesprek& gesprek, const Generatiegrens& grens)
    : Tekstvak(formulier, "MaxGen", "Maximum aantal generaties:", 2),
      gesprek_(gesprek),
      grens_(grens) {
  BijVerlaten([this] { return Verlaten(); });
}

int GeneratiesVak::Generaties() const {
  return Getalwaarde(Tekst());
}

bool GeneratiesVak::Verlaten() {
  if (Trim(Tekst()).empty()) {
    gesprek_.Waarschuw("Het maximum aantal generaties is verplicht");
    return false;
  }
  if (Generaties() >= grens_.laagste && Generaties() <= grens_.hoogste) return true;
  gesprek_.Waarschuw(grens_.melding);
  return false;
}

}  // namespace lb77
