#include "entry/InvoerVak.h"

#include <string>

#include "text/Tekens.h"

namespace lb77 {

InvoerVak::InvoerVak(InvoerFormulier& formulier, std::string_view naam, std::string_view bijschrift,
                     std::size_t maxLengte, InvoerSoort soort)
    : Tekstvak(formulier, naam, bijschrift, maxLengte), formulier_(formulier), soort_(soort) {
  ZetEnter(EnterSoort::Controle);
}

bool InvoerVak::OpVerlaten() {
  ZetTekst(std::string(Trim(Tekst())));
  return true;
}

void InvoerVak::OpToets(ToetsGebeurtenis& toets) {
  const std::string oud = Tekst();
  const bool zoekt = danOK_ && toets.code == toets::kF2 && !toets.shift;
  VeldToetsIn(formulier_, *this, soort_, Hoofd(), toets);
  if (!zoekt || Tekst() == oud) return;
  if (Bediening* const ok = formulier_.Zoek("OKButton")) formulier_.GaNaar(*ok);
}

}  // namespace lb77
