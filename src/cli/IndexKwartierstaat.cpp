// `index-kwartierstaat`: the index of the ancestor report.
#include "cli/Opdrachten.h"
#include "cli/Rapport.h"

namespace lb77 {

namespace {

constexpr Rapport kIndex{"IndexKwst",
                         {{{"KwstIdxPrs", {{{"RecordNr", Vulling::Persoon, 1}}}},
                           {"KwstIdxParam", {{{"InHTMLBox", Vulling::Html}}}, true},
                           {"KwidxHTMLParam", {{{"", Vulling::Links}}}}}}};

}  // namespace

int IndexKwartierstaat(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  return MaakRapport(kIndex, omgeving, argumenten);
}

}  // namespace lb77
