// `schema-kwartierstaat`: the ancestor chart.
#include "cli/Opdrachten.h"
#include "cli/Rapport.h"

namespace lb77 {

namespace {

constexpr Rapport kSchema{"SchemaKwst",
                          {{{"KwstSchPrs", {{{"RecordNr", Vulling::Persoon, 1}}}},
                            {"KwstSchParam", {{{"InHTMLBox", Vulling::Html}}}, true},
                            {"KwHTMLParam", {{{"", Vulling::Links}}}}}}};

}  // namespace

int SchemaKwartierstaat(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  return MaakRapport(kSchema, omgeving, argumenten);
}

}  // namespace lb77
