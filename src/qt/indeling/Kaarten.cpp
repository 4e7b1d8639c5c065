// The cards of persons and relations, and the question where to begin.
#include "qt/indeling/Indelingen.h"

namespace lb77::indeling {

namespace {

Blok Persoon() {
  return Kolom({
      Rooster({
          Rij({"RecordNr", "Geslacht"}),
          Rij({Rij({"VoorNm", "VoorNmOpm"}), Rij({"AchterNm", "AchterNmOpm"})}),
          Rij({Rij({"GebLabel", "GebCorr", "GebDatum", "GebDatumOpm"}),
               Rij({"GebPltsNm", "GebPltsNr", "GebPltsOpm"})}),
          Rij({Rij({"DoopLabel", "DoopDatum", "DoopDatumOpm"}),
               Rij({"DoopPltsNm", "DoopPltsNr", "DoopPltsOpm"})}),
          Rij({Rij({"OvlLabel", "OvlCorr", "OvlDatum", "OvlDatumOpm"}),
               Rij({"OvlPltsNm", "OvlPltsNr", "OvlPltsOpm"})}),
          Rij({Rij({"BegrLabel", "BegrDatum", "BegrDatumOpm"}),
               Rij({"BegrPltsNm", "BegrPltsNr", "BegrPltsOpm"})}),
          Rij({Rij({"BeroepTekst", "BeroepOpm"}),
               Rij({"ReligieLabel", "ReligieCode", "ReligieTekst", "ReligieOpm"})}),
      }),
      Groep("Ouders", {Rooster({
                          Rij({Rij({"RecordNrPa", "VoorNmPa", "AchterNmPa"}), "RelNrOuders"}),
                          Rij({Rij({"RecordNrMa", "VoorNmMa", "AchterNmMa"})}),
                      })}),
      Groep("Relaties", {Tabel({
                            Veld("LabelP(*)"),
                            Veld("RelNrP(*)", "Relatie", 6),
                            Veld("RecordNrP(*)", "Partner", 6),
                            Veld("VoorNmP(*)", "Voornamen", 25),
                            Veld("AchterNmP(*)", "Achternaam", 22),
                        })}),
      Groep("Algemene opmerking", {Rij({"AlgPersOpmTekst", "AlgPersOpm"})}),
      Knoppen({"VorigPersoon", "VolgendPersoon", "OpmButton", "HuwVolg"},
              {"NieuwButton", "WijzigButton", "BackButton"}),
  });
}

Blok Relatie() {
  return Kolom({
      Rooster({
          Rij({"RecordNr", Rij({"Kindertal", "NaarKind"})}),
          Rij({Over(2, Rij({"ManLabel", "NaarMan", "VoorNmMan", "AchterNmMan"}))}),
          Rij({Over(2, Rij({"VrouwLabel", "NaarVrouw", "VoorNmVrouw", "AchterNmVrouw"}))}),
          Rij({Rij({"OtrLabel", "OtrDatum", "OtrDatumOpm"}),
               Rij({"OtrPltsNm", "OtrPltsNr", "OtrPltsOpm"})}),
          Rij({Rij({"WetHuwLabel", "HuwCorr", "WetHuwDatum", "WetHuwDatumOpm"}),
               Rij({"WHuwPltsNm", "WHuwPltsNr", "WHuwPltsOpm"})}),
          Rij({Rij({"HuwSoortLabel", "HuwSoortCode", "HuwSoortTekst", "HuwSoortOpm"})}),
          Rij({Rij({"KHuwLabel", "KHuwDatum", "KHuwDatumOpm"}),
               Rij({"KHuwPltsNm", "KHuwPltsNr", "KHuwPltsOpm"})}),
          Rij({Rij({"ReligieLabel", "ReligieCode", "ReligieTekst", "ReligieOpm"})}),
      }),
      Groep("Algemene opmerking", {Rij({"AlgRelOpmTekst", "AlgRelOpm"})}),
      Knoppen({"VorigeRelatie", "VolgendeRelatie"}, {"NieuwButton", "WijzigButton", "BackButton"}),
  });
}

Blok Kinderen(const Blok& knoppen) {
  return Kolom({
      Rooster({
          Rij({"RecordNr"}),
          Rij({Rij({"NaarMan", "VoorNmMan", "AchterNmMan"})}),
          Rij({Rij({"NaarVrouw", "VoorNmVrouw", "AchterNmVrouw"})}),
      }),
      Groep("Kinderen", {Tabel({
                            Veld("KindLabel(*)"),
                            Veld("NaarKind(*)", "Nummer", 6),
                            Veld("VoorNmKind(*)", "Voornamen", 25),
                            Veld("AchterNmKind(*)", "Achternaam", 22),
                            Veld("KindPeriode(*)", "Periode", 12),
                        })}),
      knoppen,
  });
}

}  // namespace

std::vector<Indeling> Kaarten() {
  return {
      {"StartRecord",
       Kolom({
           "VraagLabel",
           Velden({Rij({"PersNr", "PersRange"}), Rij({"RelNr", "RelRange"})}),
           Knoppen({"ZoekButton", "NwPersButton", "NwRelButton"}, {"OKButton", "BackButton"}),
       })},
      {"ToonPersoon", Persoon()},
      {"ToonRelatie", Relatie()},
      {"ToonKinderen",
       Kinderen(Knoppen({"ErbijButton", "ErafButton", "KindVolg"}, {"MeerButton", "BackButton"}))},
      {"MeerKinderen", Kinderen(Knoppen({"ErbijButton", "ErafButton"}, {"BackButton"}))},
  };
}

}  // namespace lb77::indeling
