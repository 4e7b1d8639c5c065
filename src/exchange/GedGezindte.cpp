#include "exchange/GedGezindte.h"

#include <cstddef>

#include "text/Namen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::size_t kCode = 2;

// kept: not the search of the entry fields. An unknown word leaves its first two characters, so
// that something of it survives, and a code of one character is lost.
std::string CodeVan(std::string_view naam, const Gezindten& gezindten) {
  for (std::size_t i = 1; i < gezindten.size(); ++i) {
    const std::string_view rij = gezindten[i];
    if (rij.size() <= kCode || !GelijkZonderKast(Trim(rij.substr(kCode)), naam)) continue;
    return std::string(Trim(rij.substr(0, kCode)));
  }
  return Links(naam, kCode);
}

}  // namespace

std::string GedGezindte(std::string_view tekst, const Gezindten& gezindten) {
  const std::string_view naam = Trim(tekst);
  if (naam.empty()) return "0";
  std::string code = CodeVan(naam, gezindten);
  return code.size() < kCode ? std::string(kCode, ' ') : code;
}

}  // namespace lb77
