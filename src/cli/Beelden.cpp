// `waaier`, `kwartierboom`, `stamboom` and `tijdbalk`: the pictures of the family.
#include "cli/Opdrachten.h"
#include "cli/Rapport.h"

namespace lb77 {

namespace {

// A picture by its menu entry, its prompt and its window.
constexpr Rapport Beeld(std::string_view keuze, std::string_view prompt, std::string_view beeld) {
  return {keuze, {{{prompt, {{{"RecordNr", Vulling::Persoon, 1}}}}, {beeld, {}, true}}}};
}

constexpr Rapport kWaaier = Beeld("BeeldWaaier", "WaaierPrs", "WaaierBeeld");
constexpr Rapport kKwartierboom = Beeld("BeeldKwartier", "KwartierPrs", "KwartierBeeld");
constexpr Rapport kTijdbalk = Beeld("BeeldTijd", "TijdPrs", "TijdBeeld");
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
