#include "reporting/BerekenForm.h"

#include <utility>

#include "app/Hoofdmodule.h"
#include "text/Getallen.h"

namespace lb77 {

BerekenForm::BerekenForm(const BerekenSoort& soort, Hoofdmodule& hoofd, Reken reken,
                         std::string_view bijVol)
    : WerkFormulier(soort.naam, soort.titel, hoofd),
      OpbouwLabel(*this, "OpbouwLabel", soort.opbouw),
      Persoon(*this, kPersoonsNr),
      Aantal(*this, soort.aantal),
      MaximumLabel(*this, "MaximumLabel", soort.maximum),
      reken_(std::move(reken)),
      bijVol_(bijVol) {
  Koppel(OKButton, BackButton);
}

void BerekenForm::BijLaden() {
  MaximumLabel.ZetZichtbaar(false);
}

void BerekenForm::Werk() {
  const Uitslag uitslag = reken_({[this] { return Afbreken(); },
                                  [this](int persoon, int aantal) {
                                    Persoon.Stand.ZetTekst(NrTekst(persoon));
                                    Aantal.Stand.ZetTekst(GetalTekst(aantal));
                                    Ververs();
                                  }});
  if (!GaatVerder(uitslag)) return;
  if (uitslag == Einde::Vol) {
    MaximumLabel.ZetZichtbaar(true);
    if (!bijVol_.empty()) Hoofd().gesprek.Waarschuw(bijVol_);
  }
  GeduldLabel.ZetZichtbaar(false);
  Sluit();
}

}  // namespace lb77
