#include "exchange/ExpSchrijver.h"

#include "text/Getallen.h"
#include "text/Letterlijk.h"

namespace lb77 {

std::string NietUitgevoerd(std::string_view leesfout, std::int16_t nr) {
  return (std::string(leesfout) + GetalTekst(nr)).append(". Record niet geëxporteerd."_w);
}

std::string Totaal(std::int64_t aantal, std::string_view wat) {
  return ("Totaal " + GetalTekst(aantal) + " ").append(wat);
}

void MeldWeggelaten(ExpUitvoer& log, std::size_t aantal, std::string_view waar) {
  if (aantal == 0) return;
  log.Regel(("LET OP: " + GetalTekst(static_cast<std::int64_t>(aantal)) +
             " opmerkingen zijn niet uitgevoerd (")
                .append(waar) +
            ")");
}

ExpTelling LoopSelectie(ExpSchrijver& schrijver, const ExpSelectie& selectie,
                        const ExpVerloop& verloop) {
  ExpTelling telling;
  schrijver.Kop();
  for (const std::int16_t nr : selectie.SelPersonen.Nummers()) {
    if (!verloop.doorgaan()) return telling;
    schrijver.Persoon(nr);
    ++telling.personen;
    verloop.toon(telling);
  }
  for (const std::int16_t nr : selectie.SelRelaties.Nummers()) {
    if (!verloop.doorgaan()) return telling;
    schrijver.Relatie(nr);
    ++telling.relaties;
    verloop.toon(telling);
  }
  if (verloop.doorgaan()) schrijver.Slot();
  return telling;
}

}  // namespace lb77
