// `contactdienst`: makes the two files for the contact service and prints the log.
#include "cli/Levering.h"
#include "cli/Opdrachten.h"
#include "cli/Sessie.h"
#include "contact/ExpGCI.h"
#include "output/ToonTekst.h"

namespace lb77 {

int Contactdienst(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  Sessie sessie(omgeving, argumenten.bewaar ? Instelling::VoorLater : Instelling::VoorNu);
  // A place or a surname that the service does not know is left out; the rest goes on.
  sessie.bediener.LieverNee();
  sessie.bediener.HoudSteeds("ExpGCI", Antwoord::OK);
  sessie.bediener.Bij("ExpGCIParam", [&](Formulier& form) {
    Werk werk(sessie.bediener, form);
    if (werk.ZetAlle(argumenten.zet)) werk.Druk("StartExportButton");
  });
  sessie.bediener.Bij("ToonTekst", [&](Formulier& form) {
    const auto* toon = dynamic_cast<ToonTekst*>(&form);
    if (toon) Lever(toon->UitvoerPad(), sessie.bediener, omgeving, argumenten);
  });
  return sessie.Voer(argumenten.woorden[0], Omgang::Lezen, [&](Werk&) {
    if (!MagNaar(sessie, omgeving, argumenten)) return;
    // Imported places have no province code.
    if (!ExporteerContact(sessie.Hoofd(), {.neemEnige = true})) {
      sessie.bediener.Mislukt("Er zijn geen bestanden voor de Contactdienst gemaakt");
    }
  });
}

}  // namespace lb77
