#include "exchange/DumpSchrijver.h"

#include <string>

#include "exchange/ExpSchrijver.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

constexpr std::int32_t kEersteRecord = 2;

void SchrijfRecord(const DumpSoort& soort, const Gegevens& gegevens, std::int16_t nr,
                   ExpUitvoer& uit, ExpUitvoer& log) {
  DumpRegel regel;
  regel.Getal(nr);
  if (soort.lees(gegevens, nr)) {
    soort.vul(gegevens, regel);
  } else {
    log.Regel(NietUitgevoerd(soort.leesfout, nr));
    while (regel.Aantal() < soort.aantal) regel.Tekst({});
  }
  uit.Kolommen(regel.Kolommen());
}

}  // namespace

std::int32_t SchrijfDump(const DumpSoort& soort, const Gegevens& gegevens, ExpUitvoer& uit,
                         ExpUitvoer& log, const DumpVerloop& verloop) {
  const std::int32_t laatste = soort.laatste(gegevens);
  std::int32_t aantal = 0;
  for (std::int32_t nr = kEersteRecord; nr <= laatste && verloop.doorgaan(); ++nr) {
    SchrijfRecord(soort, gegevens, static_cast<std::int16_t>(nr), uit, log);
    verloop.toon(++aantal);
  }
  return aantal;
}

void SchrijfDumpSlot(const DumpSoort& soort, std::string_view bestandsnaam, std::int32_t aantal,
                     ExpUitvoer& log) {
  log.Regel(std::string("De structuur van het exportbestand (").append(bestandsnaam) + ") is:");
  for (const std::string_view kolom : soort.kolommen) log.Regel(kolom);
  log.Regel(("Totaal " + GetalTekst(aantal)).append(soort.totaal));
  log.Regel(kExporterenVoltooid);
}

}  // namespace lb77
