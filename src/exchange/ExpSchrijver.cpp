#include "exchange/ExpSchrijver.h"

namespace lb77 {

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
