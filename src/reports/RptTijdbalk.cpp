#include "reports/RptTijdbalk.h"

#include "reports/Statistieken.h"

namespace lb77 {

// kept: "pouplatiegrafiek", as users know it.
RptTijdbalk::RptTijdbalk(Hoofdmodule& hoofd)
    : RptStamouder(kRptTijdbalk, hoofd,
                   "De pouplatiegrafiek brengt de periode in beeld wanneer de nakomelingen van de "
                   "opgegeven persoon in leven waren.") {
  Koppel(PersNr, OKButton, BackButton);
}

Uitslag RptTijdbalk::Schrijf(RecordBron& bron, TekstSchrijver& uit, const Verloop& verloop) {
  return SchrijfTijdbalk(Stamouder(), bron, uit, verloop);
}

}  // namespace lb77
