// The dialogs that manage the file sets.
#include "qt/indeling/Indelingen.h"

namespace lb77::indeling {

std::vector<Indeling> Sets() {
  return {
      {"Welkom",
       Kolom({
           "WelkomKop",
           "WelkomUitleg",
           "GevondenLabel",
           Rij({"Terugnemen"}),
           Rooster({Rij({"NieuweFamilie", "NieuweUitleg"}), Rij({"GedcomInlezen", "GedcomUitleg"}),
                    Rij({"OudeBestanden", "OudeUitleg"}),
                    Rij({"Voorbeeldfamilie", "VoorbeeldUitleg"})}),
           "WaarLabel",
           Knoppen({"BackButton"}),
       })},
      {"MenuWindow",
       Kolom({
           "StartKop",
           "StartTelling",
           "StartWijziging",
           "StartUitleg",
           Rooster({Rij({"NieuweFamilie", "NieuweUitleg"}), Rij({"GedcomInlezen", "GedcomUitleg"}),
                    Rij({"OudeBestanden", "OudeUitleg"}),
                    Rij({"Voorbeeldfamilie", "VoorbeeldUitleg"})}),
           Rij({"OpenButton"}),
           Rij({"ZoekButton", "InvoerButton", "KwstButton", "KopieButton"}),
           "GezienLijst",
       })},
      {"OudeSetForm", Kolom({
                          "MapUitleg",
                          Velden({Rij({"OudeMap", "BrowseOudeMap"}), "GevondenLijst"}),
                          Groep("Bestanden", {Velden({"Kopieren", "TerPlaatse"})}),
                          Velden({"SetNaam", "SetOmsch"}),
                          Knoppen({"OKButton", "BackButton"}),
                      })},
      {"InWelkeSet", Kolom({
                         "BestandLabel",
                         "NieuweOptie",
                         Velden({"SetNaam", "SetOmsch"}),
                         "BestaandeOptie",
                         "SetPicklist",
                         Knoppen({"OKButton", "BackButton"}),
                     })},
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
