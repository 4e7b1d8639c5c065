#include "checks/VerwijzingVak.h"

#include "checks/CorrNamen.h"
#include "forms/Rijnaam.h"

namespace lb77 {

namespace {

std::string Benoemd(std::string_view naam, int nummer) {
  return nummer > 0 ? Genummerd(naam, nummer) : std::string(naam);
}

}  // namespace

VerwijzingVak::VerwijzingVak(InvoerFormulier& formulier, std::string_view naam,
                             std::string_view bijschrift, BestandSoort naar, int nummer)
    : Nr(*this, formulier, Benoemd(naam, nummer), bijschrift, naar),
      Naam(formulier, Benoemd(std::string(naam) + "Naam", nummer)),
      formulier_(formulier),
      naar_(naar) {}

bool VerwijzingVak::NrVak::OpVerlaten() {
  if (!RecordNrVak::OpVerlaten()) return false;
  geheel_.ToonNaam();
  return true;
}

void VerwijzingVak::ToonNaam() {
  Naam.ZetTekst(RecordNaam(formulier_.Hoofd().MaakGegevens(), naar_, Nr.Nr()));
}

}  // namespace lb77
