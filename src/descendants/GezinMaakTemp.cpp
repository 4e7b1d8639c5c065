#include "descendants/GezinMaakTemp.h"

#include <utility>

#include "app/Hoofdmodule.h"
#include "descendants/GezinF6.h"
#include "descendants/GezinSchrijver.h"

namespace lb77 {

GezinMaakTemp::GezinMaakTemp(Hoofdmodule& hoofd, const GezinOpties& opties,
                             std::filesystem::path pad)
    : WerkFormulier("GezinMaakTemp", "Gezinsblad Schrijven", hoofd),
      opties_(opties),
      pad_(std::move(pad)) {
  ZetHulpOnderwerp("gezinsblad");
  Koppel(OKButton, BackButton);
}

void GezinMaakTemp::Werk() {
  const int breedte = opties_.GezinSoort == BladSoort::F6 ? TekstSchrijver::kGeenRechterMarge
                                                          : Hoofd().instellingen.Tekstbr();
  const auto schrijf = [this](TekstSchrijver& uit) { return Schrijf(uit); };
  if (MaakVerslag({pad_, breedte}, schrijf)) Sluit();
}

Uitslag GezinMaakTemp::Schrijf(TekstSchrijver& uit) {
  uit.ZetMarge(true, 0);
  const auto blad = [&] {
    switch (opties_.GezinSoort) {
      case BladSoort::Compact:
        return schrijf_compact_blad(uit);
      case BladSoort::Uitgebreid:
        return schrijf_uitgebreid_blad(uit);
      case BladSoort::F6:
        return schrijf_f6_blad(uit);
    }
    return Uitslag(Einde::Klaar);
  };
  const Uitslag uitslag = blad();
  if (uitslag == Einde::Klaar) uit.LegeRegel();
  return uitslag;
}

// The writer tells the two apart where they differ.
Uitslag GezinMaakTemp::schrijf_compact_blad(TekstSchrijver& uit) {
  return schrijf_uitgebreid_blad(uit);
}

Uitslag GezinMaakTemp::schrijf_uitgebreid_blad(TekstSchrijver& uit) {
  return GezinSchrijver(opties_, Hoofd().MaakGegevens(), uit).Schrijf();
}

Uitslag GezinMaakTemp::schrijf_f6_blad(TekstSchrijver& uit) {
  return GezinF6(opties_, Hoofd().MaakGegevens(), uit).Schrijf();
}

}  // namespace lb77
