#include "exchange/GedNaam.h"

#include "text/Tekens.h"

namespace lb77 {
namespace {

constexpr std::size_t kVoornaam = 30;
constexpr std::size_t kAchternaam = 25;

GedcomNaam Splits(std::string_view waarde) {
  const std::size_t een = waarde.find('/');
  if (een == std::string_view::npos || een + 1 == waarde.size()) return {{}, waarde, {}};
  const std::string_view achter = waarde.substr(een + 1);
  const std::size_t twee = achter.find('/');
  if (twee == std::string_view::npos) return {waarde.substr(0, een), achter, {}};
  return {waarde.substr(0, een), achter.substr(0, twee), achter.substr(twee + 1)};
}

}  // namespace

GedcomNaam GedNaam(std::string_view waarde) {
  const GedcomNaam delen = Splits(waarde);
  return {Trim(Trim(delen.voornaam).substr(0, kVoornaam)),
          Trim(Trim(delen.achternaam).substr(0, kAchternaam)), Trim(delen.rest)};
}

}  // namespace lb77
