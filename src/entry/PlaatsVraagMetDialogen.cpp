#include "entry/PlaatsVraagMetDialogen.h"

#include "entry/VraagProv.h"

namespace lb77 {

bool PlaatsVraagMetDialogen::Bevestig(std::string_view naam, std::string_view prov) {
  return gesprek_.Vraag("Gevonden: " + std::string(naam) + " (" + std::string(prov) + "). " +
                        "Is deze Plaats bedoeld ?");
}

bool PlaatsVraagMetDialogen::NogVerder() {
  return gesprek_.Vraag("Nog verder zoeken ?");
}

bool PlaatsVraagMetDialogen::Toevoegen(std::string_view naam) {
  return gesprek_.Vraag("Plaats \"" + std::string(naam) + "\" is onbekend.\n" +
                        "Plaats toevoegen aan het Plaatsbestand ?");
}

std::string PlaatsVraagMetDialogen::Provincie(std::string_view naam, std::string_view prov) {
  VraagProv vraag(naam, prov);
  gesprek_.ToonModaal(vraag);
  return vraag.PlaatsProv();
}

}  // namespace lb77
