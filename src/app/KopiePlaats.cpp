#include "app/KopiePlaats.h"

#include <filesystem>
#include <string>
#include <system_error>

#include "app/KopiePlek.h"
#include "app/VeiligTeksten.h"
#include "text/Tekens.h"

namespace lb77 {

KopiePlaats::KopiePlaats(Hoofdmodule& hoofd)
    : Formulier("KopiePlaats", "Plaats van de Veiligheidskopieën"_w), hoofd_(hoofd) {
  ZetHulpOnderwerp("veilig-werken");
  ZetEersteVeld(KopieMap);
  BrowseKopieMap.BijKlik([this] { BrowseKopieMapKlik(); });
  OKButton.BijKlik([this] { OKButtonKlik(); });
  BackButton.BijKlik([this] { Sluit(); });
}

void KopiePlaats::BijLaden() {
  KopieMap.ZetPad(KopiePlek(hoofd_.programmaMap));
}

void KopiePlaats::BrowseKopieMapKlik() {
  const auto map =
      hoofd_.gesprek.VraagBestand({.wijze = BestandsWijze::Map,
                                   .filter = "Directories (*.)|*.dir|Alle Bestanden (*.*)|*.*",
                                   .beginmap = hoofd_.programmaMap / KopieMap.Pad()});
  if (map) KopieMap.ZetPad(*map);
}

void KopiePlaats::OKButtonKlik() {
  const bool leeg = Trim(KopieMap.Tekst()).empty();
  // A relative path is one in the program's directory.
  const std::filesystem::path plek =
      leeg ? std::filesystem::path() : hoofd_.programmaMap / KopieMap.Pad();
  std::error_code code;
  if (!leeg && !std::filesystem::is_directory(plek, code)) {
    hoofd_.gesprek.Waarschuw(DirectoryErNiet(plek));
    ZetFocus(KopieMap);
    return;
  }
  if (const SysteemFout fout = BewaarKopiePlek(hoofd_.programmaMap, plek)) {
    hoofd_.gesprek.Fout(std::string(kPlaatsNietBewaard) + fout.tekst);
    return;
  }
  Sluit();
}

}  // namespace lb77
