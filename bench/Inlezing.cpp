#include "Inlezing.h"

#include <ostream>
#include <sstream>
#include <stdexcept>

#include "app/SetOpenen.h"
#include "cli/Sessie.h"
#include "exchange/ImpGedcom.h"

namespace lb77::bench {

void LeesIn(const Meetset& set, const std::filesystem::path& gedcom, MetJournaal journaal) {
  const SetPaden paden = set.Paden();
  const VasteKlok klok{{.jaar = 2000, .maand = 1, .dag = 1}};
  std::ostream nergens(nullptr);
  std::ostringstream fout;
  const Omgeving omgeving{paden.map.parent_path().parent_path(), klok, nergens, fout};
  Sessie sessie(omgeving, Instelling::VoorNu);
  bool gelukt = false;
  sessie.bediener.HoudKlaar("ImpGedcom", Antwoord::Ja);
  sessie.bediener.Bij("ImpGedcom", [&](Formulier& form) {
    auto& import = dynamic_cast<ImpGedcom&>(form);
    import.Bestandsnaam.ZetPad(gedcom);
    Werk(sessie.bediener, form).Druk("OKButton");
    gelukt = import.Gelukt();
  });
  const int status = sessie.Voer("MEET", Omgang::Schrijven, [&](Werk& menu) {
    Hoofdmodule& hoofd = sessie.Hoofd();
    if (journaal == MetJournaal::Nee) NeemJournaalWeg(hoofd);
    if (!hoofd.bestanden.OpenSet(paden)) menu.Kies("ImportGedcom");
  });
  if (status != 0 || !gelukt) throw std::runtime_error("inlezen mislukt: " + fout.str());
}

}  // namespace lb77::bench
