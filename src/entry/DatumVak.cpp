#include "entry/DatumVak.h"

#include <cstddef>
#include <string>

#include "text/Datum.h"

namespace lb77 {

namespace {

constexpr std::size_t kBreedte = 10;

}  // namespace

DatumVak::DatumVak(InvoerFormulier& formulier, std::string_view naam, std::string_view bijschrift)
    : InvoerVak(formulier, naam, bijschrift, kBreedte, InvoerSoort::Datum) {}

void DatumVak::Toon(std::string_view datum10) {
  getoond_ = datum10;
  ZetTekst(datum10);
}

// The mask of a relation has "-" whatever the separator.
bool DatumVak::IsLeeg() const {
  return Tekst().find_first_not_of(" -.") == std::string::npos;
}

void DatumVak::OpBetreden() {
  if (IsLeeg()) ZetTekst("");
}

// A damaged date in the entry form would be another date, which nobody has typed; and nobody shall
// have to make one up to get away.
bool DatumVak::OpVerlaten() {
  if (!IsLeeg() && Tekst() == getoond_) return true;
  const DatumOordeel oordeel = DatumGeldig(Tekst(), Hoofd().schrijfwijze.DatumScheider);
  for (const std::string_view melding : oordeel.meldingen) Hoofd().gesprek.Waarschuw(melding);
  ZetTekst(oordeel.tekst);
  return oordeel.geldig;
}

bool WilCorrigeren(Gesprek& gesprek, const DatumVak& eerst, const DatumVak& later,
                   std::string_view melding) {
  return DatumIsNa(eerst.Tekst(), later.Tekst()) &&
         gesprek.Vraag(std::string(melding) + "\nCorrigeren ?");
}

}  // namespace lb77
