#include "descendants/GenSchBlok.h"

#include "text/Getallen.h"

namespace lb77 {

GenSchBlok::GenSchBlok(Hoofdmodule& hoofd, const GenTabel& tabel, bool centreren, GenRij& rijen)
    : WerkFormulier("GenSchBlok", "Opbouwen Schema Genealogie / Parenteel", hoofd),
      Persoon(*this, kPersoonsNr),
      tabel_(tabel),
      centreren_(centreren),
      rijen_(rijen) {
  ZetHulpOnderwerp("genealogie");
  Koppel(OKButton, BackButton);
}

void GenSchBlok::Werk() {
  const Verloop verloop{[this] { return Afbreken(); },
                        [this](int persoon, int) {
                          Persoon.Stand.ZetTekst(NrTekst(persoon));
                          Ververs();
                        }};
  if (GaatVerder(PlaatsGen(rijen_, tabel_, centreren_, verloop))) Sluit();
}

}  // namespace lb77
