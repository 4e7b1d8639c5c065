#include "reporting/Tijdelijk.h"

#include "text/Pad.h"

namespace lb77 {

Uitslag SchrijfVerslag(const VerslagBestand& bestand, Gesprek& gesprek,
                       const std::function<Uitslag(TekstSchrijver&)>& schrijf) {
  TekstSchrijver uit;
  if (!uit.Open(bestand.pad)) {
    gesprek.Fout("Kan tijdelijk bestand " + PadTekst(bestand.pad) + " niet openen");
    return Einde::Schrijffout;
  }
  uit.ZetRechterMarge(bestand.breedte);
  const Uitslag uitslag = schrijf(uit);
  if (uit.Sluit()) return uitslag;
  gesprek.Fout("Fout bij het schrijven van " + PadTekst(bestand.pad) + "\n" + uit.Fout().tekst);
  return uitslag == Einde::Afgebroken ? uitslag : Einde::Schrijffout;
}

}  // namespace lb77
