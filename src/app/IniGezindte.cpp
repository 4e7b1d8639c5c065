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

GezindteRegel::GezindteRegel(Formulier& formulier, std::string_view nummer)
    : GezAfkTekst(formulier, "GezAfkTekst" + std::string(nummer), "", kCodeBreedte),
      GezTekst(formulier, "GezTekst" + std::string(nummer)) {}

IniGezindte::IniGezindte(Hoofdmodule& hoofd)
    : InstelFormulier("IniGezindte", "Systeem Instellingen - Gezindten", hoofd) {
  ZetEersteVeld(Regels(0).GezAfkTekst);
  KoppelKnoppen(OKButton, BackButton);
}

void IniGezindte::BijLaden() {
  Regels.Elk([this](int nummer, GezindteRegel& regel) {
    const std::string gezindte = Hoofd().Ini.IniWaarde(kSectie, SleutelVan(nummer));
    const std::string_view tekst = gezindte;
    regel.GezAfkTekst.ZetTekst(Trim(tekst.substr(0, kCodeBreedte)));
    regel.GezTekst.ZetTekst(tekst.size() > kCodeBreedte ? Trim(tekst.substr(kCodeBreedte))
                                                        : std::string_view());
  });
}

// An empty row is two blanks.
void IniGezindte::Bewaar() {
  Regels.Elk([this](int nummer, const GezindteRegel& regel) {
    Hoofd().Ini.IniZet(
        kSectie, SleutelVan(nummer),
        Links(regel.GezAfkTekst.Tekst(), kCodeBreedte) + std::string(Trim(regel.GezTekst.Tekst())));
  });
}

}  // namespace lb77
