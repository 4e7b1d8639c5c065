// `kwartierstaat`: the ancestor report.
#include "cli/Opdrachten.h"
#include "cli/Rapport.h"

namespace lb77 {

namespace {

constexpr Rapport kKwartierstaat{"TekstKwst",
                                 {{{"KwstTxtPrs", {{{"RecordNr", Vulling::Persoon, 1}}}},
                                   {"KwstTxtParam", {{{"InHTMLBox", Vulling::Html}}}, true},
                                   {"KwHTMLParam", {{{"", Vulling::Links}}}}}}};

}  // namespace

int Kwartierstaat(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  return MaakRapport(kKwartierstaat, omgeving, argumenten);
}

}  // namespace lb77
