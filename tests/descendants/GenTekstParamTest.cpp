// The option dialog of the descendant report.
#include <gtest/gtest.h>

#include "descendants/GenKeten.h"
#include "descendants/GenTekstParam.h"

namespace lb77 {
namespace {

class GenTekstParamToets : public GenKeten {
 protected:
  // What the dialog shows of a control under these settings.
  void Toont(std::string_view controle, std::string_view waarde,
             const Plek& plek = Plek::current()) {
    Speel(Weg()
              .In("GenTxtParam", "toon " + std::string(controle) + "\ndruk BackButton",
                  "= " + std::string(controle) + " \"" + std::string(waarde) + "\"")
              .Tot("GenTxtParam"),
          plek);
  }
};

TEST_F(GenTekstParamToets, VraagtInDeWoordenDieGebruikersKennen) {
  Stil([](Hoofdmodule& hoofd) {
    GenOpties opties;
    const GenTekstParam vorm(kGenTxtParam, hoofd, opties);
    EXPECT_EQ(vorm.VerwijsBox->Prompt(), "Ook terugverwijzen naar de ouders ?");
    EXPECT_EQ(vorm.PerTakBox.Prompt(), "Uitvoer per tak of per generatie ?");
    EXPECT_EQ(vorm.GrensLeeftijd.Prompt(), "Leeftijdsgrens");
  });
}

TEST_F(GenTekstParamToets, OpentMetZijnStandaardEnDeBewaardeKeuzen) {
  Speel(Weg()
            .In("GenTxtParam", "toon\ndruk BackButton", R"(
      : GenTxtParam "Genealogie / Parenteel Uitvoeropties"
      = NrStamouder "4"
      = VoorNmStamouder "Jan"
      = AchterNmStamouder "Kok"
      = Periode "1700-1770"
      = ZonenBox "Alle Zonen"
      = DochtersBox "Alle Dochters"
      = GrensLeeftijd "15"
      = MaxGen "80"
      = PrsHerhaalBox "Nee"
      = UitsluitBox "Nee"
      = InHTMLBox "Nee"
      = PerTakBox "Per tak"
      = OokNrsBox "Nee"
      = OokOpmBox "Ja"
      = VerwijsBox "Ja"
      = CopyrightBox "Ja"
      = OokLB77Box "Ja"
      = TitelTekst "Genealogie van Jan Kok"
      = Inleiding1 ""
      = Inleiding2 ""
      = Inleiding3 ""
      = OKButton "&OK"
      = BackButton "&Terug"
      * ZonenBox
    )")
            .Tot("GenTxtParam"));
}

TEST_F(GenTekstParamToets, DeRegelsStaanInHunVolgorde) {
  Speel(Weg()
            .In("GenTxtParam", "toon ZonenBox\ntoon DochtersBox\ntoon PerTakBox\ndruk BackButton",
                R"~(
      = ZonenBox "Alle Zonen"
      #0 "Geen Zonen"
      #1 "Zonen met nageslacht"
      #2 "Zonen met Relatie(s)"
      #3 "Zonen ouder dan .. jaar"
      #4 "Alle Zonen"
      = DochtersBox "Alle Dochters"
      #0 "Geen Dochters"
      #1 "Dochters met nageslacht"
      #2 "Dochters met Relatie(s)"
      #3 "Ongehuwde Moeders"
      #4 "Dochters ouder dan .. jaar"
      #5 "Alle Dochters"
      = PerTakBox "Per tak"
      #0 "Per tak"
      #1 "Per generatie"
    )~")
            .Tot("GenTxtParam"));
}

TEST_F(GenTekstParamToets, DeBewaardeLeeftijdGeldtBovenDeTien) {
  ZetIni("Leeftijd=0", "Leeftijd=10");
  Toont("GrensLeeftijd", "15");
  ZetIni("Leeftijd=0", "Leeftijd=11");
  Toont("GrensLeeftijd", "11");
  ZetIni("Leeftijd=0", "Leeftijd=79");
  Toont("GrensLeeftijd", "79");
  ZetIni("Leeftijd=0", "Leeftijd=1000");
  Toont("GrensLeeftijd", "15");
}

TEST_F(GenTekstParamToets, HetAantalGeneratiesWordtGecontroleerd) {
  Speel(Weg()
            .In("GenTxtParam",
                "vul MaxGen\nvul MaxGen 0\nvul MaxGen 81\nvul MaxGen 80\ndruk BackButton",
                R"~(
      ! uitroep "Het maximum aantal generaties is verplicht"
      ! uitroep "Onjuist aantal generaties (1-80)"
      ! uitroep "Onjuist aantal generaties (1-80)"
    )~")
            .Tot("GenTxtParam"));
}

TEST_F(GenTekstParamToets, DeLeeftijdNeemtAlleenCijfers) {
  Speel(Weg()
            .In("GenTxtParam",
                "vul GrensLeeftijd -x2y0\ntoon GrensLeeftijd\nvul GrensLeeftijd\ndruk BackButton",
                "= GrensLeeftijd \"20\"")
            .Tot("GenTxtParam"));
}

TEST_F(GenTekstParamToets, KeuzenBlijvenInDeInstellingen) {
  Speel(Weg()
            .In("GenTxtParam", R"(
                stel ZonenBox Zonen ouder dan .. jaar
                stel DochtersBox Dochters met nageslacht
                vul GrensLeeftijd 21
                stel PrsHerhaalBox Ja
                stel UitsluitBox Ja
                stel PerTakBox Per generatie
                stel OokNrsBox Ja
                stel OokOpmBox Nee
                stel VerwijsBox Nee
                stel CopyrightBox Nee
                stel OokLB77Box Nee
                druk OKButton
              )")
            .In("GenTxtUitsluit", "druk OKButton"));
  EXPECT_TRUE(
      IniHeeft("[GEN]\r\nOokNummers=J\r\nOokOpm=N\r\nVolgHerh=J\r\nHTML=N\r\nOokCopyRt=N\r\n"
               "OokLB77=N\r\nOokEmail=N\r\nOokHomePage=N\r\nOokHSKHome=N\r\nVolgZonen=4\r\n"
               "VolgDochters=2\r\nVerwijzing=N\r\nPerGeneratie=J\r\nUitsluiten=J\r\nLeeftijd=21"))
      << Ini();
  EXPECT_FALSE(VerslagHeeft("Copyright"));
  EXPECT_FALSE(VerslagHeeft("Gemaakt met"));
  Speel(Weg()
            .In("GenTxtParam", "toon\nsluit", R"(
      : GenTxtParam "Genealogie / Parenteel Uitvoeropties"
      = NrStamouder "4"
      = VoorNmStamouder "Jan"
      = AchterNmStamouder "Kok"
      = Periode "1700-1770"
      = ZonenBox "Zonen ouder dan .. jaar"
      = DochtersBox "Dochters met nageslacht"
      = GrensLeeftijd "21"
      = MaxGen "80"
      = PrsHerhaalBox "Ja"
      = UitsluitBox "Ja"
      = InHTMLBox "Nee"
      = PerTakBox "Per generatie"
      = OokNrsBox "Ja"
      = OokOpmBox "Nee"
      = VerwijsBox "Nee"
      = CopyrightBox "Nee"
      = OokLB77Box "Nee"
      = TitelTekst "Genealogie van Jan Kok"
      = Inleiding1 ""
      = Inleiding2 ""
      = Inleiding3 ""
      = OKButton "&OK"
      = BackButton "&Terug"
      * ZonenBox
    )")
            .Tot("GenTxtParam"));
}

// Anything but "N" is yes, and anything but "J" leaves a page and the order by generation out.
TEST_F(GenTekstParamToets, EenOnbekendeWaardeIsDeGewoneKeuze) {
  ZetIni("VolgZonen=5\r\nVolgDochters=6",
         "VolgZonen=6\r\nVolgDochters=-1\r\nOokNummers=X\r\nOokOpm=\r\nVolgHerh=n\r\n"
         "Verwijzing=X\r\nUitsluiten=X\r\nHTML=j\r\nPerGeneratie=X\r\nOokCopyRt=X\r\nOokLB77=X");
  for (const std::string_view veld : {"OokNrsBox", "OokOpmBox", "PrsHerhaalBox", "VerwijsBox",
                                      "UitsluitBox", "CopyrightBox", "OokLB77Box"}) {
    Toont(veld, "Ja\"\n#0 \"Ja\"\n#1 \"Nee");
  }
  Toont("InHTMLBox", "Nee\"\n#0 \"Ja\"\n#1 \"Nee");
  Toont("PerTakBox", "Per tak\"\n#0 \"Per tak\"\n#1 \"Per generatie");
  Speel(Weg().In("GenTxtParam", "stel InHTMLBox Nee\nstel UitsluitBox Nee\ndruk OKButton"));
  EXPECT_TRUE(IniHeeft("VolgZonen=1\r\nVolgDochters=1"));
}

TEST_F(GenTekstParamToets, KeuzenWordenVergetenAlsDeInstellingenDatZeggen) {
  ZetIni("OpslaanVelden=J", "OpslaanVelden=N");
  const std::string ini = Ini();
  Speel(Weg()
            .In("GenTxtParam",
                "stel ZonenBox #0\nstel InHTMLBox Ja\nvul GrensLeeftijd 30\ndruk OKButton")
            .In("GenHTMLParam", "druk OKButton"));
  EXPECT_EQ(Ini(), ini);
}

TEST_F(GenTekstParamToets, EenKoppelingDieLeegBlijftWistDeBewaardeNiet) {
  ZetIni("[GEN]", "[INTERNET]\r\nHomePage=thuis.htm\r\n[GEN]");
  Speel(Weg()
            .In("GenTxtParam", "stel InHTMLBox Ja\ndruk OKButton")
            .In("GenHTMLParam", "toon HomePageURL\nvul HomePageURL\ndruk OKButton",
                "= HomePageURL \"thuis.htm\""));
  EXPECT_TRUE(IniHeeft("HomePage=thuis.htm"));
  EXPECT_FALSE(VerslagHeeft("thuis.htm"));
}

TEST_F(GenTekstParamToets, HetHTMLSchermBewaartBijDeGenealogie) {
  Speel(Weg()
            .In("GenTxtParam", "stel InHTMLBox Ja\ndruk OKButton")
            .In("GenHTMLParam", "vul EmailAdres jan@example.org\nvul HomePageURL\ndruk OKButton"));
  EXPECT_TRUE(IniHeeft("HTML=J"));
  EXPECT_TRUE(IniHeeft("OokEmail=J\r\nOokHomePage=N\r\nOokHSKHome=N"));
  EXPECT_TRUE(VerslagHeeft("<A HREF=\"mailto:jan@example.org\">"));
  EXPECT_TRUE(VerslagHeeft("&copy;Copyright (2000) J. Jansen"));
}

}  // namespace
}  // namespace lb77
