// The search for persons and the small questions of data entry.
#include "qt/indeling/Indelingen.h"

namespace lb77::indeling {

namespace {

Blok PersonenLijst() {
  return Tabel({
      Veld("RecordNrPrs(*)", "Nummer"),
      Veld("VoorNmPrs(*)", "Voornamen", 25),
      Veld("AchterNmPrs(*)", "Achternaam", 22),
      Veld("Periode(*)", "Periode", 12),
      Veld("InfoPersoon(*)"),
      Veld("NaarPa(*)", "Vader"),
      Veld("NaarMa(*)", "Moeder"),
  });
}

}  // namespace

std::vector<Indeling> Zoeken() {
  return {
      {"ZoekPrs", Kolom({
                      Rij({"Zoeknaam", "Treffers"}),
                      PersonenLijst(),
                      Knoppen({"Vorige", "Volgende", "NaarNr", "FilterButton"}, {"BackButton"}),
                  })},
      {"VraagFilter", Kolom({
                          "VraagLabel",
                          Velden({"VoorNm", "AchterNm"}),
                          Velden({"TipJoker", "TipLetters"}),
                          Knoppen({"OKButton", "BackButton"}),
                      })},
      {"OKPersoon", Kolom({
                        "VraagLabel",
                        Velden({"PNr", "Naam", "InfoTekst"}),
                        Knoppen({"JaButton", "NeeButton"}),
                    })},
      {"PersInfoForm", Kolom({
                           Velden({"PNr", "InfoTekst"}),
                           Knoppen({"OKButton"}),
                       })},
      {"VraagProv", Kolom({
                        "VraagLabel",
                        Velden({"PltsLabel", "ProvCode"}),
                        Knoppen({"OKButton"}),
                    })},
      {"VraagRecordNr", Kolom({
                            Velden({"RecordNr"}),
                            Knoppen({"OKButton", "BackButton"}),
                        })},
  };
}

}  // namespace lb77::indeling
