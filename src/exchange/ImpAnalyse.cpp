#include "exchange/ImpAnalyse.h"

#include <cstdint>
#include <string_view>

#include "exchange/GedRegel.h"

namespace lb77 {

namespace {

// Makes the record of a level-0 line. False when that failed.
bool MaakRecord(ImpLoop& loop, GedSoort soort, const GedDelen& delen) {
  if (soort == GedSoort::Persoon) {
    const std::int16_t nr = loop.NieuwePersoon();
    if (nr == 0) return false;
    loop.GedPersId.Voeg(delen.id, nr);
  } else if (soort == GedSoort::Relatie) {
    const std::int16_t nr = loop.NieuweRelatie();
    if (nr == 0) return false;
    loop.GedRelId.Voeg(delen.id, nr);
  }
  return true;
}

bool IsHoofd(RegelLezer& lezer) {
  std::string_view regel;
  return lezer.Volgende(regel) && GedRegel(regel).tag == "HEAD";
}

}  // namespace

ImpUitslag ImpAnalyse(ImpLoop& loop, RegelLezer& lezer) {
  loop.BeginGang();
  if (lezer.IsAanEinde()) return {.fout = "GEDCOM Fout: Leeg bestand"};
  if (!IsHoofd(lezer)) return {.fout = "Fout: Header van GEDCOM-bestand niet gevonden", .regel = 1};
  std::string_view regel;
  while (lezer.Volgende(regel)) {
    loop.TelRegel();
    const std::int32_t nummer = loop.stand.regels + 1;  // the header is not counted
    const GedDelen delen = GedRegel(regel);
    if (!delen.fout.empty()) return {.fout = std::string(delen.fout), .regel = nummer};
    if (delen.level > 0) continue;
    const GedSoort soort = loop.Kop(delen);
    if (soort == GedSoort::Hoofd) {
      return {.fout = "GEDCOM Fout: bestand heeft 2 headers", .regel = nummer};
    }
    if (soort == GedSoort::Einde) break;
    if (!MaakRecord(loop, soort, delen)) return {.gestopt = true, .regel = nummer};
  }
  return {};
}

}  // namespace lb77
