#include "app/IniSamen.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <string_view>

#include "app/Sleutels.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

using Lijst = std::vector<std::string>;

std::string SetNaamVan(std::string_view regel) {
  return Hoofdletters(Trim(regel.substr(0, regel.find(','))));
}

Lijst::iterator ZoekSet(Lijst& lijst, const std::string& naam) {
  return std::ranges::find_if(
      lijst, [&](const std::string& regel) { return !regel.empty() && SetNaamVan(regel) == naam; });
}

// The sets behind it move up, as when one is removed in its dialog.
void Verwijder(Lijst& lijst, const std::string& naam) {
  for (auto plek = ZoekSet(lijst, naam); plek != lijst.end(); plek = ZoekSet(lijst, naam)) {
    lijst.erase(plek);
    lijst.emplace_back();
  }
}

// Element 0 of a list stands for nothing.
void VoegToe(Lijst& lijst, const std::string& regel) {
  const auto vrij = std::find(lijst.begin() + 1, lijst.end(), std::string());
  if (vrij != lijst.end()) *vrij = regel;
}

// The list of the file, with what became of the last known one in this run.
Lijst VoegSetsSamen(Lijst bekend, Lijst nu, Lijst schijf) {
  if (nu == bekend) return schijf;
  if (schijf == bekend) return nu;
  for (const std::string& regel : bekend) {
    const std::string naam = SetNaamVan(regel);
    if (!regel.empty() && ZoekSet(nu, naam) == nu.end()) Verwijder(schijf, naam);
  }
  for (const std::string& regel : nu) {
    if (regel.empty() || std::ranges::find(bekend, regel) != bekend.end()) continue;
    const std::string naam = SetNaamVan(regel);
    const bool nieuw = ZoekSet(bekend, naam) == bekend.end();
    const auto plek = ZoekSet(schijf, naam);
    if (plek == schijf.end()) {
      if (nieuw) VoegToe(schijf, regel);
    } else if (!nieuw) {
      *plek = regel;
    }
  }
  return schijf;
}

bool IsActieveSet(const Sleutel& sleutel) {
  return sleutel.sectie == "Systeem" && (sleutel.naam == "Set" || sleutel.naam == "SetOms");
}

bool IsGewijzigd(const IniStand& stand, const IniBeeld& nu, std::size_t rij) {
  const std::span<const Sleutel> sleutels = AlleSleutels();
  if (!IsActieveSet(sleutels[rij])) return false;
  for (std::size_t i = 0; i < sleutels.size(); ++i) {
    if (IsActieveSet(sleutels[i]) && nu[i] != stand.eigen[i]) return true;
  }
  return false;
}

}  // namespace

IniBeeld VoegSamen(const IniStand& stand, const IniBeeld& nu, const IniBeeld& schijf) {
  if (stand.eigen.empty()) return nu;
  const std::span<const Sleutel> sleutels = AlleSleutels();
  IniBeeld uit = nu;
  for (std::size_t rij = 0; rij < sleutels.size(); ++rij) {
    if (sleutels[rij].soort == SleutelSoort::NooitGelezen) continue;
    if (sleutels[rij].sectie == "Sets") {
      uit[rij] = VoegSetsSamen(stand.eigen[rij], nu[rij], schijf[rij]);
      continue;
    }
    if (IsGewijzigd(stand, nu, rij)) continue;
    for (std::size_t nr = 0; nr < nu[rij].size(); ++nr) {
      if (nu[rij][nr] != stand.eigen[rij][nr]) continue;
      const bool vreemd = schijf[rij][nr] != stand.schijf[rij][nr];
      uit[rij][nr] = vreemd ? schijf[rij][nr] : stand.uit[rij][nr];
    }
  }
  return uit;
}

}  // namespace lb77
