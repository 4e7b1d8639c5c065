// `personen` and `relaties`: the cards of a range of records.
#include "cli/Opdrachten.h"
#include "cli/Rapport.h"

namespace lb77 {

namespace {

constexpr Rapport kPersonen{
    "UitvPKaart",
    {{{"PrsKrtn",
       {{{"RecordNrPers(0)", Vulling::Woord, 1}, {"RecordNrPers(1)", Vulling::Woord, 2}}},
       true}}}};
constexpr Rapport kRelaties{
    "UitvRKaart",
    {{{"RelKrtn",
       {{{"RecordNrRel(0)", Vulling::Woord, 1}, {"RecordNrRel(1)", Vulling::Woord, 2}}},
       true}}}};

}  // namespace

int Personen(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  return MaakRapport(kPersonen, omgeving, argumenten);
}

int Relaties(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  return MaakRapport(kRelaties, omgeving, argumenten);
}

}  // namespace lb77
