#include "reporting/SchrijfForm.h"

#include <utility>

#include "text/Getallen.h"

namespace lb77 {

SchrijfForm::SchrijfForm(const SchrijfSoort& soort, Hoofdmodule& hoofd, PersoonVerslag verslag,
                         Schrijf schrijf)
    : WerkFormulier(soort.naam, soort.titel, hoofd),
      SchrijfLabel(*this, "SchrijfLabel", soort.schrijven),
      Aantal(*this, soort.aantal),
      Persoon(soort.metPersoon ? std::optional<TellerRegel>(std::in_place, *this, kPersoonsNr)
                               : std::nullopt),
      verslag_(std::move(verslag)),
      schrijf_(std::move(schrijf)) {
  Koppel(OKButton, BackButton);
}

void SchrijfForm::Werk() {
  const Verloop verloop{[this] { return Afbreken(); },
                        [this](int persoon, int aantal) {
                          if (Persoon) Persoon->Stand.ZetTekst(NrTekst(persoon));
                          Aantal.Stand.ZetTekst(GetalTekst(aantal));
                          Ververs();
                        }};
  const auto schrijf = [&](TekstSchrijver& uit) { return schrijf_(uit, verloop); };
  const int breedte =
      verslag_.doorlopend ? TekstSchrijver::kGeenRechterMarge : Hoofd().instellingen.Tekstbr();
  Hoofd().volgers.HuidigPersoonNr = verslag_.persoonNr;
  if (MaakVerslag({verslag_.pad, breedte}, schrijf)) Sluit();
}

}  // namespace lb77
