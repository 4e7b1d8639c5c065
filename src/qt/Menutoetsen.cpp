#include "qt/Menutoetsen.h"

#include <algorithm>
#include <iterator>

namespace lb77 {

namespace {

struct Sneltoets {
  std::string_view keuze;
  Qt::Key toets;  // with Ctrl
};
constexpr Sneltoets kSneltoetsen[] = {
    {"MaakSet", Qt::Key_N},        {"OpenSet", Qt::Key_O},   {"KeuzeAfsluiten", Qt::Key_Q},
    {"InvPersRel", Qt::Key_I},     {"InvPlaats", Qt::Key_L}, {"TekstKwst", Qt::Key_K},
    {"TekstGen", Qt::Key_G},       {"RptSelPrs", Qt::Key_F}, {"VeiligKopie", Qt::Key_S},
    {"VeiligOngedaan", Qt::Key_Z},
};

constexpr std::string_view kGroepen[] = {
    "OudeSet",      "ZetIni",      "ImportData",  "ViewTekst",     "Controle",    "KeuzeAfsluiten",
    "SetupToetsen", "DumpPrs",     "InvPlaats",   "InvoerAkten",   "IndexKwst",   "UitvPKaart",
    "SchemaGen",    "SchemaGezin", "BeeldWaaier", "RapportTakken", "VeiligKopie", "AboutLB77",
};

}  // namespace

QKeySequence SneltoetsVan(std::string_view keuze) {
  const auto* const toets =
      std::find_if(std::begin(kSneltoetsen), std::end(kSneltoetsen),
                   [keuze](const Sneltoets& een) { return een.keuze == keuze; });
  return toets == std::end(kSneltoetsen) ? QKeySequence() : QKeySequence(Qt::CTRL | toets->toets);
}

bool BegintGroep(std::string_view keuze) {
  return std::find(std::begin(kGroepen), std::end(kGroepen), keuze) != std::end(kGroepen);
}

}  // namespace lb77
