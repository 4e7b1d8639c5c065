// `verwantschap`: the shortest chain between two persons.
#include "cli/Opdrachten.h"
#include "cli/Rapport.h"

namespace lb77 {

namespace {

constexpr Rapport kVerwantschap{
    "SchemaVerwant",
    {{{"SchemaVerwantschap",
       {{{"PersNr(0)", Vulling::Persoon, 1}, {"PersNr(1)", Vulling::Persoon, 2}}},
       true}}}};

}  // namespace

int Verwantschap(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  return MaakRapport(kVerwantschap, omgeving, argumenten);
}

}  // namespace lb77
