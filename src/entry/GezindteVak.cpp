#include "entry/GezindteVak.h"

#include <string>

#include "store/PersoonVelden.h"
#include "text/Gezindte.h"

namespace lb77 {

GezindteVak::CodeVak::CodeVak(GezindteVak& geheel, InvoerFormulier& formulier,
                              std::string_view naam, std::string_view bijschrift)
    : InvoerVak(formulier, naam, bijschrift, persoonveld::Religie.breedte), geheel_(geheel) {}

bool GezindteVak::CodeVak::OpVerlaten() {
  const bool ok = InvoerVak::OpVerlaten();
  geheel_.ToonNaam();
  return ok;
}

GezindteVak::GezindteVak(InvoerFormulier& formulier, std::string_view stam,
                         std::string_view bijschrift)
    : Code(*this, formulier, std::string(stam) + "Code", bijschrift),
      Tekst(formulier, std::string(stam) + "Tekst"),
      hoofd_(formulier.Hoofd()) {}

void GezindteVak::Toon(std::string_view code) {
  Code.ZetTekst(code);
  ToonNaam();
}

void GezindteVak::ToonNaam() {
  Tekst.ZetTekst(GezindteNaam(Code.Tekst(), hoofd_.schrijfwijze.gezindten));
}

void GezindteVak::ZetZichtbaar(bool zichtbaar) {
  Code.ZetZichtbaar(zichtbaar);
  Tekst.ZetZichtbaar(zichtbaar);
}

}  // namespace lb77
