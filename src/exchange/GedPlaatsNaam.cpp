#include "exchange/GedPlaatsNaam.h"

#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::string_view kVermoedelijk = "verm. ";
constexpr std::string_view kTwijfelachtig = "(?)";

}  // namespace

std::string_view GedPlaatsNaam(std::string_view tekst) {
  std::string_view naam = Trim(tekst);
  if (naam.starts_with(kVermoedelijk)) naam.remove_prefix(kVermoedelijk.size());
  if (naam.ends_with(kTwijfelachtig)) {
    naam.remove_suffix(kTwijfelachtig.size());
  } else {
    while (naam.ends_with('?')) naam.remove_suffix(1);
  }
  return Trim(naam);
}

}  // namespace lb77
