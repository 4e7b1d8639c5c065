// The options of the descendant chart and of the descendant index.
#include <gtest/gtest.h>

#include "descendants/GenSchKeten.h"

namespace lb77 {
namespace {

class GenSchParamToets : public GenSchKeten {
 protected:
  // Plays a script in the dialog, which Terug leaves.
  void SpeelParam(std::string_view draaiboek, std::string_view verslag,
                  const Plek& plek = Plek::current()) {
    Speel(Weg()
              .In("GenSchParam", std::string(draaiboek) + "\ndruk BackButton", verslag)
              .Tot("GenSchParam"),
          plek);
  }
  void SchrijfGenb(std::string_view regels) {
    SchrijfBytes(Map() / "LIJNBOOM.INI",
                 "[Systeem]\r\nSet=PROEF\r\nOpslaanVelden=J\r\n[GENB]\r\n" + std::string(regels));
  }
};

TEST_F(GenSchParamToets, OpentMetZijnStandaard) {
  SchrijfGenb("");
  SpeelParam("toon", R"(
      : GenSchParam "Genealogie / Parenteel Schema Uitvoeropties"
      = NrStamouder "4"
      = VoorNmStamouder "Jan"
      = AchterNmStamouder "Kok"
      = Periode "1700-1770"
      = ZonenBox "Alle Zonen"
      = DochtersBox "Ongehuwde Moeders"
      = GrensLeeftijd "15"
      = MaxGen "80"
      = PrsHerhaalBox "Nee"
      = UitsluitBox "Nee"
      = InHTMLBox "Nee"
      = HorVerBox "Horizontaal"
      = CentreerBox "Ja"
      = OokDatumsBox "Nee"
      = OokVNamenBox "Alleen 1e"
      = PosVNamen "30"
      = PosANamen "25"
      = OokPartnersBox "Onder elkaar"
      = OokVNrsBox "Nee"
      = OokPNrsBox "Nee"
      = OokRNrsBox "Nee"
      = CopyrightBox "Ja"
      = OokLB77Box "Ja"
      = TitelTekst "Genealogie van Jan Kok"
      = Inleiding1 ""
      = Inleiding2 ""
      = Inleiding3 ""
      = OKButton "&OK"
      = BackButton "&Terug"
      * ZonenBox
    )");
}

TEST_F(GenSchParamToets, DeLijstenStaanInHunVolgorde) {
  SpeelParam("toon HorVerBox\ntoon OokVNamenBox\ntoon OokDatumsBox\ntoon OokPartnersBox", R"(
      = HorVerBox "Horizontaal"
      #0 "Horizontaal"
      #1 "Verticaal"
      = OokVNamenBox "Alleen 1e"
      #0 "Nee"
      #1 "Alleen 1e"
      #2 "Voorletters"
      #3 "Volledig"
      = OokDatumsBox "Nee"
      #0 "Nee"
      #1 "Jaartallen"
      #2 "Volledig"
      = OokPartnersBox "Onder elkaar"
      #0 "Nee"
      #1 "Onder elkaar"
      #2 "Naast elkaar"
    )");
}

TEST_F(GenSchParamToets, VeldenWordenGecontroleerdEnKrijgenHunHerstel) {
  SpeelParam(R"(
      vul MaxGen
      toon MaxGen
      vul MaxGen 81
      vul MaxGen 0
      toon MaxGen
      vul GrensLeeftijd
      toon GrensLeeftijd
      vul GrensLeeftijd 0
      vul GrensLeeftijd 51
      toon GrensLeeftijd
      vul GrensLeeftijd 50
    )",
             R"~(
      ! uitroep "Het maximum aantal generaties is verplicht"
      = MaxGen "80"
      ! uitroep "Onjuist aantal generaties (1-80)"
      ! uitroep "Onjuist aantal generaties (1-80)"
      = MaxGen "80"
      ! uitroep "De grensleeftijd is verplicht"
      = GrensLeeftijd "18"
      ! uitroep "Onjuiste grensleeftijd (1-50)"
      ! uitroep "Onjuiste grensleeftijd (1-50)"
      = GrensLeeftijd "18"
    )~");
}

TEST_F(GenSchParamToets, PositiesWordenGecontroleerdEnBlijvenStaan) {
  SpeelParam(R"(
      vul PosVNamen 31
      toon PosVNamen
      vul PosVNamen 4
      vul PosVNamen
      vul PosVNamen 5
      vul PosVNamen 30
      vul PosANamen 26
      toon PosANamen
      vul PosANamen 0
      vul PosANamen
      vul PosANamen 25
    )",
             R"~(
      ! uitroep "Onjuist aantal posities voor voornamen (5-30)"
      = PosVNamen "31"
      ! uitroep "Onjuist aantal posities voor voornamen (5-30)"
      ! uitroep "Onjuist aantal posities voor voornamen (5-30)"
      ! uitroep "Onjuist aantal posities voor achternamen (0-25)"
      = PosANamen "26"
    )~");
}

