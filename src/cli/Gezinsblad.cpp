// `gezinsblad`: the family sheet.
#include "cli/Opdrachten.h"
#include "cli/Rapport.h"

namespace lb77 {

namespace {

constexpr Rapport kGezinsblad{
    "SchemaGezin",
    {{{"GezinSchPrs", {{{"RecordNr", Vulling::Persoon, 1}}}}, {"GezinSchParam", {}, true}}}};

}  // namespace

int Gezinsblad(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  return MaakRapport(kGezinsblad, omgeving, argumenten);
}

}  // namespace lb77
