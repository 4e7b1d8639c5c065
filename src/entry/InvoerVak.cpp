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
  VeldToetsIn(formulier_, *this, soort_, Hoofd(), toets);
}

}  // namespace lb77
