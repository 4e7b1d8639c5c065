#include "app/UitvoerNaam.h"

#include <string_view>
#include <system_error>

#include "app/Bestandensets.h"
#include "app/IniBestand.h"
#include "app/KopiePlek.h"
#include "store/JournaalPlek.h"
#include "store/Paden.h"
#include "store/PlatformNamen.h"

namespace lb77 {
namespace {

// What the settings leave beside their file: the one being written, and one that was cut.
constexpr std::string_view kResten[] = {"LIJNBOOM.TMP", "LIJNBOOM.OUD"};

bool IsZelfde(const std::filesystem::path& bestand, const std::filesystem::path& ander) {
  return IsZelfdeBestand(bestand, VindPad(ander));
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

bool IsZelfdeBestand(const std::filesystem::path& een, const std::filesystem::path& ander) {
  std::error_code code;
  if (std::filesystem::equivalent(een, ander, code)) return true;
  const std::filesystem::path a = std::filesystem::weakly_canonical(een, code);
  const std::filesystem::path b = std::filesystem::weakly_canonical(ander, code);
  return !a.empty() && IsZelfdeNaam(a, b);
}

bool IsVanSet(const std::filesystem::path& bestand, const SetPaden& paden) {
  for (const auto& pad : {paden.prs, paden.rlt, paden.plt, paden.opm, paden.centraal}) {
    if (IsZelfde(bestand, pad)) return true;
  }
  return false;
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
    if (IsVanSet(bestand, paden)) return "een bestand van bestandenset " + set;
    for (const auto& map : KopieMappenIn(programmaMap, KopiePlek(programmaMap), set).mappen) {
      if (LigtIn(bestand, map)) return "van een veiligheidskopie";
    }
    if (LigtIn(bestand, JournaalPlek(paden.map, set)))
      return "van het journaal van bestandenset " + set;
  }
  return {};
}

bool Beschermd::Bevat(const std::filesystem::path& bestand) const {
  const std::filesystem::path pad = VindPad(bestand);
  return IsVanSet(pad, SetPaden::Van(ini.DataDir(), actieveSet)) ||
         !BeschermdeRol(pad, programmaMap, ini).empty();
}

}  // namespace lb77
