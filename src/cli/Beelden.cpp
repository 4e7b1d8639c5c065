// `waaier`, `kwartierboom`, `stamboom` and `tijdbalk`: the pictures of the family.
#include "cli/Opdrachten.h"
#include "cli/Rapport.h"

namespace lb77 {

namespace {

// A picture of ancestors by its menu entry, its prompt and its window, with the options of the chart.
constexpr Rapport Voorouders(std::string_view keuze, std::string_view prompt,
                             std::string_view beeld) {
  return {keuze,
          {{{prompt, {{{"RecordNr", Vulling::Persoon, 1}}}},
            {"KwstSchParam", {}, true},
            {beeld, {}, true}}}};
}

constexpr Rapport kWaaier = Voorouders("BeeldWaaier", "WaaierPrs", "WaaierBeeld");
constexpr Rapport kKwartierboom = Voorouders("BeeldKwartier", "KwartierPrs", "KwartierBeeld");
constexpr Rapport kTijdbalk{
    "BeeldTijd", {{{"TijdPrs", {{{"RecordNr", Vulling::Persoon, 1}}}}, {"TijdBeeld", {}, true}}}};
// Nobody is left out, whatever the settings say.
constexpr Rapport kStamboom{"BeeldStam",
                            {{{"StamPrs", {{{"RecordNr", Vulling::Persoon, 1}}}},
                              {"GenSchParam",
                               {{{"ZonenBox", Vulling::Waarde, 0, "Alle Zonen"},
                                 {"DochtersBox", Vulling::Waarde, 0, "Alle Dochters"}}},
                               true},
                              {"GenSchUitsluit"},
                              {"StamBeeld", {}, true}}}};

}  // namespace

int Waaier(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  return MaakRapport(kWaaier, omgeving, argumenten);
}

int Kwartierboom(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  return MaakRapport(kKwartierboom, omgeving, argumenten);
}

int Stamboom(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  return MaakRapport(kStamboom, omgeving, argumenten);
}

int TijdbalkBeeld(const Omgeving& omgeving, const OpdrachtArgumenten& argumenten) {
  return MaakRapport(kTijdbalk, omgeving, argumenten);
}

}  // namespace lb77
