#include "reports/RptFamilies.h"

#include "app/Hoofdmodule.h"
#include "reports/Statistieken.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

constexpr int kMinste = 1;
constexpr int kMeeste = 1000;

}  // namespace

RptFamilies::RptFamilies(Hoofdmodule& hoofd) : LijstForm(kRptFamilies, hoofd) {
  MinimumAantal.ZetFilter(AlleenCijfers);
  Koppel(MinimumAantal, OKButton, BackButton, &AantalNamen);
}

int RptFamilies::Minimum() const {
  return Getalwaarde(MinimumAantal.Tekst());
}

bool RptFamilies::IsGenoeg() {
  return Minimum() >= kMinste && Minimum() <= kMeeste;
}

Uitslag RptFamilies::Schrijf(RecordBron& bron, TekstSchrijver& uit, const Verloop& verloop) {
  return SchrijfFamilies(Minimum(), bron, uit, verloop);
}

}  // namespace lb77
