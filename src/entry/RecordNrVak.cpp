#include "entry/RecordNrVak.h"

#include <cstddef>

#include "text/Getallen.h"

namespace lb77 {

namespace {

constexpr std::size_t kCijfers = 5;

}  // namespace

RecordNrVak::RecordNrVak(InvoerFormulier& formulier, std::string_view naam,
                         std::string_view bijschrift, BestandSoort bestand, Vervolgtest vervolgtest)
    : InvoerVak(formulier, naam, bijschrift, kCijfers,
                bestand == BestandSoort::Personen ? InvoerSoort::Persoon : InvoerSoort::Tekst),
      bestand_(bestand),
      vervolgtest_(vervolgtest) {}

std::int16_t RecordNrVak::Nr() const {
  return NaarInt16(Getalwaarde(Tekst())).value_or(std::int16_t{0});
}

void RecordNrVak::ToonNr(std::int16_t nr) {
  ZetTekst(NrTekst(nr));
}

bool RecordNrVak::OpVerlaten() {
  if (!InvoerVak::OpVerlaten()) return false;
  return Tekst().empty() ||
         RecordNrGeldig(Hoofd().MaakGegevens(), Hoofd().gesprek, Tekst(), bestand_, vervolgtest_);
}

}  // namespace lb77
