#include "exchange/GedTekst.h"

#include "text/Ansel.h"
#include "text/Dos437.h"
#include "text/Dos850.h"
#include "text/Namen.h"
#include "text/Tekens.h"

namespace lb77 {
namespace {

struct TekensetRij {
  std::string_view waarde;
  GedTekenset tekenset;
};
constexpr TekensetRij kTekensets[] = {{"IBMPC", GedTekenset::Cp437},
                                      {"CP437", GedTekenset::Cp437},
                                      {"ANSEL", GedTekenset::Ansel},
                                      {"CP850", GedTekenset::Cp850},
                                      {"WIN", GedTekenset::Win1252}};

constexpr std::size_t kCode = 2;

}  // namespace

GedTekenset GedTekensetVan(std::string_view waarde) {
  for (const TekensetRij& rij : kTekensets) {
    if (rij.waarde == Trim(waarde)) return rij.tekenset;
  }
  return GedTekenset::Ascii;
}

std::string GedTekst(std::string_view tekst, GedTekenset tekenset) {
  switch (tekenset) {
    case GedTekenset::Ansel:
      return AnselNaarWindows(tekst);
    case GedTekenset::Cp437:
      return DosNaarWindows(tekst);
    case GedTekenset::Cp850:
      return Dos850NaarWindows(tekst);
    case GedTekenset::Onbekend:
    case GedTekenset::Ascii:
    case GedTekenset::Win1252:
      break;
  }
  return std::string(tekst);
}

std::string GedGezindteCode(std::string_view naam, const Gezindten& gezindten) {
  std::string code = Links(naam, kCode);
  for (std::size_t i = 1; i < gezindten.size(); ++i) {
    const std::string_view gezindte = gezindten[i];
    if (gezindte.size() <= kCode || !GelijkZonderKast(gezindte.substr(kCode), naam)) continue;
    code = Trim(gezindte.substr(0, kCode));
    break;
  }
  return Trim(code).size() < kCode ? std::string(kCode, ' ') : code;
}

std::string_view GedPlaatsNaam(std::string_view naam) {
  constexpr std::string_view kVermoedelijk = "verm. ";
  constexpr std::string_view kTwijfel = "(?)";
  if (BegintMet(naam, kVermoedelijk)) naam.remove_prefix(kVermoedelijk.size());
  naam = Trim(naam);
  if (EindigtOp(naam, kTwijfel)) {
    naam.remove_suffix(kTwijfel.size());
  } else {
    while (!naam.empty() && naam.back() == '?') naam.remove_suffix(1);
  }
  return Trim(naam);
}

}  // namespace lb77
