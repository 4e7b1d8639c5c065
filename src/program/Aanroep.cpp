#include "program/Aanroep.h"

#include <cstddef>
#include <system_error>

namespace lb77 {

namespace {

constexpr int kVerkeerdGebruik = 2;
constexpr const char* kHulp =
    "LB77: stamboomprogramma\n"
    "Gebruik: lb77 [KEUZES] [BESTAND]\n"
    "\n"
    "Woorden:\n"
    "  BESTAND      een GEDCOM-bestand (.ged) om in te lezen\n"
    "\n"
    "Keuzes:\n"
    "  -h,--help    toont deze hulp\n"
    "  --version    toont de versie\n"
    "  --map MAP    de map van het programma en zijn instellingen\n"
    "\n"
    "Op de opdrachtregel werken zonder vensters: zie lb77-cli --help.\n";

std::filesystem::path PadVanUtf8(const std::string& utf8) {
  return std::filesystem::absolute(std::u8string(utf8.begin(), utf8.end()));
}

Aanroep Verkeerd(std::ostream& fout, const std::string& tekst) {
  fout << "lb77: " << tekst << "\nlb77 --help toont het gebruik.\n";
  return {.status = kVerkeerdGebruik, .map = {}, .bestand = {}};
}

}  // namespace

bool BeantwoordAanroep(std::span<const std::string> woorden, std::ostream& uit) {
  for (const std::string& woord : woorden) {
    if (woord == "--") break;
    if (woord == "--help" || woord == "-h") {
      uit << kHulp;
      return true;
    }
    if (woord == "--version") {
      uit << "LB77 " LB77_VERSIE "\n";
      return true;
    }
  }
  return false;
}

Aanroep LeesAanroep(std::span<const std::string> woorden, std::ostream& fout) {
  Aanroep aanroep;
  bool keuzes = true;
  for (std::size_t i = 0; i < woorden.size(); ++i) {
    const std::string& woord = woorden[i];
    if (keuzes && woord == "--") {
      keuzes = false;
    } else if (keuzes && woord == "--map") {
      if (++i == woorden.size()) return Verkeerd(fout, "--map: MAP ontbreekt");
      aanroep.map = PadVanUtf8(woorden[i]);
      std::error_code code;
      // A mistyped one would be an empty program.
      if (!std::filesystem::is_directory(*aanroep.map, code)) {
        return Verkeerd(fout, "--map: " + woorden[i] + " is geen map");
      }
    } else if (keuzes && woord.size() > 1 && woord.front() == '-') {
      return Verkeerd(fout, "Onbekende keuze: " + woord);
    } else if (aanroep.bestand) {
      return Verkeerd(fout, "Onverwacht: " + woord);
    } else {
      aanroep.bestand = PadVanUtf8(woord);
    }
  }
  return aanroep;
}

}  // namespace lb77
