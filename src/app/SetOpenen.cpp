#include "app/SetOpenen.h"

#include <memory>
#include <optional>
#include <utility>

#include "app/KopieBijSchrijven.h"
#include "app/KopiePlek.h"
#include "app/Ongedaan.h"
#include "app/VeiligTeksten.h"
#include "store/Bestandenset.h"
#include "store/Paden.h"
#include "store/Platform.h"

namespace lb77 {

namespace {

constexpr std::string_view kInGebruik = "Deze bestandenset is al in gebruik.";

// The work goes on without it: the journal has what is replaced.
void MaakEersteKopie(Hoofdmodule& hoofd) {
  if (!hoofd.SetActief()) return;
  Veiligheidskopie kopie = KopieVan(hoofd);
  MeldPlekWeg(kopie, hoofd.gesprek);
  if (const SysteemFout fout = kopie.MaakZonodig()) {
    hoofd.gesprek.Waarschuw(std::string(kKopieNietGemaakt) + fout.tekst);
  }
}

bool VraagHerstel(Hoofdmodule& hoofd, Journaal& journaal, const OnvoltooideHandeling& handeling) {
  const bool terug = hoofd.gesprek.Vraag(OnvoltooidTekst(handeling) + "\nOngedaan maken ?");
  const SysteemFout fout = terug ? journaal.Herstel() : journaal.Behoud();
  if (!fout) return true;
  hoofd.gesprek.Fout((terug ? "Ongedaan maken is niet gelukt\n" : "Behouden is niet gelukt\n") +
                     fout.tekst);
  return false;
}

}  // namespace

Veiligheidskopie KopieVan(Hoofdmodule& hoofd) {
  return KopieVan(hoofd, KopiePlek(hoofd.programmaMap));
}

Veiligheidskopie KopieVan(Hoofdmodule& hoofd, const std::filesystem::path& plek) {
  return {hoofd.MaakOpslag(), hoofd.klok, SetPaden::Van(hoofd.Ini.DataDir(), hoofd.ActieveSetNaam),
          KopieMappenIn(hoofd.programmaMap, plek, hoofd.ActieveSetNaam)};
}

void GeefJournaal(Hoofdmodule& hoofd) {
  hoofd.bestanden.ZetJournaal({.tijd = [&klok = hoofd.klok] { return TijdTekst(klok); },
                               .bijVreemd =
                                   [&gesprek = hoofd.gesprek](BestandSoort soort) {
                                     gesprek.Waarschuw("Het " + std::string(BestandNaam(soort)) +
                                                       " is door een ander programma gewijzigd");
                                   },
                               .map =
                                   [&hoofd](const std::filesystem::path& map) {
                                     return std::make_unique<KopieBijSchrijven>(
                                         map, [&hoofd] { MaakEersteKopie(hoofd); });
                                   }});
}

void NeemJournaalWeg(Hoofdmodule& hoofd) {
  hoofd.bestanden.ZetJournaal({});
}

std::string OnvoltooidTekst(const OnvoltooideHandeling& handeling) {
  return "De vorige bewerking (" + handeling.label + ", " + handeling.tijd + ") is niet voltooid.";
}

bool MagGebruiken(Hoofdmodule& hoofd, SetGebruik gebruik) {
  const bool lezen = gebruik == SetGebruik::Lezen;
  // Before the journal: what another run is doing just now is not finished either.
  if (!lezen && !hoofd.bestanden.NeemInGebruik() &&
      !hoofd.gesprek.Vraag(std::string(kInGebruik) + "\nToch openen ?")) {
    return false;
  }
  const std::shared_ptr<Journaal> journaal = hoofd.bestanden.HetJournaal();
  const auto onvoltooid = journaal ? journaal->Onvoltooid() : std::nullopt;
  if (!onvoltooid) return true;
  if (!lezen) return VraagHerstel(hoofd, *journaal, *onvoltooid);
  hoofd.gesprek.Waarschuw(OnvoltooidTekst(*onvoltooid));
  return false;
}

bool IsElders(const SetPaden& paden) {
  Bestandsgreep greep;
  if (greep.Open(VindPad(paden.prs), Openwijze::AlleenLezen)) return false;
  return greep.Vergrendel().nummer == FoutInGebruik().nummer;
}

}  // namespace lb77
