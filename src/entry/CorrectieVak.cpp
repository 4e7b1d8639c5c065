#include "entry/CorrectieVak.h"

#include <string>

#include "text/Tekens.h"

namespace lb77 {

CorrectieVak::CorrectieVak(InvoerFormulier& formulier, std::string_view naam,
                           std::string_view bijschrift)
    : InvoerVak(formulier, naam, bijschrift, 1) {
  ZetFilter(InHoofdletters);
}

// The text of a function key has passed no filter.
bool CorrectieVak::OpVerlaten() {
  if (Tekst() == begin_) return true;
  const std::string code = Hoofdletters(Trim(Tekst()));
  ZetTekst(code);
  if (code.empty() || std::string_view("CVNT").find(code) != std::string_view::npos) return true;
  Hoofd().gesprek.Waarschuw("Alleen C (Circa), V (Voor), N (Na) of T (Tussen) toegestaan");
  return false;
}

}  // namespace lb77
