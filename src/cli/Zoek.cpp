// `zoek`: the persons with a text in their name.
#include <ostream>

#include "cli/Opdrachten.h"
#include "cli/Personen.h"
#include "cli/Sessie.h"

namespace lb77 {

int Zoek(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  Sessie sessie(omgeving, Instelling::VoorNu);
  return sessie.Voer(argumenten.woorden[0], Omgang::Lezen, [&](Werk&) {
    Hoofdmodule& hoofd = sessie.Hoofd();
    const auto gevonden =
        ZoekPersonen(hoofd.Persoon, hoofd.schrijfwijze.voorvoegsels, argumenten.woorden[1]);
    for (const std::int16_t nr : gevonden) omgeving.uit << PersoonRegel(hoofd.Persoon, nr) << '\n';
    if (gevonden.empty()) {
      sessie.bediener.Mislukt("Niemand gevonden met \"" + argumenten.woorden[1] + "\" in de naam");
    }
  });
}

}  // namespace lb77