constexpr std::string_view kAnders =
    "OokPrsNrs=J\r\nOokVolgNrs=J\r\nOokRelNrs=J\r\nVoorNamen=3\r\nPosVNamen=12\r\nPosANamen=0\r\n"
    "Partners=2\r\nToonDatums=1\r\nVolgHerh=J\r\nHTML=J\r\nOokCopyRt=N\r\nOokLB77=N\r\n"
    "VolgZonen=4\r\nVolgDochters=2\r\nVertikaal=J\r\nCentreren=N\r\nUitsluiten=J\r\nLeeftijd=44\r\n"
    "[GEN]\r\nLeeftijd=21\r\n";

TEST_F(GenSchParamToets, LaadtDeBewaardeKeuzen) {
  SchrijfGenb(kAnders);
  SpeelParam("toon", R"~(
      : GenSchParam "Genealogie / Parenteel Schema Uitvoeropties"
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
      = InHTMLBox "Ja"
      = HorVerBox "Verticaal"
      = CentreerBox "Nee"
      = OokDatumsBox "Jaartallen"
      = OokVNamenBox "Volledig"
      = PosVNamen "12"
      = PosANamen "0"
      = OokPartnersBox "Naast elkaar"
      = OokVNrsBox "Ja"
      = OokPNrsBox "Ja"
      = OokRNrsBox "Ja"
      = CopyrightBox "Nee"
      = OokLB77Box "Nee"
      = TitelTekst "Genealogie van Jan Kok"
      = Inleiding1 ""
      = Inleiding2 ""
      = Inleiding3 ""
      = OKButton "&OK"
      = BackButton "&Terug"
      * ZonenBox
    )~");
}

TEST_F(GenSchParamToets, WatEenVeldZouWeigerenWordtNietOvergenomen) {
  for (const std::string_view regels :
       {"PosVNamen=4\r\nPosANamen=26\r\n[GEN]\r\nLeeftijd=51\r\n",
        "PosVNamen=31\r\nPosANamen=-1\r\n[GEN]\r\nLeeftijd=10\r\n"}) {
    SchrijfGenb(regels);
    SpeelParam("toon PosVNamen\ntoon PosANamen\ntoon GrensLeeftijd",
               "= PosVNamen \"30\"\n= PosANamen \"25\"\n= GrensLeeftijd \"15\"\n");
  }
}

