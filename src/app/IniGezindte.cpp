#include "app/IniGezindte.h"

#include <cstddef>
#include <string>

#include "text/Tekens.h"

namespace lb77 {

GezindteRegel::GezindteRegel(Formulier& formulier, int nummer)
    : GezAfkTekst(formulier, Genummerd("GezAfkTekst", nummer), "", kGezindteCode),
      GezTekst(formulier, Genummerd("GezTekst", nummer)) {}

IniGezindte::IniGezindte(Hoofdmodule& hoofd)
    : InstelFormulier("IniGezindte", "Systeem Instellingen - Gezindten", hoofd) {
  ZetEersteVeld(Gezindten(0).GezAfkTekst);
  KoppelKnoppen(OKButton, BackButton);
}

void IniGezindte::BijLaden() {
  Gezindten.Elk([this](int nummer, GezindteRegel& regel) {
    const GezindteRij rij = GezindteRij::Ontleed(
        Hoofd().Ini.IniWaarde(kGezindteSectie, GezindteSleutel(static_cast<std::size_t>(nummer))));
    regel.GezAfkTekst.ZetTekst(rij.code);
    regel.GezTekst.ZetTekst(rij.naam);
  });
}

void IniGezindte::Bewaar() {
  Gezindten.Elk([this](int nummer, const GezindteRegel& regel) {
    const GezindteRij rij{regel.GezAfkTekst.Tekst(), std::string(Trim(regel.GezTekst.Tekst()))};
    Hoofd().Ini.IniZet(kGezindteSectie, GezindteSleutel(static_cast<std::size_t>(nummer)),
                       rij.Waarde());
  });
}

}  // namespace lb77
