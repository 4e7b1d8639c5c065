// The reports on a whole file or on two persons.
#include "qt/indeling/Indelingen.h"

namespace lb77::indeling {

std::vector<Indeling> Rapporten() {
  return {
      {"PrsKrtn", Kolom({
                      "VraagLabel",
                      Rooster({
                          Rij({"RecordNrPers(0)", "ZoekPersButton(0)", "Naam(0)", "Periode(0)"}),
                          Rij({"RecordNrPers(1)", "ZoekPersButton(1)", "Naam(1)", "Periode(1)"}),
                      }),
                      Knoppen({"OKButton", "BackButton"}),
                  })},
      {"RelKrtn", Kolom({
                      "VraagLabel",
                      Rooster({
                          Rij({"RecordNrRel(0)", "Man(0)", "Vrouw(0)"}),
                          Rij({"RecordNrRel(1)", "Man(1)", "Vrouw(1)"}),
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
