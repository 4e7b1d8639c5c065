// `sets`: the file sets, with the number of persons and relations in each.
#include <optional>
#include <ostream>
#include <string>
#include <system_error>

#include "app/Bestandensets.h"
#include "cli/Opdrachten.h"
#include "cli/Sessie.h"
#include "store/Bestandenset.h"
#include "store/Hoofdrecords.h"
#include "store/Paden.h"
#include "store/SetPaden.h"
#include "text/Getallen.h"
#include "text/Namen.h"
#include "text/Unicode.h"

namespace lb77 {

namespace {

constexpr std::size_t kSetNaam = 8;

struct Telling {
  int personen = 0;
  int relaties = 0;
};

// Nothing when the files can't be opened.
std::optional<Telling> Tel(Hoofdmodule& hoofd, const std::string& set) {
  if (!IsSetNaam(set)) return std::nullopt;
  const SetPaden paden = SetPaden::Van(hoofd.Ini.DataDir(), set);
  const std::filesystem::path prs = VindPad(paden.prs);
  const std::filesystem::path rlt = VindPad(paden.rlt);
  std::error_code code;  // an absent file would be made
  if (!std::filesystem::exists(prs, code) || !std::filesystem::exists(rlt, code))
    return std::nullopt;
  Bestandenset bestanden;
  Volgers volgers;
  if (bestanden.Open(BestandSoort::Personen, prs) || bestanden.Open(BestandSoort::Relaties, rlt)) {
    return std::nullopt;
  }
  const Opslag opslag{bestanden, volgers, hoofd.gesprek, hoofd.schrijfwijze};
  PersoonLB77 persoon(opslag);
  RelatieLB77 relatie(opslag);
  return Telling{AantalHoofdrecords(persoon, persoon.AantalRecords()),
                 AantalHoofdrecords(relatie, relatie.AantalRecords())};
}

}  // namespace

int Sets(const Omgeving& omgeving, const OpdrachtArgumenten&) {
  Sessie sessie(omgeving, Instelling::VoorNu);
  return sessie.VoerZonderVenster([&] {
    Hoofdmodule& hoofd = sessie.Hoofd();
    const int aantal = hoofd.Ini.AantalBestandenSets();
    for (int i = 1; i <= aantal; ++i) {
      const std::string naam = hoofd.Ini.bestandenset(i);
      const std::string omschrijving = hoofd.Ini.BestandenSetOms(i);
      omgeving.uit << WindowsNaarUtf8(Links(naam, kSetNaam)) << "  ";
      if (!omschrijving.empty()) omgeving.uit << WindowsNaarUtf8(omschrijving) << "  ";
      if (const auto telling = Tel(hoofd, naam)) {
        omgeving.uit << GetalTekst(telling->personen) << " personen, "
                     << GetalTekst(telling->relaties) << " relaties\n";
      } else {
        omgeving.uit << "niet te openen\n";
      }
    }
  });
}

}  // namespace lb77
