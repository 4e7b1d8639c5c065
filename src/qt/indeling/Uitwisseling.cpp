// Import and export.
#include <string>
#include <utility>

#include "qt/indeling/Indelingen.h"

namespace lb77::indeling {

namespace {

Blok Export(std::vector<Blok> namen, const char* start, std::vector<Blok> keuzes = {}) {
  return Kolom({
      Velden(std::move(namen)),
      Groep("Selectie", {Rij({"KiesAllesButton", "KiesPersButton", "KiesRelButton"}),
                         Rij({"KiesGenButton", "KiesKwstButton", "KiesBronButton"}),
                         Velden({Rij({"AantalPersonen", "AantalRelaties", "AantalBronnen"})}),
                         "ToonLijstButton"}),
      Kolom(std::move(keuzes)),
      Groep("Voortgang", {Velden({Rij({"PersonenGedaan", "RelatiesGedaan", "BronnenGedaan"})})}),
      Knoppen({start, "BackButton"}),
  });
}

// The man of a relation above the woman.
Blok SelecteerRelaties() {
  const auto partner = [](const std::string& wie, const std::string& rij, Blok voor) {
    return Rij({std::move(voor), Veld("RecordNr" + wie + rij, "", 6),
                Veld("VoorNm" + wie + rij, "", 24), Veld("AchterNm" + wie + rij, "", 20)});
  };
  return Kolom({
      "VraagLabel",
      Rooster({
          partner("Man", "(0)", "RecordNrRel(0)"),
          partner("Vrouw", "(0)", ""),
          partner("Man", "(1)", "RecordNrRel(1)"),
          partner("Vrouw", "(1)", ""),
      }),
      Knoppen({"OKButton", "BackButton"}),
  });
}

Blok Dump(const char* teller) {
  return Kolom({
      Velden({Rij({"Bestandsnaam", "BrowseButton"}), teller}),
      Knoppen({"OKButton", "BackButton"}),
  });
}

}  // namespace

std::vector<Indeling> Uitwisseling() {
  return {
      {"ExpGedcom", Export({Rij({"Bestandsnaam", "BrowseButton"})}, "OKButton", {"Utf8Box"})},
      {"ExpAscii", Export({Rij({"Bestandsnaam(0)", "BrowseButton(0)"}),
                           Rij({"Bestandsnaam(1)", "BrowseButton(1)"}),
                           Rij({"Bestandsnaam(2)", "BrowseButton(2)"})},
                          "StartExportButton")},
      {"ExpSelPers", Kolom({
                         "VraagLabel",
                         Tabel({
                             Veld("RecordNrPers(*)"),
                             Veld("VoorNmPersoon(*)", "Voornamen", 24),
                             Veld("AchterNmPersoon(*)", "Achternaam", 20),
                             Veld("PeriodePersoon(*)", "Periode", 10),
                             Veld("ZoekPersButton(*)"),
                         }),
                         Knoppen({"OKButton", "BackButton"}),
                     })},
      {"ExpSelRel", SelecteerRelaties()},
      {"ExpMaakLyst",
       Kolom({
           "SchrijfLabel",
           Rooster({
               Rij({Rij({"PersonenLabel", "Personen"}), Rij({"PersNrLabel", "PersoonsNr"})}),
               Rij({Rij({"RelatiesLabel", "Relaties"}), Rij({"RelNrLabel", "RelatieNr"})}),
           }),
           "GeduldLabel",
           Knoppen({"OKButton", "BackButton"}),
       })},
      {"ExpDumpPers", Dump("PersonenGedaan")},
      {"ExpDumpRel", Dump("RelatiesGedaan")},
      {"ExpDumpPlts", Dump("PlaatsenGedaan")},
      {"ExpDumpOpm", Dump("OpmerkingenGedaan")},
      {"ImpGedcom", Kolom({
                        Velden({Rij({"Bestandsnaam", "BrowseButton"})}),
                        "DoelLabel",
                        "TellingLabel",
                        Groep("Voortgang", {Velden({
                                               Rij({"Pass1box", "Pass1Label"}),
                                               Rij({"Pass2box", "Pass2Label"}),
                                               Rij({"Pass3box", "Pass3Label"}),
                                           })}),
                        Groep("Gelezen", {Velden({
                                             Rij({"RegelNr", "AantalBronnen"}),
                                             Rij({"AantalPersonen", "AantalRelaties"}),
                                             Rij({"VoorNm", "AchterNm"}),
                                             "BronNm",
                                         })}),
                        Knoppen({"OKButton", "BackButton"}),
                    })},
  };
}

}  // namespace lb77::indeling
