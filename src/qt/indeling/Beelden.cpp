// The pictures of the family.
#include <utility>

#include "qt/indeling/Indelingen.h"

namespace lb77::indeling {

namespace {

// The choices of a kind of picture, above it.
Blok Beeld(std::vector<Blok> keuzen) {
  return Kolom({
      Velden(std::move(keuzen)),
      "Beeld",
      Velden({Rij({"PapierBox", "StandBox", "VerdeelBox"}), "VellenLabel"}),
      Knoppen({"KaartButton"}, {"OKButton", "BackButton"}),
  });
}

}  // namespace

std::vector<Indeling> Beelden() {
  const Blok nummers = Rij({"NummerBox", "OokJaarBox"});
  const std::vector<Blok> bomen{Rij({"GeneratiesBox", "VormBox", "KleurBox"}), nummers};
  // Bars have a colour only: the rest of the choices is not in sight.
  const std::vector<Blok> staven{Rij({"KleurBox", "GeneratiesBox", "VormBox"}), nummers};
  return {
      {"WaaierPrs", PersoonPrompt()},
      {"WaaierBeeld", Beeld(bomen)},
      {"KwartierPrs", PersoonPrompt()},
      {"KwartierBeeld", Beeld(bomen)},
      {"StamPrs", PersoonPrompt()},
      {"StamBeeld", Beeld(bomen)},
      {"TijdPrs", PersoonPrompt()},
      {"TijdBereken",
       Kolom({
           "OpbouwLabel",
           Velden({Rij({"PersNrLabel", "PersoonsNr"}), Rij({"NazatenLabel", "Nazaten"})}),
           Velden({"GeduldLabel", "MaximumLabel"}),
           Knoppen({"OKButton", "BackButton"}),
       })},
      {"TijdBeeld", Beeld(staven)},
  };
}

}  // namespace lb77::indeling
