// The settings dialogs and the box with the version.
#include "qt/indeling/Indelingen.h"

namespace lb77::indeling {

std::vector<Indeling> Instellen() {
  return {
      {"IniGebruiker", Kolom({
                           Velden({
                               "HSKLidTekst",
                               Rij({"VoorlettersTekst", "VoorlettersUitleg"}),
                               Rij({"AchternaamTekst", "AchternaamUitleg"}),
                               Rij({"AdresTekst", "AdresUitleg"}),
                               Rij({"PostcodeTekst", "WoonplaatsTekst"}),
                               "LandTekst",
                               "TelefoonTekst",
                               "GeslachtBox",
                               "EmailTekst",
                           }),
                           Knoppen({"OKButton", "BackButton"}),
                       })},
      {"OverLB77Form", Kolom({
                           Velden({"Programma", "Versie"}),
                           Knoppen({"OKButton"}),
                       })},
  };
}

}  // namespace lb77::indeling
