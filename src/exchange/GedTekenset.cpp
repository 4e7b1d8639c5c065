#include "exchange/GedTekenset.h"

#include "text/Ansel.h"
#include "text/Dos437.h"
#include "text/Dos850.h"
#include "text/Tekens.h"

namespace lb77 {

namespace {

struct Naam {
  std::string_view waarde;
  GedTekenset tekenset;
};
constexpr Naam kNamen[] = {
    {"IBMPC", GedTekenset::CP437}, {"CP437", GedTekenset::CP437}, {"ANSEL", GedTekenset::ANSEL},
    {"CP850", GedTekenset::CP850}, {"WIN", GedTekenset::WIN1252},
};

}  // namespace

GedTekenset GedTekensetVan(std::string_view waarde) {
  for (const Naam& naam : kNamen) {
    if (naam.waarde == Trim(waarde)) return naam.tekenset;
  }
  return GedTekenset::ASCII;
}

std::string GedNaarWindows(GedTekenset tekenset, std::string_view tekst) {
  switch (tekenset) {
    case GedTekenset::ANSEL:
      return AnselNaarWindows(tekst);
    case GedTekenset::CP437:
      return DosNaarWindows(tekst);
    case GedTekenset::CP850:
      return Dos850NaarWindows(tekst);
    case GedTekenset::Geen:
    case GedTekenset::ASCII:
    case GedTekenset::WIN1252:
      break;
  }
  return std::string(tekst);
}

}  // namespace lb77
