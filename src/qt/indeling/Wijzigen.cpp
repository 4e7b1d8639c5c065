// The dialogs that edit a person and a relation.
#include "qt/indeling/Indelingen.h"

namespace lb77::indeling {

namespace {

Blok Persoon() {
  return Kolom({
      Rooster({
          Rij({"RecordNr", "Geslacht"}),
          Rij({"VoorNm", "AchterNm"}),
      }),
      Rooster(
          {
              Rij({"GebLabel", "GebCorr", "GebDatum", "GebPltsNm", "GebPltsNr"}),
              Rij({"DoopLabel", "", "DoopDatum", "DoopPltsNm", "DoopPltsNr"}),
              Rij({"ReligieLabel", "", "ReligieCode", Over(2, "ReligieTekst")}),
              Rij({"OvlLabel", "OvlCorr", "OvlDatum", "OvlPltsNm", "OvlPltsNr"}),
              Rij({"BegrLabel", "", "BegrDatum", "BegrPltsNm", "BegrPltsNr"}),
          },
          {"", "Corr", "Datum", "Plaats", "Nummer"}),
      Velden({
          "BeroepTekst",
          "RelNrOuders",
          Rij({"RecordNrPa", "VoorNmPa", "AchterNmPa"}),
          Rij({"RecordNrMa", "VoorNmMa", "AchterNmMa"}),
      }),
      Groep("Relaties", {Tabel({
                            Veld("LabelP(*)"),
                            Veld("RelNrP(*)", "Relatie", 7),
                            Veld("RecordNrP(*)", "Persoon", 7),
                            Veld("VoorNmP(*)", "Voornamen", 25),
                            Veld("AchterNmP(*)", "Achternaam", 22),
                        })}),
      Velden({"AlgPersOpmTekst"}),
      Knoppen({"Opslaan", "BackButton"}),
  });
}

Blok Relatie() {
  return Kolom({
      Velden({"RecordNr"}),
      Rooster(
          {
              Rij({"ManLabel", "RecordNrMan", "VoorNmMan", "AchterNmMan"}),
              Rij({"VrouwLabel", "RecordNrVrouw", "VoorNmVrouw", "AchterNmVrouw"}),
          },
          {"", "Nummer", "Voornamen", "Achternaam"}),
      Rooster(
          {
              Rij({"OtrLabel", "", "OtrDatum", "OtrPltsNm", "OtrPltsNr"}),
              Rij({"WetHuwLabel", "HuwCorr", "WetHuwDatum", "WHuwPltsNm", "WHuwPltsNr"}),
              Rij({"KHuwLabel", "", "KHuwDatum", "KHuwPltsNm", "KHuwPltsNr"}),
          },
          {"", "Corr", "Datum", "Plaats", "Nummer"}),
      Velden({
          Rij({"HuwSoortCode", "HuwSoortTekst"}),
          Rij({"ReligieCode", "ReligieTekst"}),
          "Kindertal",
      }),
      Groep("Opmerkingen", {Tabel({Veld("OpmLabel(*)"), Veld("OpmTekst(*)", "", 60)})}),
      Knoppen({"Opslaan", "BackButton"}),
  });
}

}  // namespace

std::vector<Indeling> Wijzigen() {
  return {
      {"WijzigPersoon", Persoon()},
      {"WijzigRelatie", Relatie()},
  };
}

}  // namespace lb77::indeling
