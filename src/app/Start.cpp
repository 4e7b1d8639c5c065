#include "app/Start.h"

#include <cstddef>
#include <string>
#include <system_error>

#include "app/GezindteRij.h"
#include "app/IniBestand.h"
#include "store/Platform.h"

namespace lb77 {

namespace {

// Without a separator at its end, so that it compares equal to itself in the settings.
std::filesystem::path Voluit(const std::filesystem::path& map) {
  const std::filesystem::path heel = std::filesystem::absolute(map).lexically_normal();
  return heel.has_filename() ? heel : heel.parent_path();
}

}  // namespace

std::filesystem::path ZoekProgrammaMap(const std::optional<std::filesystem::path>& gevraagd,
                                       const std::filesystem::path& executable,
                                       const std::filesystem::path& gebruiker) {
  if (gevraagd) return Voluit(*gevraagd);
  return Voluit(HeeftInstellingen(executable) ? executable : gebruiker);
}

std::filesystem::path ZoekProgrammaMap(const std::optional<std::filesystem::path>& gevraagd) {
  return ZoekProgrammaMap(gevraagd, ProgrammaMap(), GebruikersDataMap());
}

bool Start(Hoofdmodule& hoofd) {
  std::error_code code;  // what cannot be made shows itself at its first use
  const bool bewaren = hoofd.instellingen.bewaren;
  if (bewaren) std::filesystem::create_directories(hoofd.programmaMap, code);
  hoofd.volgers = {};
  hoofd.ActieveSetNaam = kGeenSetAanwezig;
  if (!hoofd.Ini.IniLees()) return false;
  if (bewaren) std::filesystem::create_directories(hoofd.Ini.TempDir(), code);
  VulGezindten(hoofd);
  return true;
}

void VulGezindten(Hoofdmodule& hoofd) {
  Gezindten& gezindten = hoofd.schrijfwijze.gezindten;
  for (std::size_t i = 1; i < gezindten.size(); ++i) {
    gezindten[i] = hoofd.Ini.IniWaarde(kGezindteSectie, GezindteSleutel(i - 1));
  }
}

}  // namespace lb77
