#include "app/GezienBestand.h"

#include <string>

#include "app/HeelBestand.h"
#include "app/NeemRegel.h"
#include "store/Paden.h"
#include "text/Getallen.h"

namespace lb77 {

namespace {

constexpr const char* kInWording = "GEZIEN.TMP";
constexpr std::int16_t kEersteNr = 2;

std::string Inhoud(const std::filesystem::path& programmaMap) {
  std::string inhoud;
  static_cast<void>(LeesHeelBestand(VindPad(programmaMap / kGezienBestand), inhoud));
  return inhoud;
}

// The name at the head of a line: a name of a set has no comma, but it may have blanks.
std::string_view SetVan(std::string_view regel) {
  return regel.substr(0, regel.find(','));
}

}  // namespace

std::vector<std::int16_t> LeesGezien(const std::filesystem::path& programmaMap,
                                     std::string_view set) {
  const std::string inhoud = Inhoud(programmaMap);
  std::vector<std::int16_t> uit;
  for (std::string_view rest = inhoud; !rest.empty();) {
    std::string_view regel = NeemRegel(rest);
    if (SetVan(regel) != set) continue;
    while (regel.find(',') != std::string_view::npos) {
      regel.remove_prefix(regel.find(',') + 1);
      const auto nr = NaarInt16(Getalwaarde(regel));
      if (nr && *nr >= kEersteNr) uit.push_back(*nr);
    }
    break;
  }
  return uit;
}

void SchrijfGezien(const std::filesystem::path& programmaMap, std::string_view set,
                   const std::vector<std::int16_t>& nummers) {
  std::string tekst(set);
  for (const std::int16_t nr : nummers) tekst += "," + GetalTekst(nr);
  tekst += "\r\n";
  const std::string inhoud = Inhoud(programmaMap);
  for (std::string_view rest = inhoud; !rest.empty();) {
    const std::string_view regel = NeemRegel(rest);
    if (!regel.empty() && SetVan(regel) != set) tekst.append(regel).append("\r\n");
  }
  Bestandswerk werk;
  const std::filesystem::path naast = programmaMap / kInWording;
  if (werk.Maak(naast, tekst).fout) return;
  static_cast<void>(werk.Hernoem(naast, VindPad(programmaMap / kGezienBestand)));
}

}  // namespace lb77
