// `importeer`: reads a GEDCOM file into a file set and prints the log.
#include "cli/Afdrukken.h"
#include "cli/Opdrachten.h"
#include "cli/Sessie.h"
#include "exchange/ImpGedcom.h"
#include "output/ToonTekst.h"
#include "text/Getallen.h"

namespace lb77 {

namespace {

std::string Aantal(std::size_t aantal) {
  return GetalTekst(static_cast<std::int64_t>(aantal));
}

}  // namespace

int Importeer(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  Sessie sessie(omgeving, Instelling::VoorNu);
  const ImpGedcom* import = nullptr;
  bool gelukt = false;
  std::string reden = "Het bestand is niet ingelezen";
  // A file in Unicode is converted.
  sessie.bediener.HoudKlaar("ImpGedcom", Antwoord::Ja);
  sessie.bediener.Bij("ImpGedcom", [&](Formulier& form) {
    import = dynamic_cast<const ImpGedcom*>(&form);
    if (auto* veld = dynamic_cast<Padvak*>(form.Zoek("Bestandsnaam"))) {
      veld->ZetPad(argumenten.bestand);
    }
    Werk(sessie.bediener, form).Druk("OKButton");
    if (!import) return;
    gelukt = import->Gelukt();
    if (import->GelezenPersonen() + import->GelezenRelaties() > 0) {
      reden =
          "Het bestand is niet heel ingelezen: GEDCOM.LOG en GEDCOM.RST zeggen wat er ontbreekt";
    }
    if (import->OpmerkingenVol()) {
      reden = "Opgeslagen zijn " + Aantal(import->GelezenPersonen()) + " personen en " +
              Aantal(import->GelezenRelaties()) + " relaties, en een deel van de opmerkingen";
    }
  });
  sessie.bediener.Bij("ToonTekst", [&](Formulier& form) {
    const auto* toon = dynamic_cast<ToonTekst*>(&form);
    // Behind a file that could not be opened the viewer has the log of another import.
    if (toon && import && import->Pass3.Klaar.Gekozen()) DrukUit(toon->UitvoerPad(), omgeving.uit);
  });
  return sessie.Voer(
      argumenten.woorden[0], Omgang::Schrijven,
      [&](Werk& menu) {
        menu.Kies("ImportGedcom");
        if (!gelukt) sessie.bediener.Mislukt(reden);
      },
      argumenten.toch);
}

}  // namespace lb77
