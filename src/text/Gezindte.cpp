#include "text/Gezindte.h"

#include <cstddef>

#include "text/Namen.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

constexpr std::size_t kCodeBreedte = 2;

std::string_view NaamDeel(std::string_view rij) {
  return rij.size() > kCodeBreedte ? Trim(rij.substr(kCodeBreedte)) : std::string_view();
}

}  // namespace

std::string GezindteNaam(std::string_view code, const Gezindten& gezindten) {
  code = Trim(code);
  if (code.empty()) return {};
  const std::string gezocht = Links(code, kCodeBreedte);
  for (std::size_t i = 1; i < gezindten.size(); ++i) {
    const std::string& rij = gezindten[i];
    if (!rij.empty() && GelijkZonderKast(Links(rij, kCodeBreedte), gezocht)) {
      return std::string(NaamDeel(rij));
    }
  }
  return std::string(code);
}

std::string GezindteCode(std::string_view naam, const Gezindten& gezindten) {
  naam = Trim(naam);
  if (naam.empty()) return std::string(kCodeBreedte, ' ');
  for (std::size_t i = 1; i < gezindten.size(); ++i) {
    const std::string& rij = gezindten[i];
    if (GelijkZonderKast(NaamDeel(rij), naam)) return Links(rij, kCodeBreedte);
  }
  return std::string(kCodeBreedte, ' ');
}

}  // namespace lb77
