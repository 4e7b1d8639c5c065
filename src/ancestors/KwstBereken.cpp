#include "ancestors/KwstBereken.h"

#include "app/Hoofdmodule.h"
#include "forms/Gesprek.h"
#include "text/Getallen.h"

namespace lb77 {

KwstBereken::KwstBereken(Hoofdmodule& hoofd, const KwstOpties& opties, KwstTabel& tabel)
    : WerkFormulier("KwstBereken", "Opbouwen Kwartierstaat", hoofd),
      opties_(opties),
      tabel_(tabel) {
  Koppel(OKButton, BackButton);
}

void KwstBereken::BijLaden() {
  MaximumLabel.ZetZichtbaar(false);
}

void KwstBereken::Werk() {
  const KwstVerloop verloop{[this] { return Afbreken(); },
                            [this](int persoon, int kwartieren) {
                              PersoonsNr.ZetTekst(NrTekst(persoon));
                              Kwartieren.ZetTekst(GetalTekst(kwartieren));
                              Ververs();
                            }};
  const KwstUitslag uitslag =
      BouwKwst(tabel_, opties_, Hoofd().Persoon, Hoofd().Relatie, Hoofd().volgers, verloop);
  switch (uitslag) {
    case KwstUitslag::Afgebroken:
    case KwstUitslag::Leesfout:
      return;  // stays open: the user sees how far it came, and leaves
    case KwstUitslag::Vol:
      MaximumLabel.ZetZichtbaar(true);
      Hoofd().gesprek.Waarschuw("Maximum aantal kwartieren (" + GetalTekst(kMaxKwartieren) +
                                ") bereikt...");
      break;
    case KwstUitslag::Klaar:
      break;
  }
  GeduldLabel.ZetZichtbaar(false);
  Sluit();
}

}  // namespace lb77
