#include "cli/Export.h"

#include <array>
#include <string>

#include "cli/Afdrukken.h"
#include "cli/Sessie.h"
#include "exchange/ExportForm.h"
#include "forms/Rijnaam.h"
#include "output/ToonTekst.h"
#include "text/Getallen.h"

namespace lb77 {

namespace {

// One end of a range is the whole of it.
std::array<std::string_view, 2> Grenzen(std::string_view reeks) {
  const std::size_t streep = reeks.find('-');
  if (streep == std::string_view::npos) return {reeks, reeks};
  return {reeks.substr(0, streep), reeks.substr(streep + 1)};
}

// The dialog of a selection offers all records. False, and told, when it did not take the range.
bool Kies(Werk& werk, std::string_view veld, const std::string& reeks) {
  if (!reeks.empty()) {
    const auto grenzen = Grenzen(reeks);
    for (const int rij : {0, 1}) {
      const std::string naam = std::string(veld) + "(" + GetalTekst(rij) + ")";
      if (!werk.Zet(naam, grenzen.at(static_cast<std::size_t>(rij)))) return false;
    }
  }
  werk.Druk("OKButton");
  return true;
}

}  // namespace

void ZetPadIn(Formulier& formulier, std::string_view naam, const std::filesystem::path& pad) {
  if (auto* veld = dynamic_cast<Padvak*>(formulier.Zoek(naam))) veld->ZetPad(pad);
}

int VoerExport(const ExportVorm& vorm, const Omgeving& omgeving,
               const OpdrachtArgumenten& argumenten,
               const std::function<void(Formulier&, Werk&)>& vulIn) {
  Sessie sessie(omgeving, Instelling::VoorNu);
  Bediener& bediener = sessie.bediener;
  const bool alles = argumenten.personen.empty() && argumenten.relaties.empty();
  bool gekozen = true;
  bool gelukt = false;
  const auto bijKeuze = [&](std::string_view formulier, std::string_view veld,
                            const std::string& reeks) {
    bediener.Bij(formulier, [&bediener, &gekozen, &reeks, veld](Formulier& form) {
      Werk werk(bediener, form);
      gekozen = Kies(werk, veld, reeks) && form.Gesloten() && gekozen;
    });
  };
  bijKeuze("ExpSelPers", "RecordNrPers", argumenten.personen);
  bijKeuze("ExpSelRel", "RecordNrRel", argumenten.relaties);
  bediener.Bij(vorm.formulier, [&](Formulier& form) {
    Werk werk(bediener, form);
    vulIn(form, werk);
    if (alles || !argumenten.personen.empty()) werk.Druk("KiesPersButton");
    if (alles || !argumenten.relaties.empty()) werk.Druk("KiesRelButton");
    if (!gekozen) return;
    werk.Druk(vorm.start);
    const auto* dialoog = dynamic_cast<const ExportForm*>(&form);
    gelukt = form.Gesloten() && !(dialoog && dialoog->Vol());
  });
  bediener.Bij("ToonTekst", [&](Formulier& form) {
    if (const auto* toon = dynamic_cast<ToonTekst*>(&form))
      DrukUit(toon->UitvoerPad(), omgeving.uit);
  });
  return sessie.Voer(argumenten.woorden[0], Omgang::Lezen, [&](Werk& menu) {
    menu.Kies(vorm.menuKeuze);
    if (!gelukt) bediener.Mislukt("Er is niets uitgevoerd, of niet alles");
  });
}

}  // namespace lb77
