// The remarks on the fields of a person or relation.
#include "qt/indeling/Indelingen.h"

namespace lb77::indeling {

namespace {

Blok Kop() {
  return Velden({"RecordNr", Rij({"Naam", "NaamPartner"}), Rij({"VeldLabel", "VeldWaarde"})});
}

Blok Uitvoer() {
  return Groep("Gebruiken bij", {Rij({"BijKWST", "BijSTRK", "BijGEN", "BijGEZIN", "BijHTML"})});
}

}  // namespace

std::vector<Indeling> Opmerkingen() {
  return {
      {"ToonPersOpm", Kolom({
                          Velden({"RecordNr", "Naam"}),
                          Tabel({
                              Veld("Rubriek(*)", "Rubriek"),
                              Veld("EersteRegel(*)", "Eerste regel", 66),
                          }),
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