TEST_F(GenSchParamToets, EenOnbekendeWaardeIsDeGewoneKeuze) {
  SchrijfGenb("Vertikaal=X\r\nHTML=X\r\nCentreren=X\r\nPartners=3\r\nToonDatums=-1\r\n");
  SpeelParam("toon InHTMLBox\ntoon HorVerBox\ntoon CentreerBox", R"(
      = InHTMLBox "Nee"
      #0 "Ja"
      #1 "Nee"
      = HorVerBox "Horizontaal"
      #0 "Horizontaal"
      #1 "Verticaal"
      = CentreerBox "Ja"
      #0 "Ja"
      #1 "Nee"
  )");
  SpeelParam("toon OokDatumsBox\ntoon OokPartnersBox", R"(
      = OokDatumsBox "Nee"
      #0 "Nee"
      #1 "Jaartallen"
      #2 "Volledig"
      = OokPartnersBox "Nee"
      #0 "Nee"
      #1 "Onder elkaar"
      #2 "Naast elkaar"
  )");
}

TEST_F(GenSchParamToets, AllesBehalveNeeIsJa) {
  SchrijfGenb("OokVolgNrs=X\r\nOokPrsNrs=\r\nOokRelNrs=n\r\nVolgHerh=X\r\nUitsluiten=X\r\n");
  for (const std::string_view veld :
       {"OokVNrsBox", "OokPNrsBox", "OokRNrsBox", "PrsHerhaalBox", "UitsluitBox"}) {
    SpeelParam("toon " + std::string(veld),
               "= " + std::string(veld) + " \"Ja\"\n#0 \"Ja\"\n#1 \"Nee\"\n");
  }
}

constexpr std::string_view kStelAnders = R"(
    stel ZonenBox #3
    stel DochtersBox #1
    vul GrensLeeftijd 21
    stel PrsHerhaalBox Ja
    stel InHTMLBox Nee
    stel HorVerBox Verticaal
    stel CentreerBox Nee
    stel OokVNamenBox Volledig
    vul PosVNamen 12
    vul PosANamen 0
    stel OokDatumsBox Jaartallen
    stel OokPartnersBox Naast elkaar
    stel OokVNrsBox Ja
    stel OokPNrsBox Ja
    stel OokRNrsBox Ja
    stel CopyrightBox Nee
    stel OokLB77Box Nee
    druk OKButton
)";

TEST_F(GenSchParamToets, KeuzenBlijvenInHunSectie) {
  Speel(Weg().In("GenSchParam", kStelAnders));
  for (const std::string_view regel :
       {"OokPrsNrs=J", "OokVolgNrs=J", "OokRelNrs=J", "VoorNamen=3", "PosVNamen=12", "PosANamen=0",
        "Partners=2", "ToonDatums=1", "Vertikaal=J", "Centreren=N"}) {
    EXPECT_TRUE(IniHeeft(regel)) << regel;
  }
  const std::string ini = Ini();
  const std::size_t gen = ini.find("[GEN]\r\n");
  const std::size_t genb = ini.find("[GENB]\r\n");
  ASSERT_LT(gen, genb);
  const auto in = [&ini](std::size_t sectie, std::string_view regel) {
    const std::size_t plek = ini.find("\r\n" + std::string(regel) + "\r\n", sectie);
    return plek < ini.find("\r\n[", sectie);
  };
  EXPECT_TRUE(in(gen, "Leeftijd=21"));
  EXPECT_TRUE(in(gen, "VolgZonen=5"));
  EXPECT_TRUE(in(genb, "Leeftijd=79"));
  EXPECT_TRUE(in(genb, "VolgZonen=4"));
  EXPECT_TRUE(in(genb, "VolgDochters=2"));
  EXPECT_TRUE(in(genb, "VolgHerh=J"));
  EXPECT_TRUE(in(genb, "Uitsluiten=N"));
  EXPECT_TRUE(in(genb, "OokCopyRt=N"));
  EXPECT_TRUE(in(genb, "OokLB77=N"));
  EXPECT_TRUE(in(genb, "OokOpm=J"));  // never written
}

TEST_F(GenSchParamToets, ZonderOpslaanBlijftErNiets) {
  ZetIni("OpslaanVelden=J", "OpslaanVelden=N");
  const std::string vooraf = Ini();
  Speel(Weg().In("GenSchParam", kStelAnders));
  EXPECT_EQ(Ini(), vooraf);
}

