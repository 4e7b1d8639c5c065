// The remarks on the fields of a person or relation.
#include <utility>

#include "forms/Rijnaam.h"
#include "qt/indeling/Indelingen.h"

namespace lb77::indeling {

namespace {

Blok Kop() {
  return Velden({"RecordNr", Rij({"Naam", "NaamPartner"}), Rij({"VeldLabel", "VeldWaarde"})});
}

// A button for each rubric of a person, and what it leads to.
Blok Rubrieken() {
  constexpr int kRubrieken = 13;
  std::vector<Blok> regels;
  for (int nummer = 1; nummer <= kRubrieken; ++nummer) {
    regels.push_back(
        Rij({Veld(Genummerd("Rubriek", nummer)), Veld(Genummerd("EersteRegel", nummer))}));
  }
  return Rooster(std::move(regels));
}

Blok Uitvoer() {
  return Groep("Gebruiken bij", {Rij({"BijKWST", "BijSTRK", "BijGEN", "BijGEZIN", "BijHTML"})});
}

}  // namespace

std::vector<Indeling> Opmerkingen() {
  return {
      {"ToonPersOpm", Kolom({
                          Velden({"RecordNr", "Naam"}),
                          Rubrieken(),
                          Knoppen({"BackButton"}),
                      })},
      {"ToonOpm", Kolom({
                      Kop(),
                      "OpmTekst",
                      Uitvoer(),
                      Knoppen({"MeerOpm", "MaakMeer"}, {"WijzigButton", "BackButton"}),
                  })},
      {"WijzigOpm", Kolom({
                        Kop(),
                        "OpmTekst",
                        Uitvoer(),
                        Knoppen({"Opslaan", "BackButton"}),
                    })},
  };
}

}  // namespace lb77::indeling
