// The history of a file set and its safety copies.
#include "qt/indeling/Indelingen.h"

namespace lb77::indeling {

std::vector<Indeling> Veiligheid() {
  return {
      {"Geschiedenis", Kolom({
                           Velden({"HandelingLijst", "InhoudLijst"}),
                           Knoppen({"OngedaanButton"}, {"BackButton"}),
                       })},
      {"KopiePlaats", Kolom({
                          Velden({Rij({"KopieMap", "BrowseKopieMap"}), "KopieUitleg"}),
                          Knoppen({"OKButton", "BackButton"}),
                      })},
      {"KopieTerugzetten", Kolom({
                               Velden({"KopieLijst", "TellingLabel"}),
                               Knoppen({"OKButton", "BackButton"}),
                           })},
  };
}

}  // namespace lb77::indeling
