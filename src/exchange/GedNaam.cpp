#include "exchange/GedNaam.h"

#include <cstddef>

#include "store/PersoonVelden.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::size_t kVoornaam = persoonveld::Voornaam.breedte;
constexpr std::size_t kAchternaam = persoonveld::Achternaam.breedte;

GedNaamDelen Ongesneden(std::string_view waarde) {
  const std::size_t eerste = waarde.find('/');
  if (eerste == std::string_view::npos || eerste + 1 == waarde.size())
    return {.voornaam = {}, .achternaam = waarde, .rest = {}};
  const std::string_view achter = waarde.substr(eerste + 1);
  const std::size_t tweede = achter.find('/');
  const bool dicht = tweede != std::string_view::npos;
  return {.voornaam = waarde.substr(0, eerste),
          .achternaam = achter.substr(0, tweede),
          .rest = dicht ? achter.substr(tweede + 1) : std::string_view()};
}

}  // namespace

GedNaamDelen GedNaam(std::string_view waarde) {
  GedNaamDelen delen = Ongesneden(waarde);
  delen.afgekapt = TrimRechts(delen.voornaam).size() > kVoornaam ||
                   TrimRechts(delen.achternaam).size() > kAchternaam;
  delen.voornaam = Trim(delen.voornaam.substr(0, kVoornaam));
  delen.achternaam = Trim(delen.achternaam.substr(0, kAchternaam));
  return delen;
}

}  // namespace lb77
