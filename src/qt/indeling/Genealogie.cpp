// The chains of forms of the descendant reports.
#include "qt/indeling/Indelingen.h"

namespace lb77::indeling {

namespace {

Blok Stamouder() {
  return Persoonshoofd("Stamouder", "Stamouder");
}

Blok WieVolgt() {
  return Groep("Wie gevolgd wordt", {Velden({
                                        Rij({"ZonenBox", "DochtersBox"}),
                                        Rij({"GrensLeeftijd", "MaxGen"}),
                                        Rij({"PrsHerhaalBox", "UitsluitBox"}),
                                    })});
}

Blok TekstOpties() {
  return Kolom({
      Stamouder(),
      WieVolgt(),
      Groep("Uitvoer", {Velden({
                           Rij({"InHTMLBox", "PerTakBox"}),
                           Rij({"OokNrsBox", "OokOpmBox"}),
                           Rij({"VerwijsBox", "CopyrightBox"}),
                           "OokLB77Box",
                       })}),
      Titels(),
      Knoppen({"OKButton", "BackButton"}),
  });
}

Blok IndexOpties() {
  return Kolom({
      Stamouder(),
      WieVolgt(),
      Groep("Uitvoer", {Velden({
                           Rij({"InHTMLBox", "PerTakBox"}),
                           Rij({"OokNrsBox", "HTMLfileTekst"}),
                           Rij({"CopyrightBox", "OokLB77Box"}),
                       })}),
      Titels(),
      Knoppen({"OKButton", "BackButton"}),
  });
}

Blok SchemaOpties() {
  return Kolom({
      Stamouder(),
      WieVolgt(),
      Groep("Schema", {Velden({"InHTMLBox"}),
                       Velden({
                           Rij({"HorVerBox", "CentreerBox", "OokDatumsBox"}),
                           Rij({"OokVNamenBox", "PosVNamen", "PosANamen"}),
                           Rij({"OokPartnersBox", "OokVNrsBox", "OokPNrsBox"}),
                       }),
                       Velden({
                           Rij({"OokRNrsBox", "CopyrightBox", "OokLB77Box"}),
                       })}),
      Velden({"TitelTekst", "Inleiding1", "Inleiding2", "Inleiding3"}),  // as low as a screen is
      Knoppen({"OKButton", "BackButton"}),
  });
}

Blok Takken() {
  return Kolom({
      "VraagLabel",
      Tabel({
          Veld("RecordNrVolgNiet(*)", "Nummer", 6),
          Veld("VoorNmVolgNiet(*)", "Voornamen", 24),
          Veld("AchterNmVolgNiet(*)", "Achternaam", 20),
          Veld("PeriodeVolgNiet(*)", "Periode"),
          Veld("ZoekButton(*)"),
      }),
      Knoppen({"OKButton", "BackButton"}),
  });
}

Blok Opbouw() {
  return Kolom({
      "OpbouwLabel",
      Velden({Rij({"PersNrLabel", "PersoonsNr"}), Rij({"HoofdpersonenLabel", "Hoofdpersonen"})}),
      Velden({"GeduldLabel", "MaximumLabel"}),
      Knoppen({"OKButton", "BackButton"}),
  });
}

Blok Posities() {
  return Kolom({
      "OpbouwLabel",
      Velden({Rij({"PersNrLabel", "PersoonsNr"})}),
      "GeduldLabel",
      Knoppen({"OKButton", "BackButton"}),
  });
}

Blok Schrijven(const Blok& teller) {
  return Kolom({
      "SchrijfLabel",
      Velden({teller, Rij({"PersNrLabel", "PersoonsNr"})}),
      "GeduldLabel",
      Knoppen({"OKButton", "BackButton"}),
  });
}

}  // namespace

std::vector<Indeling> Genealogie() {
  return {
      {"GenTxtPrs", PersoonPrompt()},
      {"GenTxtParam", TekstOpties()},
      {"GenTxtUitsluit", Takken()},
      {"GenHTMLParam", InternetOpties()},
      {"GenBereken", Opbouw()},
      {"GenMaakTemp", Schrijven(Rij({"HoofdpersonenLabel", "Hoofdpersonen"}))},
      {"GenIdxPrs", PersoonPrompt()},
      {"GenIdxParam", IndexOpties()},
      {"GenIdxUitsluit", Takken()},
      {"GenMaakIdxTemp", Schrijven(Rij({"HoofdpersonenLabel", "Hoofdpersonen"}))},
      {"GenSchPrs", PersoonPrompt()},
      {"GenSchParam", SchemaOpties()},
      {"GenSchUitsluit", Takken()},
      {"GenSchBlok", Posities()},
      {"GenSchTemp", Schrijven(Rij({"PersonenLabel", "Personen"}))},
  };
}

}  // namespace lb77::indeling
