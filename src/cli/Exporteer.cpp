// `exporteer`: writes a file set to a GEDCOM file of one of both kinds and prints the log.
#include "cli/Export.h"
#include "cli/Opdrachten.h"

namespace lb77 {

int Exporteer(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  constexpr ExportVorm kVorm{"ExportGedcom", "ExpGedcom", "OKButton"};
  return VoerExport(kVorm, omgeving, argumenten, [&](Formulier& form, Werk& werk) {
    ZetPadIn(form, "Bestandsnaam", argumenten.bestand);
    if (argumenten.utf8) static_cast<void>(werk.Zet("Utf8Box", "aan"));
  });
}

}  // namespace lb77
