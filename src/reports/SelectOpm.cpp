#include "reports/SelectOpm.h"

#include "app/Hoofdmodule.h"
#include "reports/Selecties.h"
#include "store/OpmVelden.h"

namespace lb77 {

SelectOpm::SelectOpm(Hoofdmodule& hoofd)
    : LijstForm(kSelectOpm, hoofd),
      ZoekTekst(*this, "ZoekTekst", "Te zoeken tekst:", opmveld::Tekstregel.breedte) {
  Koppel(ZoekTekst, OKButton, BackButton);
}

Uitslag SelectOpm::Schrijf(RecordBron& bron, TekstSchrijver& uit, const Verloop& verloop) {
  const OpmKeus keus{ZoekTekst.Tekst(), OptionCapsJa.Gekozen()};
  return SelecteerOpmerkingen(keus, bron, uit, verloop);
}

}  // namespace lb77