TEST_F(GenSchParamToets, DeKoppelingenBewarenInDezelfdeSectie) {
  Speel(Weg()
            .In("GenSchParam", "stel InHTMLBox Ja\ndruk OKButton")
            .In("GenHTMLParam", "vul EmailAdres ik@example.org\nvul HomePageURL\ndruk OKButton"));
  const std::string ini = Ini();
  const std::size_t genb = ini.find("[GENB]\r\n");
  EXPECT_LT(ini.find("OokEmail=J", genb), ini.find("\r\n[", genb));
  EXPECT_LT(ini.find("OokHomePage=N", genb), ini.find("\r\n[", genb));
  const std::size_t gen = ini.find("[GEN]\r\n");
  EXPECT_LT(ini.find("OokEmail=N", gen), ini.find("\r\n[", gen));
}

TEST_F(GenSchParamToets, DeKeuzenKomenInHetSchema) {
  Speel(Weg().In("GenSchParam", R"(
      vul MaxGen 2
      stel CentreerBox Nee
      stel OokVNamenBox Voorletters
      vul PosANamen 2
      stel OokDatumsBox Jaartallen
      stel OokPartnersBox Nee
      stel OokVNrsBox Ja
      stel OokPNrsBox Ja
      stel CopyrightBox Nee
      stel OokLB77Box Nee
      vul TitelTekst
      vul Inleiding2 Tweede regel
      druk OKButton
    )"));
  EXPECT_EQ(
      Verslag(),
      "Tweede regel\r\n\r\n"
      "I       J. Ko [4] (1700-1770)--------------</-IIa     P. Ko [7] (1730-    )\r\n"
      "                                            +-IIb     M. Ko [8] (1732-    )\r\n"
      "                                            +-IIc     K. Ko [9] (1735-1736)\r\n"
      "                                            \\-IId     N. Ko [10] (    -    )\r\n\r\n");
}

class GenIdxParamToets : public GenIdxKeten {};

TEST_F(GenIdxParamToets, VraagtNaarHetBestandVanDeTekst) {
  Speel(Weg()
            .In("GenIdxParam", "toon HTMLfileTekst\ntoon PrsHerhaalBox\ndruk BackButton", R"(
                = HTMLfileTekst "GEN_DATA.HTM"
                = PrsHerhaalBox "Nee"
                #0 "Ja"
                #1 "Nee"
              )")
            .Tot("GenIdxParam"));
}

TEST_F(GenIdxParamToets, HetAantalGeneratiesWordtGecontroleerd) {
  Speel(Weg()
            .In("GenIdxParam", "vul MaxGen\nvul MaxGen 81\ndruk BackButton", R"~(
                ! uitroep "Het maximum aantal generaties is verplicht"
                ! uitroep "Onjuist aantal generaties (1-80)"
              )~")
            .Tot("GenIdxParam"));
}

TEST_F(GenIdxParamToets, OpmerkingenEnVerwijzingBlijvenDieVanDeTekst) {
  ZetIni("[GEN]\r\n", "[GEN]\r\nOokOpm=N\r\nVerwijzing=N\r\n");
  Speel(Weg().In("GenIdxParam",
                 "stel OokNrsBox Ja\nstel PerTakBox Per generatie\nvul GrensLeeftijd 30\n"
                 "stel PrsHerhaalBox Ja\nstel OokLB77Box Nee\ndruk OKButton"));
  for (const std::string_view regel : {"OokOpm=N", "Verwijzing=N", "OokNummers=J", "PerGeneratie=J",
                                       "Leeftijd=30", "VolgHerh=J", "OokLB77=N", "OokCopyRt=J"}) {
    EXPECT_TRUE(IniHeeft(regel)) << regel;
  }
}

}  // namespace
}  // namespace lb77
