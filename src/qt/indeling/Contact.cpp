// The export to the contact service.
#include "qt/indeling/Indelingen.h"

namespace lb77::indeling {

namespace {

Blok Keuzen() {
  return Kolom({
      Velden({"MinAantalPersonen", "MinAantalJaren", "MaxGatJaren", "MaxJaartal"}),
      "OokCorrectiesBox",
      "OokMoedersWoonplaatsBox",
      Velden({"GeslachtBox", "PublicatieBox", "EmailAdres"}),
      Knoppen({"StartExportButton", "BackButton"}),
  });
}

Blok Voortgang() {
  return Kolom({
      Velden({
          Rij({"Pass1Label", "Pass1box"}),
          Rij({"Pass2Label", "Pass2box"}),
          Rij({"Pass3Label", "Pass3box"}),
          Rij({"Pass4Label", "Pass4box"}),
          Rij({"Pass5Label", "Pass5box"}),
          Rij({"Pass6Label", "Pass6box"}),
      }),
      Groep("Gedaan", {Velden({
                          Rij({"PlaatsenGedaan", "PersonenGedaan"}),
                          Rij({"ProvinciesGedaan", "ReeksenGedaan"}),
                          Rij({"LandenGedaan", "NamenGedaan"}),
                      })}),
      Knoppen({"BackButton"}),
  });
}

Blok Plaatskeus() {
  return Kolom({
      Groep("Eigen plaats", {Velden({Rij({"LB77Pltscode", "LB77PltsNm", "LB77ProvCode"})})}),
      Groep("Filter", {Velden({
                          Rij({"FilterPlaatsnaam", "FilterButton"}),
                          Rij({"FilterProv", "FilterProvAfk"}),
                          Rij({"FilterLand", "FilterLandAfk"}),
                      })}),
      "GeenPlaatsGevondenLabel",
      Tabel({
          Veld("GCICodeKnop(*)", "Kies", 6),
          Veld("GCIPltsNm(*)", "Plaatsnaam", 26),
          Veld("GCIProvNm(*)", "Provincie", 21),
          Veld("GCILandNm(*)", "Land", 18),
      }),
      Knoppen({"VorigeButton", "VolgendeButton"}, {"BackButton"}),
  });
}

}  // namespace

std::vector<Indeling> Contact() {
  return {
      {"ExpGCIParam", Keuzen()},
      {"ExpGCI", Voortgang()},
      {"ExpGCICorr", Plaatskeus()},
  };
}

}  // namespace lb77::indeling
