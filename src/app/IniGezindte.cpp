#include "app/IniGezindte.h"

#include <cstddef>
#include <string>

#include "text/Getallen.h"
#include "text/Namen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::string_view kSectie = "Namenfile";
constexpr std::size_t kCodeBreedte = 2;

std::string SleutelVan(int nummer) {
  return "Gez" + GetalTekst(nummer + 1);
}

}  // namespace

GezindteRegel::GezindteRegel(Formulier& formulier, int nummer)
    : GezAfkTekst(formulier, Genummerd("GezAfkTekst", nummer), "", kCodeBreedte),
      GezTekst(formulier, Genummerd("GezTekst", nummer)) {}

IniGezindte::IniGezindte(Hoofdmodule& hoofd)
    : InstelFormulier("IniGezindte", "Systeem Instellingen - Gezindten", hoofd) {
  ZetEersteVeld(Gezindten(0).GezAfkTekst);
  KoppelKnoppen(OKButton, BackButton);
}

void IniGezindte::BijLaden() {
  Gezindten.Elk([this](int nummer, GezindteRegel& regel) {
    const std::string gezindte = Hoofd().Ini.IniWaarde(kSectie, SleutelVan(nummer));
    const std::string_view tekst = gezindte;
    regel.GezAfkTekst.ZetTekst(Trim(tekst.substr(0, kCodeBreedte)));
    regel.GezTekst.ZetTekst(tekst.size() > kCodeBreedte ? Trim(tekst.substr(kCodeBreedte))
                                                        : std::string_view());
  });
}

// An empty row is two blanks.
void IniGezindte::Bewaar() {
  Gezindten.Elk([this](int nummer, const GezindteRegel& regel) {
    Hoofd().Ini.IniZet(
        kSectie, SleutelVan(nummer),
        Links(regel.GezAfkTekst.Tekst(), kCodeBreedte) + std::string(Trim(regel.GezTekst.Tekst())));
  });
}

}  // namespace lb77
