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
          Rij({"Pass1box", "Pass1Label"}),
          Rij({"Pass2box", "Pass2Label"}),
          Rij({"Pass3box", "Pass3Label"}),
          Rij({"Pass4box", "Pass4Label"}),
          Rij({"Pass5box", "Pass5Label"}),
          Rij({"Pass6box", "Pass6Label"}),
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
