#include "app/Ongedaan.h"

#include <memory>
#include <string>

#include "app/VeiligTeksten.h"
#include "store/Bestandenset.h"
#include "store/Journaal.h"
#include "store/Volgers.h"
#include "text/Letterlijk.h"
#include "text/Pad.h"

namespace lb77 {

bool MaakOngedaan(const Opslag& opslag, std::uint32_t nummer) {
  const std::shared_ptr<Journaal> journaal = opslag.bestanden.HetJournaal();
  if (!journaal) {
    opslag.gesprek.Waarschuw(kNietsOngedaan);
    return false;
  }
  const OngedaanUitslag uitslag = journaal->MaakOngedaan(nummer);
  opslag.volgers = {};  // a record that they name may be gone
  if (uitslag) return true;
  opslag.gesprek.Fout(OngedaanTekst(uitslag));
  return false;
}

void MaakLaatsteOngedaan(const Opslag& opslag) {
  const std::shared_ptr<Journaal> journaal = opslag.bestanden.HetJournaal();
  const auto laatste = journaal ? journaal->LaatsteTeOngedaan() : std::nullopt;
  if (!laatste) {
    opslag.gesprek.Informeer(kNietsOngedaan);
    return;
  }
  if (!opslag.gesprek.Vraag("De bewerking \"" + laatste->label + "\" (" + laatste->tijd +
                            ") ongedaan maken ?")) {
    return;
  }
  if (MaakOngedaan(opslag, laatste->nummer)) {
    opslag.gesprek.Informeer(std::string(kOngedaanGemaakt) + laatste->label);
  }
}

std::string PlekWegTekst(const Veiligheidskopie& kopie) {
  if (kopie.Weg().empty()) return {};
  return std::string("De plaats voor de veiligheidskopieën ("_w) + PadTekst(kopie.Weg()) +
         ") is er niet.\nEen kopie komt nu in " + PadTekst(kopie.Map());
}

void MeldPlekWeg(const Veiligheidskopie& kopie, Gesprek& gesprek) {
  if (!kopie.Weg().empty()) gesprek.Waarschuw(PlekWegTekst(kopie));
}

void MaakVeiligheidskopie(Veiligheidskopie kopie, Gesprek& gesprek) {
  MeldPlekWeg(kopie, gesprek);
  if (const SysteemFout fout = kopie.Maak()) {
    gesprek.Fout(std::string(kKopieNietGemaakt) + fout.tekst);
  } else {
    gesprek.Informeer("Veiligheidskopie gemaakt: " + PadTekst(kopie.Gemaakt()));
  }
}

}  // namespace lb77
