#include "app/Gezindtebron.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <system_error>

#include "app/GezindteRij.h"
#include "app/IniBestand.h"
#include "store/Paden.h"
#include "text/Dos437.h"
#include "text/Getallen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

using Rijen = std::array<GezindteRij, kGezindteRijen>;

Rijen EigenRijen(const IniClass& ini) {
  Rijen lijst;
  for (std::size_t i = 0; i < lijst.size(); ++i) {
    lijst.at(i) = GezindteRij::Ontleed(ini.IniWaarde(kGezindteSectie, GezindteSleutel(i)));
  }
  return lijst;
}

Rijen RijenVan(std::string_view inhoud) {
  Rijen lijst;
  LeesIniRegels(
      inhoud, [&lijst](std::string_view sectie, std::string_view sleutel, std::string_view waarde) {
        if (!GelijkZonderKast(sectie, kGezindteSectie)) return;
        for (std::size_t i = 0; i < lijst.size(); ++i) {
          if (GelijkZonderKast(sleutel, GezindteSleutel(i)))
            lijst.at(i) = GezindteRij::Ontleed(DosNaarWindows(waarde));
        }
      });
  return lijst;
}

// True when the list says of the code what it said there.
bool Neem(IniClass& ini, Rijen& lijst, const GezindteRij& nieuw) {
  const auto zelfde = std::ranges::find(lijst, nieuw.code, &GezindteRij::code);
  if (zelfde != lijst.end()) return zelfde->naam == nieuw.naam;
  const auto vrij = std::ranges::find_if(lijst, &GezindteRij::IsLeeg);
  if (vrij == lijst.end()) return false;
  *vrij = nieuw;
  ini.IniZet(kGezindteSectie, GezindteSleutel(static_cast<std::size_t>(vrij - lijst.begin())),
             nieuw.Waarde());
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
  for (const GezindteRij& rij : RijenVan(inhoud)) {
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
