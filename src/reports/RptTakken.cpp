#include "reports/RptTakken.h"

#include "reports/Nazaten.h"
#include "reports/Statistieken.h"

namespace lb77 {

RptTakken::RptTakken(Hoofdmodule& hoofd)
    : RptStamouder(kRptTakken, hoofd,
                   "De takkenverdeling brengt het aantal nakomelingen en aangetrouwden in beeld "
                   "van de kinderen van de opgegeven persoon.") {
  Koppel(PersNr, OKButton, BackButton, &AantalTakken);
}

bool RptTakken::BereidVoor(RecordBron& bron, const Verloop& verloop) {
  Nazaten nazaten(bron.Personen().record, bron.Relaties().record);
  const auto wie = nazaten.Vind(Stamouder());
  const std::size_t takken = wie ? nazaten[*wie].kinderen.size() : 0;
  verloop.toon(0, static_cast<int>(takken));
  if (takken > 0) return true;
  Hoofd().gesprek.Waarschuw("Geen nazaten voor de opgegeven stamouder");
  return false;
}

Uitslag RptTakken::Schrijf(RecordBron& bron, TekstSchrijver& uit, const Verloop& verloop) {
  return SchrijfTakken(Stamouder(), bron, uit, verloop);
}

}  // namespace lb77
