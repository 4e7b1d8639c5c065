#include "descendants/GenSchSchrijver.h"

#include <limits>

#include "descendants/GenSchTekening.h"
#include "output/TekstSchrijver.h"
#include "reporting/HTMLPagina.h"

namespace lb77 {
namespace {

// Eighty generations pass any width that other output has, and so do two thousand blocks abreast.
constexpr int kElkeBreedte = std::numeric_limits<int>::max();

}  // namespace

Uitslag SchrijfGenSchema(const GenTabel& tabel, const GenRij& rijen, const GenOpties& opties,
                         const Gegevens& bronnen, TekstSchrijver& uit, const Verloop& verloop) {
  const std::int16_t stamouder = tabel.Persoon(0);
  if (!bronnen.persoon.Lees(stamouder)) return Leesfout{BestandSoort::Personen, stamouder};
  uit.ZetHTML(opties.GenInHTML);
  uit.ZetRechterMarge(TekstSchrijver::kGeenRechterMarge);
  SchrijfSchemaKop(uit, opties.teksten, "Genealogie", bronnen.persoon.VoorNaamTrue(),
                   bronnen.persoon.AchterNaamTrue());
  GenSchLezer lezer(tabel, opties, bronnen);
  const SchemaBron bron{tabel, rijen, opties, lezer, verloop};
  uit.ZetRechterMarge(kElkeBreedte);
  const Uitslag uitslag =
      opties.GenVertikaal ? TekenVerticaal(bron, uit) : TekenHorizontaal(bron, uit);
  uit.ZetRechterMarge(TekstSchrijver::kGeenRechterMarge);
  if (uitslag == Einde::Klaar) SchrijfSchemaSlot(uit, opties.teksten);
  return uitslag;
}

}  // namespace lb77
