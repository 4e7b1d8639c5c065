#include "cli/Opdrachten.h"

namespace lb77 {

// Each stands in the file of its name.
int Sets(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);
int Nieuw(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);
int Importeer(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);
int Kwartierstaat(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);
int Zoek(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten);

namespace {

// clang-format off
constexpr Opdracht kOpdrachten[] = {
    {"sets", "toont de bestandensets", {}, Extra::Geen, Sets},
    {"nieuw", "maakt een bestandenset", {"SET", "[OMSCHRIJVING]"}, Extra::Geen, Nieuw, true},
    {"importeer", "leest een GEDCOM-bestand in", {"SET"}, Extra::Bestand, Importeer},
    {"kwartierstaat", "schrijft de Kwartierstaat van een persoon", {"SET", "PERSOON"}, Extra::Rapport, Kwartierstaat},
    {"zoek", "zoekt personen op een deel van hun naam", {"SET", "NAAM"}, Extra::Geen, Zoek},
};
// clang-format on

}  // namespace

std::span<const Opdracht> Opdrachten() {
  return kOpdrachten;
}

}  // namespace lb77
