#include "cli/Levering.h"

#include <string>

#include "app/UitvoerNaam.h"
#include "cli/Afdrukken.h"
#include "cli/Sessie.h"
#include "text/Pad.h"

namespace lb77 {

bool MagNaar(Sessie& sessie, const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  if (!argumenten.naar) return true;
  const std::string rol =
      BeschermdeRol(*argumenten.naar, omgeving.programmaMap, sessie.Hoofd().Ini);
  if (rol.empty()) return true;
  sessie.bediener.Mislukt(PadTekst(*argumenten.naar) + " is " + rol +
                          " en wordt niet overschreven");
  return false;
}

void Lever(const std::filesystem::path& pad, Bediener& bediener, const Omgeving& omgeving,
           const OpdrachtArgumenten& argumenten) {
  if (!argumenten.naar) return DrukUit(pad, omgeving.uit);
  if (const SysteemFout fout = BewaarAls(pad, *argumenten.naar)) {
    bediener.Mislukt("Fout bij het schrijven van " + PadTekst(*argumenten.naar) + "\n" +
                     fout.tekst);
  }
}

}  // namespace lb77
