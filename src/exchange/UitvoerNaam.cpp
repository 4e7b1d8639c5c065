#include "exchange/UitvoerNaam.h"

#include <string>
#include <system_error>

#include "app/Bestandensets.h"
#include "app/Hoofdmodule.h"
#include "app/IniBestand.h"
#include "store/Paden.h"
#include "store/SetPaden.h"

namespace lb77 {
namespace {

bool IsVanSet(const std::filesystem::path& bestand, const SetPaden& paden) {
  for (const auto& pad : {paden.prs, paden.rlt, paden.opm, paden.plt, paden.centraal}) {
    if (IsZelfdeBestand(bestand, VindPad(pad))) return true;
  }
  return IsZelfdeBestand(bestand.parent_path(), VindPad(paden.map / "JOURNAAL"));
}

}  // namespace

bool IsZelfdeBestand(const std::filesystem::path& een, const std::filesystem::path& ander) {
  std::error_code code;
  if (std::filesystem::equivalent(een, ander, code)) return true;
  const std::filesystem::path a = std::filesystem::weakly_canonical(een, code);
  if (code) return false;
  const std::filesystem::path b = std::filesystem::weakly_canonical(ander, code);
  return !code && a == b;
}

bool IsEigenBestand(const std::filesystem::path& bestand, const Hoofdmodule& hoofd) {
  for (const std::string_view naam : {kIniBestand, kIniReserve}) {
    if (IsZelfdeBestand(bestand, VindPad(hoofd.programmaMap / naam))) return true;
  }
  if (hoofd.SetActief() &&
      IsVanSet(bestand, SetPaden::Van(hoofd.Ini.DataDir(), hoofd.ActieveSetNaam))) {
    return true;
  }
  for (int i = 1; i <= hoofd.Ini.AantalBestandenSets(); ++i) {
    const std::string set = hoofd.Ini.bestandenset(i);
    if (IsSetNaam(set) && IsVanSet(bestand, SetPaden::Van(hoofd.Ini.DataDir(), set))) return true;
  }
  return false;
}

}  // namespace lb77
