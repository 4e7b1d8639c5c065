// The descendant reports: `genealogie` of the sons' lines, `parenteel` and its index and chart of all
// lines.
#include "cli/Opdrachten.h"
#include "cli/Rapport.h"

namespace lb77 {

namespace {

// The forms of one of them.
struct Keten {
  std::string_view menuKeuze;
  std::string_view prompt;
  std::string_view opties;
  std::string_view uitsluit;  // nobody is left out, whatever the settings say
};

constexpr Rapport Nakomelingen(const Keten& keten, std::string_view dochters) {
  return {keten.menuKeuze,
          {{{keten.prompt, {{{"RecordNr", Vulling::Persoon, 1}}}},
            {keten.opties,
             {{{"ZonenBox", Vulling::Waarde, 0, "Alle Zonen"},
               {"DochtersBox", Vulling::Waarde, 0, dochters},
               {"InHTMLBox", Vulling::Html}}},
             true},
            {keten.uitsluit},
            {"GenHTMLParam", {{{"", Vulling::Links}}}}}}};
}

constexpr Keten kTekst{"TekstGen", "GenTxtPrs", "GenTxtParam", "GenTxtUitsluit"};
constexpr Keten kIndex{"IndexGen", "GenIdxPrs", "GenIdxParam", "GenIdxUitsluit"};
constexpr Keten kSchema{"SchemaGen", "GenSchPrs", "GenSchParam", "GenSchUitsluit"};
constexpr std::string_view kAlleDochters = "Alle Dochters";

constexpr Rapport kGenealogie = Nakomelingen(kTekst, "Geen Dochters");
constexpr Rapport kParenteel = Nakomelingen(kTekst, kAlleDochters);
constexpr Rapport kIndexParenteel = Nakomelingen(kIndex, kAlleDochters);
constexpr Rapport kSchemaParenteel = Nakomelingen(kSchema, kAlleDochters);

}  // namespace

int Genealogie(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  return MaakRapport(kGenealogie, omgeving, argumenten);
}

int Parenteel(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  return MaakRapport(kParenteel, omgeving, argumenten);
}

int IndexParenteel(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  return MaakRapport(kIndexParenteel, omgeving, argumenten);
}

int SchemaParenteel(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  return MaakRapport(kSchemaParenteel, omgeving, argumenten);
}

}  // namespace lb77
