// The chain of forms of the ancestor report.
#include "qt/indeling/Indelingen.h"

namespace lb77::indeling {

namespace {

Blok Opties() {
  return Kolom({
      Groep("Proband", {Velden({
                           Rij({"NrProband", "Periode"}),
                           Rij({"VoorNmProband", "AchterNmProband"}),
                       })}),
      Groep("Kwartieren", {Velden({
                              Rij({"KwNrProband", "VanafKwartier"}),
                              Rij({"MaxGen", "KwHerhaalBox"}),
                              "BroerZusBox",
                          })}),
      Groep("Uitvoer", {Velden({
                           Rij({"OokNrsBox", "OokOpmBox"}),
                           Rij({"InHTMLBox", "CopyrightBox"}),
                           "OokLB77Box",
                       })}),
      Groep("Titel en inleiding",
            {Velden({"TitelTekst", "Inleiding1", "Inleiding2", "Inleiding3"})}),
      Knoppen({"OKButton", "BackButton"}),
  });
}

}  // namespace

std::vector<Indeling> Kwartierstaat() {
  return {
      {"KwstTxtPrs", PersoonPrompt()},
      {"KwstTxtParam", Opties()},
      {"KwHTMLParam", InternetOpties()},
      {"KwstBereken",
       Kolom({
           "OpbouwLabel",
           Velden({Rij({"PersNrLabel", "PersoonsNr"}), Rij({"KwartierenLabel", "Kwartieren"})}),
           Velden({"GeduldLabel", "MaximumLabel"}),
           Knoppen({"OKButton", "BackButton"}),
       })},
      {"KwstMaakTemp", Kolom({
                           "SchrijfLabel",
                           Velden({Rij({"KwartierenLabel", "Kwartieren"})}),
                           "GeduldLabel",
                           Knoppen({"OKButton", "BackButton"}),
                       })},
  };
}

}  // namespace lb77::indeling
