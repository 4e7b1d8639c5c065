#include "reporting/GrensVak.h"

#include "forms/Gesprek.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

GrensVak::GrensVak(Formulier& formulier, Gesprek& gesprek, const GrensVakSoort& soort)
    : Tekstvak(formulier, soort.naam, soort.bijschrift, soort.lengte),
      gesprek_(gesprek),
      soort_(soort) {
  BijVerlaten([this] { return Verlaten(); });
}

int GrensVak::Getal() const {
  return Getalwaarde(Tekst());
}

bool GrensVak::Verlaten() {
  const bool leeg = !soort_.leeg.empty() && Trim(Tekst()).empty();
  if (!leeg && Getal() >= soort_.laagste && Getal() <= soort_.hoogste) return true;
  gesprek_.Waarschuw(leeg ? soort_.leeg : soort_.buiten);
  if (!soort_.herstel.empty()) ZetTekst(soort_.herstel);
  return false;
}

}  // namespace lb77
