// `uitdraai` and `ascii`: the dumps of the four files, and the fixed-width export.
#include <filesystem>
#include <string_view>

#include "cli/Afdrukken.h"
#include "cli/Export.h"
#include "cli/Opdrachten.h"
#include "cli/Sessie.h"
#include "output/ToonTekst.h"

namespace lb77 {
namespace {

// A menu entry and the dialog behind it.
struct Dump {
  std::string_view menuKeuze;
  std::string_view formulier;
};

constexpr Dump kDumps[] = {{"DumpPrs", "ExpDumpPers"},
                           {"DumpRel", "ExpDumpRel"},
                           {"DumpPlts", "ExpDumpPlts"},
                           {"DumpOpm", "ExpDumpOpm"}};

// With --naar the file that the dialog offers goes into that directory.
void Verplaats(Formulier& form, std::string_view veld, const OpdrachtArgumenten& argumenten) {
  const auto* naam = dynamic_cast<const Padvak*>(form.Zoek(veld));
  if (!naam || !argumenten.naar) return;
  ZetPadIn(form, veld, std::filesystem::absolute(*argumenten.naar) / naam->Pad().filename());
}

}  // namespace

int Uitdraai(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  Sessie sessie(omgeving, Instelling::VoorNu);
  Bediener& bediener = sessie.bediener;
  for (const Dump& dump : kDumps) {
    bediener.Bij(dump.formulier, [&](Formulier& form) {
      Verplaats(form, "Bestandsnaam", argumenten);
      Werk(bediener, form).Druk("OKButton");
      if (!form.Gesloten()) bediener.Mislukt(form.Titel() + " is mislukt");
    });
  }
  bediener.Bij("ToonTekst", [&](Formulier& form) {
    if (const auto* toon = dynamic_cast<ToonTekst*>(&form)) {
      DrukUit(toon->UitvoerPad(), omgeving.uit);
    }
  });
  return sessie.Voer(argumenten.woorden[0], Omgang::Lezen, [](Werk& menu) {
    for (const Dump& dump : kDumps) menu.Kies(dump.menuKeuze);
  });
}

int Ascii(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  constexpr ExportVorm kVorm{"ExportAscii", "ExpAscii", "StartExportButton"};
  return VoerExport(kVorm, omgeving, argumenten, [&](Formulier& form, Werk&) {
    for (const std::string_view veld : {"Bestandsnaam(0)", "Bestandsnaam(1)", "Bestandsnaam(2)"}) {
      Verplaats(form, veld, argumenten);
    }
  });
}

}  // namespace lb77
