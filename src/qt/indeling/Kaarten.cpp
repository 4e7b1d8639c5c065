// The cards of persons and relations, and the question where to begin.
#include <utility>

#include "qt/indeling/Indelingen.h"

namespace lb77::indeling {

namespace {

// With Corr, Datum, Plaats, Nummer above the columns; each field has the button of its remarks behind it.
Blok Gebeurtenissen(std::vector<Blok> regels) {
  return Rooster(std::move(regels), {"", "Corr", "Datum", "Plaats", "Nummer"});
}

Blok Persoon() {
  return Kolom({
      Rooster({
          Rij({"RecordNr", "Geslacht"}),
          Rij({Rij({"VoorNm", "VoorNmOpm"}), Rij({"AchterNm", "AchterNmOpm"})}),
      }),
      Gebeurtenissen({
          Rij({"GebLabel", "GebCorr", Rij({"GebDatum", "GebDatumOpm"}), "GebPltsNm",
               Rij({"GebPltsNr", "GebPltsOpm"})}),
          Rij({"DoopLabel", "", Rij({"DoopDatum", "DoopDatumOpm"}), "DoopPltsNm",
               Rij({"DoopPltsNr", "DoopPltsOpm"})}),
          Rij({"ReligieLabel", "ReligieCode", Rij({"ReligieTekst", "ReligieOpm"}),
               Over(2, Rij({"BeroepTekst", "BeroepOpm"}))}),
          Rij({"OvlLabel", "OvlCorr", Rij({"OvlDatum", "OvlDatumOpm"}), "OvlPltsNm",
               Rij({"OvlPltsNr", "OvlPltsOpm"})}),
          Rij({"BegrLabel", "", Rij({"BegrDatum", "BegrDatumOpm"}), "BegrPltsNm",
               Rij({"BegrPltsNr", "BegrPltsOpm"})}),
      }),
      Rooster({
          Rij({Over(2, Rij({"RecordNrPa", "VoorNmPa", "AchterNmPa"})), "RelNrOuders"}),
          Rij({Over(2, Rij({"RecordNrMa", "VoorNmMa", "AchterNmMa"}))}),
      }),
      Tabel({
          Veld("LabelP(*)"),
          Veld("RelNrP(*)", "Relatie", 6),
          Veld("RecordNrP(*)", "Partner", 6),
          Veld("VoorNmP(*)", "Voornamen", 25),
          Veld("AchterNmP(*)", "Achternaam", 22),
      }),
      Rooster({Rij({Rij({"AlgPersOpmTekst", "AlgPersOpm"})})}),
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
      }),
      Gebeurtenissen({
          Rij({"OtrLabel", "", Rij({"OtrDatum", "OtrDatumOpm"}), "OtrPltsNm",
               Rij({"OtrPltsNr", "OtrPltsOpm"})}),
          Rij({"WetHuwLabel", "HuwCorr", Rij({"WetHuwDatum", "WetHuwDatumOpm"}), "WHuwPltsNm",
               Rij({"WHuwPltsNr", "WHuwPltsOpm"})}),
          Rij({"HuwSoortLabel", "HuwSoortCode", Rij({"HuwSoortTekst", "HuwSoortOpm"})}),
          Rij({"KHuwLabel", "", Rij({"KHuwDatum", "KHuwDatumOpm"}), "KHuwPltsNm",
               Rij({"KHuwPltsNr", "KHuwPltsOpm"})}),
          Rij({"ReligieLabel", "ReligieCode", Rij({"ReligieTekst", "ReligieOpm"})}),
      }),
      Rooster({Rij({Rij({"AlgRelOpmTekst", "AlgRelOpm"})})}),
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
