// The pictures of the family.
#include "qt/indeling/Indelingen.h"

namespace lb77::indeling {

namespace {

Blok Beeld() {
  return Kolom({
      Velden({Rij({"GeneratiesBox", "VormBox", "KleurBox"}), Rij({"NummerBox", "OokJaarBox"})}),
      "Beeld",
      Velden({Rij({"PapierBox", "StandBox", "VerdeelBox"}), "VellenLabel"}),
      Knoppen({"KaartButton"}, {"OKButton", "BackButton"}),
  });
}

}  // namespace

std::vector<Indeling> Beelden() {
  return {
      {"WaaierPrs", PersoonPrompt()},
      {"WaaierBeeld", Beeld()},
      {"KwartierPrs", PersoonPrompt()},
      {"KwartierBeeld", Beeld()},
      {"StamPrs", PersoonPrompt()},
      {"StamBeeld", Beeld()},
      {"TijdPrs", PersoonPrompt()},
      {"TijdBereken",
       Kolom({
           "OpbouwLabel",
           Velden({Rij({"PersNrLabel", "PersoonsNr"}), Rij({"NazatenLabel", "Nazaten"})}),
           Velden({"GeduldLabel", "MaximumLabel"}),
           Knoppen({"OKButton", "BackButton"}),
       })},
      {"TijdBeeld", Beeld()},
  };
}

}  // namespace lb77::indeling
