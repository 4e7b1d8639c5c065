#include "ancestors/KwstBladSchrijver.h"

#include "ancestors/KwstBladTekening.h"
#include "output/TekstSchrijver.h"
#include "reporting/HTMLPagina.h"

namespace lb77 {

void SchrijfBlad(const KwstTabel& tabel, int wortel, const KwstOpties& opties,
                 const Gegevens& bronnen, TekstSchrijver& uit) {
  const KwstBlad blad(tabel, wortel);
  SchrijfSchemaKop(uit, opties.teksten, {}, {}, {});
  TekenBlad(LeesBlad(blad, tabel, opties.KwOokNrs, bronnen), opties.KwBldHSK).Schrijf(uit);
  SchrijfSchemaSlot(uit, opties.teksten);
}

}  // namespace lb77
