#include "output/TekstOpslaan.h"

#include "output/Tekstpaginas.h"

namespace lb77 {

bool SlaTekstOp(Gesprek& gesprek, const std::filesystem::path& tekst, const BestandsVraag& vraag) {
  const auto naar = gesprek.VraagBestand(vraag);
  if (!naar) return false;
  if (const SysteemFout fout = KopieerTekst(tekst, *naar)) {
    gesprek.Fout("Fout bij het opslaan van de tekst.\n" + fout.tekst);
    return false;
  }
  gesprek.Informeer("De tekst is opgeslagen.");
  return true;
}

}  // namespace lb77
