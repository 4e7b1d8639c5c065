// `kwartierstaat`, `index-kwartierstaat` and `schema-kwartierstaat`: the ancestor reports.
#include "cli/Opdrachten.h"
#include "cli/Rapport.h"

namespace lb77 {

namespace {

// A report by its menu entry, its prompt, its options and its links.
constexpr Rapport Keten(std::string_view keuze, std::string_view prompt, std::string_view opties,
                        std::string_view links) {
  return {keuze,
          {{{prompt, {{{"RecordNr", Vulling::Persoon, 1}}}},
            {opties, {{{"InHTMLBox", Vulling::Html}}}, true},
            {links, {{{"", Vulling::Links}}}}}}};
}

constexpr Rapport kTekst = Keten("TekstKwst", "KwstTxtPrs", "KwstTxtParam", "KwHTMLParam");
constexpr Rapport kIndex = Keten("IndexKwst", "KwstIdxPrs", "KwstIdxParam", "KwidxHTMLParam");
constexpr Rapport kSchema = Keten("SchemaKwst", "KwstSchPrs", "KwstSchParam", "KwHTMLParam");

}  // namespace

int Kwartierstaat(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  return MaakRapport(kTekst, omgeving, argumenten);
}

int IndexKwartierstaat(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  return MaakRapport(kIndex, omgeving, argumenten);
}

int SchemaKwartierstaat(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  return MaakRapport(kSchema, omgeving, argumenten);
}

}  // namespace lb77
