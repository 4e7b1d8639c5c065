#include "exchange/ImpGangen.h"

#include <cstddef>
#include <cstdint>

#include "exchange/ImpAnalyse.h"
#include "exchange/ImpOpmerkingen.h"
#include "exchange/ImpRecords.h"
#include "exchange/ImpRestGang.h"

namespace lb77 {

namespace {

ImpUitslag Voer(int gang, ImpLoop& loop, RegelLezer& lezer) {
  lezer.Begin();
  if (gang == 1) return ImpAnalyse(loop, lezer);
  if (gang == 2) {
    ImpUitslag uitslag = ImpRecords(loop).Voer(lezer);
    loop.tekens.Voeg(lezer.Tekens());
    return uitslag;
  }
  // The counts are read once more: a file whose count is wrong is told of here too.
  static_cast<void>(loop.delen.persoon.AantalRecords());
  static_cast<void>(loop.delen.relatie.AantalRecords());
  return ImpOpmerkingen(loop).Voer(lezer);
}

// The records of a table without its first ones.
std::size_t Over(const GedIdTabel& tabel, std::int32_t eerste) {
  const auto weg = static_cast<std::size_t>(eerste);
  return tabel.Aantal() > weg ? tabel.Aantal() - weg : 0;
}

// Of a pass that ended before its time: what it left undone. A file without a header is none of GEDCOM,
// and has no rest; the third pass writes its own.
void NeemRest(int gang, ImpLoop& loop, RegelLezer& lezer, ImpUitslag& uitslag) {
  if (uitslag.Gelukt() || gang == 3 || uitslag.regel <= 1) return;
  const bool eerste = gang == 1;
  uitslag.legePersonen = Over(loop.GedPersId, eerste ? 0 : loop.stand.personen);
  uitslag.legeRelaties = Over(loop.GedRelId, eerste ? 0 : loop.stand.relaties);
  LeesAllesInRest(loop, lezer, eerste ? 1 : uitslag.regel);
}

}  // namespace

ImpUitslag VoerGangen(ImpLoop& loop, RegelLezer& lezer) {
  ImpUitslag uitslag;
  for (int gang = 1; gang <= 3; ++gang) {
    loop.delen.melder.BeginGang(gang);
    if (!uitslag.fout.empty()) continue;
    uitslag = Voer(gang, loop, lezer);
    loop.delen.melder.Ververs(loop.stand);
    loop.delen.melder.BijRecordEinde();
    if (!lezer.Fout()) NeemRest(gang, loop, lezer, uitslag);
    if (uitslag.gestopt || lezer.Fout()) break;
  }
  return uitslag;
}

}  // namespace lb77
