// Import and export.
#include "qt/indeling/Indelingen.h"

namespace lb77::indeling {

std::vector<Indeling> Uitwisseling() {
  return {
      {"ImpGedcom", Kolom({
                        Velden({Rij({"Bestandsnaam", "BrowseButton"})}),
                        "DoelLabel",
                        "TellingLabel",
                        Groep("Voortgang", {Velden({
                                               Rij({"Pass1Label", "Pass1box"}),
                                               Rij({"Pass2Label", "Pass2box"}),
                                               Rij({"Pass3Label", "Pass3box"}),
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
