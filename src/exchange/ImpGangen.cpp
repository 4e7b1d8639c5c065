#include "exchange/ImpGangen.h"

#include "exchange/ImpAnalyse.h"
#include "exchange/ImpOpmerkingen.h"
#include "exchange/ImpRecords.h"

namespace lb77 {

namespace {

ImpUitslag Voer(int gang, ImpLoop& loop, RegelLezer& lezer) {
  lezer.Begin();
  if (gang == 1) return ImpAnalyse(loop, lezer);
  if (gang == 2) {
    ImpUitslag uitslag = ImpRecords(loop).Voer(lezer);
    loop.tekens = lezer.Tekens();
    return uitslag;
  }
  // The counts are read once more: a file whose count is wrong is told of here too.
  static_cast<void>(loop.delen.persoon.AantalRecords());
  static_cast<void>(loop.delen.relatie.AantalRecords());
  return ImpOpmerkingen(loop).Voer(lezer);
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
    if (uitslag.gestopt || lezer.Fout()) break;
  }
  return uitslag;
}

}  // namespace lb77
