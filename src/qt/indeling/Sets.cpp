// The dialogs that manage the file sets.
#include "qt/indeling/Indelingen.h"

namespace lb77::indeling {

std::vector<Indeling> Sets() {
  return {
      {"NieuweSet", Kolom({
                        Velden({"SetNaam", "SetOmsch"}),
                        Knoppen({"OKButton", "BackButton"}),
                    })},
      {"OpenSetForm", Kolom({
                          Velden({"SetPicklist"}),
                          Knoppen({"OKButton", "CancelButton"}),
                      })},
      {"VerwijderSetForm", Kolom({
                               Velden({"SetPicklist"}),
                               Groep("Bestandenset", {Velden({"DeleteNee", "DeleteJa"})}),
                               Knoppen({"OKButton", "CancelButton"}),
                           })},
  };
}

}  // namespace lb77::indeling
