#include "reporting/Tijdelijk.h"

#include "text/Pad.h"

namespace lb77 {

bool OpenTijdelijk(TekstSchrijver& uit, const std::filesystem::path& pad, Gesprek& gesprek) {
  if (uit.Open(pad)) return true;
  gesprek.Fout("Kan tijdelijk bestand " + PadTekst(pad) + " niet openen");
  return false;
}

bool SluitTijdelijk(TekstSchrijver& uit, const std::filesystem::path& pad, Gesprek& gesprek) {
  if (uit.Sluit()) return true;
  gesprek.Fout("Fout bij het schrijven van " + PadTekst(pad) + "\n" + uit.Fout().tekst);
  return false;
}

}  // namespace lb77
