#include <ostream>
#include <utility>

#include "cli/Opdrachten.h"
#include "program/Programma.h"
#include "script/Speler.h"

namespace lb77 {

int SpeelDraaiboek(const Omgeving& omgeving, std::string_view utf8, SpeelOpties opties) {
  const Draaiboek draaiboek = LeesDraaiboek(utf8);
  if (!draaiboek.fout.empty()) {
    omgeving.fout << draaiboek.fout << '\n';
    return 1;
  }
  const SpeelUitslag uitslag = Speel(
      draaiboek.instructies,
      [&omgeving](Gesprek& gesprek) {
        VoerProgramma(gesprek, omgeving.klok, omgeving.programmaMap);
      },
      [&omgeving](std::string_view regel) { omgeving.uit << regel << '\n'; }, std::move(opties));
  omgeving.uit.flush();
  for (const std::string& over : uitslag.ongebruikt)
    omgeving.fout << "niet gebruikt: " << over << '\n';
  if (!uitslag.reden.empty()) omgeving.fout << uitslag.reden << '\n';
  return uitslag.status;
}

}  // namespace lb77
