// The cards of persons and relations, and the question where to begin.
#include <string>
#include <utility>

#include "qt/indeling/Indelingen.h"

namespace lb77::indeling {

namespace {

// Values with the room that a full field needs.
Blok Code(std::string naam) {
  return Veld(std::move(naam), {}, 2);
}
Blok Plaatsnaam(std::string naam) {
  return Veld(std::move(naam), {}, 22);
}
Blok Plaatsnr(std::string naam) {
  return Veld(std::move(naam), {}, 6);
}
Blok Gezindte(std::string naam) {
  return Veld(std::move(naam), {}, 22);
}
// First names are as long as an occupation.
Blok Voornamen(std::string naam) {
  return Veld(std::move(naam), {}, 27);
}
Blok Achternaam(std::string naam) {
  return Veld(std::move(naam), {}, 22);
}

// With Corr, Datum, Plaats, Nummer above the columns; each field has the button of its remarks behind it.
Blok Gebeurtenissen(std::vector<Blok> regels) {
  return Rooster(std::move(regels), {"", "Corr", "Datum", "Plaats", "Nummer"});
}

Blok Persoon() {
  return Kolom({
      Rooster({
          Rij({"RecordNr", "Geslacht"}),
          Rij({Rij({Voornamen("VoorNm"), "VoorNmOpm"}),
               Rij({Achternaam("AchterNm"), "AchterNmOpm"})}),
      }),
      Gebeurtenissen({
          Rij({"GebLabel", Code("GebCorr"), Rij({"GebDatum", "GebDatumOpm"}),
               Plaatsnaam("GebPltsNm"), Rij({Plaatsnr("GebPltsNr"), "GebPltsOpm"})}),
          Rij({"DoopLabel", "", Rij({"DoopDatum", "DoopDatumOpm"}), Plaatsnaam("DoopPltsNm"),
               Rij({Plaatsnr("DoopPltsNr"), "DoopPltsOpm"})}),
          Rij({"ReligieLabel", Code("ReligieCode"), Rij({Gezindte("ReligieTekst"), "ReligieOpm"}),
               Over(2, Rij({Voornamen("BeroepTekst"), "BeroepOpm"}))}),
          Rij({"OvlLabel", Code("OvlCorr"), Rij({"OvlDatum", "OvlDatumOpm"}),
               Plaatsnaam("OvlPltsNm"), Rij({Plaatsnr("OvlPltsNr"), "OvlPltsOpm"})}),
          Rij({"BegrLabel", "", Rij({"BegrDatum", "BegrDatumOpm"}), Plaatsnaam("BegrPltsNm"),
               Rij({Plaatsnr("BegrPltsNr"), "BegrPltsOpm"})}),
      }),
      Rooster({
          Rij({Over(2, Rij({"RecordNrPa", Voornamen("VoorNmPa"), Achternaam("AchterNmPa")})),
               "RelNrOuders"}),
          Rij({Over(2, Rij({"RecordNrMa", Voornamen("VoorNmMa"), Achternaam("AchterNmMa")}))}),
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
          Rij({Over(
              2, Rij({"ManLabel", "NaarMan", Voornamen("VoorNmMan"), Achternaam("AchterNmMan")}))}),
          Rij({Over(2, Rij({"VrouwLabel", "NaarVrouw", Voornamen("VoorNmVrouw"),
                            Achternaam("AchterNmVrouw")}))}),
      }),
      Gebeurtenissen({
          Rij({"OtrLabel", "", Rij({"OtrDatum", "OtrDatumOpm"}), Plaatsnaam("OtrPltsNm"),
               Rij({Plaatsnr("OtrPltsNr"), "OtrPltsOpm"})}),
          Rij({"WetHuwLabel", Code("HuwCorr"), Rij({"WetHuwDatum", "WetHuwDatumOpm"}),
               Plaatsnaam("WHuwPltsNm"), Rij({Plaatsnr("WHuwPltsNr"), "WHuwPltsOpm"})}),
          Rij({"HuwSoortLabel", Code("HuwSoortCode"),
               Rij({Gezindte("HuwSoortTekst"), "HuwSoortOpm"})}),
          Rij({"KHuwLabel", "", Rij({"KHuwDatum", "KHuwDatumOpm"}), Plaatsnaam("KHuwPltsNm"),
               Rij({Plaatsnr("KHuwPltsNr"), "KHuwPltsOpm"})}),
          Rij({"ReligieLabel", Code("ReligieCode"), Rij({Gezindte("ReligieTekst"), "ReligieOpm"})}),
      }),
      Rooster({Rij({Rij({"AlgRelOpmTekst", "AlgRelOpm"})})}),
      Knoppen({"VorigeRelatie", "VolgendeRelatie"}, {"NieuwButton", "WijzigButton", "BackButton"}),
  });
}

Blok Kinderen(const Blok& knoppen) {
  return Kolom({
      Rooster({
          Rij({"RecordNr"}),
          Rij({Rij({"NaarMan", Voornamen("VoorNmMan"), Achternaam("AchterNmMan")})}),
          Rij({Rij({"NaarVrouw", Voornamen("VoorNmVrouw"), Achternaam("AchterNmVrouw")})}),
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
       Kinderen(Knoppen({"ErbijButton", "ErafButton", "NieuwKindButton", "KindVolg"},
                        {"MeerButton", "BackButton"}))},
      {"MeerKinderen",
       Kinderen(Knoppen({"ErbijButton", "ErafButton", "NieuwKindButton"}, {"BackButton"}))},
  };
}

}  // namespace lb77::indeling
