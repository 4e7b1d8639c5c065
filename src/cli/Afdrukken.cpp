#include "cli/Afdrukken.h"

#include <fstream>
#include <ostream>
#include <system_error>

#include "app/Bestandensets.h"
#include "app/IniBestand.h"
#include "app/KopiePlek.h"
#include "output/Tekstpaginas.h"
#include "store/Paden.h"
#include "store/SetPaden.h"
#include "text/Unicode.h"

namespace lb77 {
namespace {

// What the settings leave beside their file: the one being written, and one that was cut.
constexpr std::string_view kResten[] = {"LIJNBOOM.TMP", "LIJNBOOM.OUD"};

// The same file, or the same place where none is yet.
bool IsZelfde(const std::filesystem::path& bestand, const std::filesystem::path& ander) {
  const std::filesystem::path gevonden = VindPad(ander);
  std::error_code code;
  if (std::filesystem::equivalent(bestand, gevonden, code)) return true;
  const std::filesystem::path a = std::filesystem::weakly_canonical(bestand, code);
  const std::filesystem::path b = std::filesystem::weakly_canonical(gevonden, code);
  return !a.empty() && a == b;
}

// Is it that directory, or does it lie anywhere below it?
bool LigtIn(const std::filesystem::path& bestand, const std::filesystem::path& map) {
  std::error_code code;
  std::filesystem::path plek = std::filesystem::weakly_canonical(bestand, code);
  for (; plek.has_relative_path(); plek = plek.parent_path()) {
    if (IsZelfde(plek, map)) return true;
  }
  return false;
}

}  // namespace

void DrukUit(const std::filesystem::path& bron, std::ostream& uit) {
  std::ifstream in(bron, std::ios::binary);
  std::string regel;
  while (std::getline(in, regel)) {
    if (!regel.empty() && regel.back() == '\r') regel.pop_back();
    uit << WindowsNaarUtf8(regel) << '\n';
  }
}

SysteemFout BewaarAls(const std::filesystem::path& bron, const std::filesystem::path& naar) {
  std::error_code code;
  if (!std::filesystem::exists(naar, code) || std::filesystem::is_regular_file(naar, code)) {
    return KopieerTekst(bron, naar);
  }
  std::ifstream in(bron, std::ios::binary);
  std::ofstream uit(naar, std::ios::binary);
  uit << in.rdbuf();
  uit.close();
  return uit ? SysteemFout{} : FoutVanStroom();
}

std::string BeschermdeRol(const std::filesystem::path& bestand,
                          const std::filesystem::path& programmaMap, const IniClass& ini) {
  for (const std::string_view naam : {kIniBestand, kIniReserve, kKopiePad}) {
    if (IsZelfde(bestand, programmaMap / naam)) return "het bestand met instellingen";
  }
  for (const std::string_view naam : kResten) {
    if (IsZelfde(bestand, programmaMap / naam)) return "een reserve van de instellingen";
  }
  if (LigtIn(bestand, programmaMap / "KOPIE")) return "van een veiligheidskopie";
  const int aantal = ini.AantalBestandenSets();
  for (int i = 1; i <= aantal; ++i) {
    const std::string set = ini.bestandenset(i);
    if (!IsSetNaam(set)) continue;
    const SetPaden paden = SetPaden::Van(ini.DataDir(), set);
    for (const auto& pad : {paden.prs, paden.rlt, paden.plt, paden.opm, paden.centraal}) {
      if (IsZelfde(bestand, pad)) return "een bestand van bestandenset " + set;
    }
    for (const auto& map : KopieMappenIn(programmaMap, KopiePlek(programmaMap), set).mappen) {
      if (LigtIn(bestand, map)) return "van een veiligheidskopie";
    }
    if (LigtIn(bestand, paden.map / "JOURNAAL")) return "van het journaal van bestandenset " + set;
  }
  return {};
}

}  // namespace lb77
