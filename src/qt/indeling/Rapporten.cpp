// The reports on a whole file or on two persons.
#include "qt/indeling/Indelingen.h"

namespace lb77::indeling {

std::vector<Indeling> Rapporten() {
  return {
      {"PrsKrtn", Kolom({
                      "VraagLabel",
                      Rooster({
                          Rij({"RecordNrPers(0)", "ZoekPersButton(0)", Veld("Naam(0)", "", 40),
                               Veld("Periode(0)", "", 10)}),
                          Rij({"RecordNrPers(1)", "ZoekPersButton(1)", Veld("Naam(1)", "", 40),
                               Veld("Periode(1)", "", 10)}),
                      }),
                      Knoppen({"OKButton", "BackButton"}),
                  })},
      {"RelKrtn", Kolom({
                      "VraagLabel",
                      Rooster({
                          Rij({"RecordNrRel(0)", Veld("Man(0)", "", 30), Veld("Vrouw(0)", "", 30)}),
                          Rij({"RecordNrRel(1)", Veld("Man(1)", "", 30), Veld("Vrouw(1)", "", 30)}),
                      }),
                      Knoppen({"OKButton", "BackButton"}),
                  })},
      {"SchemaVerwantschap", Kolom({
                                 "VraagLabel",
                                 Velden({
                                     Rij({"PersNr(0)", "ZoekButton(0)"}),
                                     Rij({"VoorNm(0)", "AchterNm(0)"}),
                                     Rij({"PersNr(1)", "ZoekButton(1)"}),
                                     Rij({"VoorNm(1)", "AchterNm(1)"}),
                                     "PersonenGedaan",
                                 }),
                                 Knoppen({"OKButton", "BackButton"}),
                             })},
      {"VerwantRapport", TekstVenster()},
  };
}

}  // namespace lb77::indeling
