#include "app/Gezindtebron.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <system_error>
#include <utility>

#include "app/IniBestand.h"
#include "store/Paden.h"
#include "text/Dos437.h"
#include "text/Getallen.h"
#include "text/Namen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::string_view kSectie = "Namenfile";
constexpr std::size_t kCodeBreedte = 2;
constexpr std::size_t kRijen = 20;

// A row of the list: two characters of code, then the name.
struct Gezindte {
  std::string code;
  std::string naam;
};
using Rijen = std::array<Gezindte, kRijen>;

std::string SleutelVan(std::size_t rij) {
  return "Gez" + GetalTekst(static_cast<std::int64_t>(rij + 1));
}

Gezindte Ontleed(std::string_view waarde) {
  return {std::string(Trim(waarde.substr(0, kCodeBreedte))),
          std::string(Trim(waarde.substr(std::min(kCodeBreedte, waarde.size()))))};
}

Rijen EigenRijen(const IniClass& ini) {
  Rijen lijst;
  for (std::size_t i = 0; i < lijst.size(); ++i) {
    lijst.at(i) = Ontleed(ini.IniWaarde(kSectie, SleutelVan(i)));
  }
  return lijst;
}

Rijen RijenVan(std::string_view inhoud) {
  Rijen lijst;
  LeesIniRegels(
      inhoud, [&lijst](std::string_view sectie, std::string_view sleutel, std::string_view waarde) {
        if (!GelijkZonderKast(sectie, kSectie)) return;
        for (std::size_t i = 0; i < lijst.size(); ++i) {
          if (GelijkZonderKast(sleutel, SleutelVan(i)))
            lijst.at(i) = Ontleed(DosNaarWindows(waarde));
        }
      });
  return lijst;
}

bool IsLeeg(const Gezindte& rij) {
  return rij.code.empty() && rij.naam.empty();
}

// True when the list says of the code what it said there.
bool Neem(IniClass& ini, Rijen& lijst, const Gezindte& nieuw) {
  const auto zelfde = std::ranges::find(lijst, nieuw.code, &Gezindte::code);
  if (zelfde != lijst.end()) return zelfde->naam == nieuw.naam;
  const auto vrij = std::ranges::find_if(lijst, IsLeeg);
  if (vrij == lijst.end()) return false;
  *vrij = nieuw;
  ini.IniZet(kSectie, SleutelVan(static_cast<std::size_t>(vrij - lijst.begin())),
             Links(nieuw.code, kCodeBreedte) + nieuw.naam);
  return true;
}

}  // namespace

std::filesystem::path InstellingenBij(const std::filesystem::path& map,
                                      const std::filesystem::path& programmaMap) {
  const std::filesystem::path eigen = VindPad(programmaMap / kIniBestand);
  const std::filesystem::path boven = map.parent_path();
  for (const auto& plek : {map, boven, boven.parent_path()}) {
    std::filesystem::path pad = VindPad(plek / kIniBestand);
    std::error_code code;
    if (!std::filesystem::is_regular_file(pad, code)) continue;
    if (!std::filesystem::equivalent(pad, eigen, code)) return pad;
  }
  return {};
}

std::vector<std::string> NeemGezindten(IniClass& ini, const std::filesystem::path& instellingen) {
  std::vector<std::string> over;
  std::string inhoud;
  if (instellingen.empty() || LeesHeelBestand(instellingen, inhoud)) return over;
  Rijen lijst = EigenRijen(ini);
  bool genomen = false;
  for (const Gezindte& rij : RijenVan(inhoud)) {
    if (rij.code.empty()) continue;
    if (Neem(ini, lijst, rij)) {
      genomen = true;
    } else {
      over.push_back(rij.code + " (" + rij.naam + ")");
    }
  }
  if (genomen) ini.IniSchrijf();
  return over;
}

}  // namespace lb77
