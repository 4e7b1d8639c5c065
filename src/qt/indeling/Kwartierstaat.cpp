// The chains of forms of the ancestor reports.
#include "qt/indeling/Indelingen.h"

namespace lb77::indeling {

namespace {

Blok PersoonPrompt() {
  return Kolom({
      "VraagLabel",
      Velden({"RecordNr", "VoorNm", "AchterNm"}),
      Knoppen({"ZoekButton"}, {"OKButton", "BackButton"}),
  });
}

Blok Opties(const std::vector<Blok>& uitvoer) {
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
      Groep("Uitvoer", {Velden(uitvoer)}),
      Groep("Titel en inleiding",
            {Velden({"TitelTekst", "Inleiding1", "Inleiding2", "Inleiding3"})}),
      Knoppen({"OKButton", "BackButton"}),
  });
}

Blok InternetOpties() {
  return Kolom({
      Groep("E-mail", {Velden({"EmailAdres", "EmailTekst"})}),
      Groep("Home Page", {Velden({"HomePageURL", "URLLabelTekst", "URLTekstTekst"})}),
      Knoppen({"OKButton", "BackButton"}),
  });
}

Blok Schrijven() {
  return Kolom({
      "SchrijfLabel",
      Velden({Rij({"KwartierenLabel", "Kwartieren"})}),
      "GeduldLabel",
      Knoppen({"OKButton", "BackButton"}),
  });
}

}  // namespace

std::vector<Indeling> Kwartierstaat() {
  return {
      {"KwstTxtPrs", PersoonPrompt()},
      {"KwstTxtParam",
       Opties({Rij({"OokNrsBox", "OokOpmBox"}), Rij({"InHTMLBox", "CopyrightBox"}), "OokLB77Box"})},
      {"KwHTMLParam", InternetOpties()},
      {"KwstBereken",
       Kolom({
           "OpbouwLabel",
           Velden({Rij({"PersNrLabel", "PersoonsNr"}), Rij({"KwartierenLabel", "Kwartieren"})}),
           Velden({"GeduldLabel", "MaximumLabel"}),
           Knoppen({"OKButton", "BackButton"}),
       })},
      {"KwstMaakTemp", Schrijven()},
      {"KwstIdxPrs", PersoonPrompt()},
      {"KwstIdxParam", Opties({Rij({"OokNrsBox", "InHTMLBox"}), "HTMLfileTekst",
                               Rij({"CopyrightBox", "OokLB77Box"})})},
      {"KwidxHTMLParam", InternetOpties()},
      {"KwstIdxTemp", Schrijven()},
  };
}

}  // namespace lb77::indeling
