#include "app/KopiePlek.h"

#include <string>
#include <system_error>

#include "app/HeelBestand.h"
#include "store/Paden.h"
#include "text/Pad.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

namespace fs = std::filesystem;

constexpr const char* kBestand = "KOPIE.PAD";
constexpr const char* kInWording = "KOPIE.TMP";
constexpr const char* kEigen = "KOPIE";

}  // namespace

fs::path KopiePlek(const fs::path& programmaMap) {
  std::string inhoud;
  if (LeesHeelBestand(VindPad(programmaMap / kBestand), inhoud)) return {};
  const std::string_view regel(inhoud.data(),
                               std::min(inhoud.find_first_of("\r\n"), inhoud.size()));
  const std::string_view plek = Trim(regel);
  return plek.empty() ? fs::path() : programmaMap / PadVan(plek);
}

SysteemFout BewaarKopiePlek(const fs::path& programmaMap, const fs::path& plek) {
  Bestandswerk werk;
  const fs::path bestand = VindPad(programmaMap / kBestand);
  if (plek.empty()) return werk.Verwijder(bestand);
  const std::string tekst = PadTekst(plek);
  if (PadVan(tekst) != plek) return FoutVan(std::make_error_code(std::errc::invalid_argument));
  const fs::path inWording = programmaMap / kInWording;
  if (auto uitslag = werk.Maak(inWording, tekst + "\r\n"); uitslag.fout) return uitslag.fout;
  if (SysteemFout fout = werk.Veiligstellen(inWording)) return fout;
  if (SysteemFout fout = werk.Hernoem(inWording, bestand)) return fout;
  return werk.VeiligstellenMap(programmaMap);
}

KopieMappen KopieMappenIn(const fs::path& programmaMap, const fs::path& plek,
                          std::string_view set) {
  KopieMappen uit;
  const fs::path eigen = VindPad(programmaMap / kEigen / PadVan(set));
  std::error_code code;
  if (!plek.empty() && fs::is_directory(plek, code)) {
    uit.mappen.push_back(VindPad(plek / PadVan(set)));
  } else {
    uit.weg = plek;
  }
  const bool zelfde = !uit.mappen.empty() && fs::equivalent(uit.mappen.front(), eigen, code);
  if (!zelfde) uit.mappen.push_back(eigen);
  return uit;
}

}  // namespace lb77
