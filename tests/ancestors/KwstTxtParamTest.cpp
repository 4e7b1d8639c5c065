// The option dialogs of the ancestor report.
#include <gtest/gtest.h>

#include "ancestors/KwstKeten.h"

namespace lb77 {
namespace {

class KwstParam : public KwstKeten {};

TEST_F(KwstParam, HetOptieschermOpentMetZijnStandaardEnDeBewaardeKeuzen) {
  Speel(R"(
      vul RecordNr 9
      druk OKButton
      toon
      toon BroerZusBox
      druk BackButton
    )",
        R"(
      + KwstTxtPrs "Nummer Proband"
      + KwstTxtParam "Kwartierstaat Uitvoeropties"
      : KwstTxtParam "Kwartierstaat Uitvoeropties"
      = NrProband "9"
      = VoorNmProband "Gerrit"
      = AchterNmProband "van Dam"
      = Periode "1810-    "
      = KwNrProband "1"
      = VanafKwartier "1"
      = MaxGen "80"
      = BroerZusBox "Zonder Broers en Zussen"
      = OokNrsBox "Nee"
      = OokOpmBox "Ja"
      = KwHerhaalBox "Nee"
      = InHTMLBox "Nee"
      = CopyrightBox "Ja"
      = OokLB77Box "Ja"
      = TitelTekst "Kwartierstaat van Gerrit van Dam"
      = Inleiding1 ""
      = Inleiding2 ""
      = Inleiding3 ""
      = OKButton "&OK"
      = BackButton "&Terug"
      * KwNrProband
      = BroerZusBox "Zonder Broers en Zussen"
      #0 "Zonder Broers en Zussen"
      #1 "Met Broers en Zussen van de Proband"
      #2 "Met Alle Broers en Zussen"
      - KwstTxtParam
      - KwstTxtPrs
    )");
  EXPECT_EQ(gebleven_, -1);
}

TEST_F(KwstParam, VeldenWordenGecontroleerdBijHetVerlaten) {
  Speel(R"(
      vul RecordNr 9
      druk OKButton
      vul KwNrProband
      vul KwNrProband 1a
      vul KwNrProband 8
      vul VanafKwartier
      vul VanafKwartier x
      vul VanafKwartier 7
      vul VanafKwartier 0010
      vul MaxGen
      vul MaxGen 81
      vul MaxGen 0
      vul MaxGen 80
      druk BackButton
    )",
        R"~(
      + KwstTxtPrs "Nummer Proband"
      + KwstTxtParam "Kwartierstaat Uitvoeropties"
      ! uitroep "Het kwartiernummer van de proband is verplicht"
      ! uitroep "Onjuist kwartiernummer (geen getal)"
      ! uitroep "Het eerst uit te voeren kwartiernummer is verplicht"
      ! uitroep "Onjuist kwartiernummer (geen getal)"
      ! uitroep "Het eerst uit te voeren kwartiernummer mag niet kleiner zijn dan dat van de proband"
      ! uitroep "Het maximum aantal generaties is verplicht"
      ! uitroep "Onjuist aantal generaties (1-80)"
      ! uitroep "Onjuist aantal generaties (1-80)"
      - KwstTxtParam
      - KwstTxtPrs
    )~");
}

TEST_F(KwstParam, KwartiernummerNulIsGeenGetal) {
  Speel(R"(
      vul RecordNr 9
      druk OKButton
      vul KwNrProband 0
      vul KwNrProband 000
      vul KwNrProband 10
      vul VanafKwartier 0
      druk BackButton
    )",
        R"~(
      + KwstTxtPrs "Nummer Proband"
      + KwstTxtParam "Kwartierstaat Uitvoeropties"
      ! uitroep "Onjuist kwartiernummer (geen getal)"
      ! uitroep "Onjuist kwartiernummer (geen getal)"
      ! uitroep "Het eerst uit te voeren kwartiernummer mag niet kleiner zijn dan dat van de proband"
      - KwstTxtParam
      - KwstTxtPrs
    )~");
}

TEST_F(KwstParam, KeuzenBlijvenInDeInstellingen) {
  Speel(R"(
      vul RecordNr 9
      druk OKButton
      stel BroerZusBox #2
      stel OokNrsBox Ja
      stel OokOpmBox Nee
      stel KwHerhaalBox Ja
      stel CopyrightBox Nee
      stel OokLB77Box Nee
      druk OKButton
      druk BackButton
    )",
        R"(
      + KwstTxtPrs "Nummer Proband"
      + KwstTxtParam "Kwartierstaat Uitvoeropties"
      - KwstTxtParam
      + KwstBereken "Opbouwen Kwartierstaat"
      - KwstBereken
      + KwstMaakTemp "Kwartierstaat Schrijven"
      - KwstMaakTemp
      + ToonTekst "Kwartierstaat in Tekstvorm"
      - ToonTekst
      - KwstTxtPrs
    )");
  EXPECT_NE(
      Ini().find("[KWST]\r\nSoortUitv=3\r\nOokNummers=J\r\nOokOpm=N\r\nVolgHerh=J\r\nHTML=N\r\n"
                 "OokCopyRt=N\r\nOokLB77=N\r\n"),
      std::string::npos);
  EXPECT_EQ(Verslag().find("Copyright"), std::string::npos);
  EXPECT_EQ(Verslag().find("Gemaakt met"), std::string::npos);
}

TEST_F(KwstParam, EenSoortUitvoerDieErGeenIsIsDeEerste) {
  for (const std::string_view waarde : {"", "0", "4", "x", "-99999999999", "99999999999"}) {
    std::string ini(kIni);
    ini.replace(ini.find("SoortUitv=1"), 11, "SoortUitv=" + std::string(waarde));
    SchrijfBytes(Map() / "LIJNBOOM.INI", ini);
    Speel("vul RecordNr 9\ndruk OKButton\ntoon BroerZusBox\nsluit\n", R"(
      + KwstTxtPrs "Nummer Proband"
      + KwstTxtParam "Kwartierstaat Uitvoeropties"
      = BroerZusBox "Zonder Broers en Zussen"
      #0 "Zonder Broers en Zussen"
      #1 "Met Broers en Zussen van de Proband"
      #2 "Met Alle Broers en Zussen"
      - KwstTxtParam
      - KwstTxtPrs
    )");
    EXPECT_EQ(gebleven_, -1) << waarde;
  }
}

TEST_F(KwstParam, KeuzenWordenVergetenAlsDeInstellingenDatZeggen) {
  std::string ini(kIni);
  ini.replace(ini.find("OpslaanVelden=J"), 15, "OpslaanVelden=N");
  SchrijfBytes(Map() / "LIJNBOOM.INI", ini);
  Speel(R"(
      vul RecordNr 9
      druk OKButton
      stel BroerZusBox #2
      stel InHTMLBox Ja
      druk OKButton
      druk OKButton
      druk BackButton
    )",
        R"(
      + KwstTxtPrs "Nummer Proband"
      + KwstTxtParam "Kwartierstaat Uitvoeropties"
      - KwstTxtParam
      + KwHTMLParam "Kwartierstaat Uitvoeropties voor Internet"
      - KwHTMLParam
      + KwstBereken "Opbouwen Kwartierstaat"
      - KwstBereken
      + KwstMaakTemp "Kwartierstaat Schrijven"
      - KwstMaakTemp
      + ToonTekst "Kwartierstaat in Tekstvorm"
      - ToonTekst
      - KwstTxtPrs
    )");
  EXPECT_EQ(Ini(), ini);
}

TEST_F(KwstParam, HetHTMLSchermToontVoorbeeldenEnBewaartWatIngevuldIs) {
  Speel(R"(
      vul RecordNr 9
      druk OKButton
      stel InHTMLBox Ja
      druk OKButton
      toon
      vul EmailAdres jan@example.org
      vul HomePageURL
      druk OKButton
      druk BackButton
    )",
        R"~(
      + KwstTxtPrs "Nummer Proband"
      + KwstTxtParam "Kwartierstaat Uitvoeropties"
      - KwstTxtParam
      + KwHTMLParam "Kwartierstaat Uitvoeropties voor Internet"
      : KwHTMLParam "Kwartierstaat Uitvoeropties voor Internet"
      = EmailAdres "naam@example.org"
      = EmailTekst "Schrijf me... (naam@example.org)"
      = HomePageURL "index.htm"
      = URLLabelTekst "Naar"
      = URLTekstTekst "mijn home page (http://www.example.org)"
      = OKButton "&OK"
      = BackButton "&Terug"
      * EmailAdres
      - KwHTMLParam
      + KwstBereken "Opbouwen Kwartierstaat"
      - KwstBereken
      + KwstMaakTemp "Kwartierstaat Schrijven"
      - KwstMaakTemp
      + ToonTekst "Kwartierstaat in Tekstvorm"
      - ToonTekst
      - KwstTxtPrs
    )~");
  EXPECT_TRUE(IniHeeft("HTML=J"));
  EXPECT_TRUE(IniHeeft("OokEmail=J"));
  EXPECT_TRUE(IniHeeft("OokHomePage=N"));
  EXPECT_TRUE(IniHeeft("OokHSKHome=N"));
  EXPECT_TRUE(IniHeeft("Email=jan@example.org"));
  EXPECT_TRUE(IniHeeft("HomePageLabel=Naar"));
  EXPECT_NE(Verslag().find("<A HREF=\"mailto:jan@example.org\">"), std::string::npos);
  EXPECT_EQ(Verslag().find("index.htm"), std::string::npos);
  EXPECT_NE(Verslag().find("&copy;Copyright (2000) J. Jansen"), std::string::npos);
}

TEST_F(KwstParam, TerugInHetHTMLSchermStoptDeKeten) {
  Speel(R"(
      vul RecordNr 9
      druk OKButton
      stel InHTMLBox Ja
      druk OKButton
      toets Escape
    )",
        R"(
      + KwstTxtPrs "Nummer Proband"
      + KwstTxtParam "Kwartierstaat Uitvoeropties"
      - KwstTxtParam
      + KwHTMLParam "Kwartierstaat Uitvoeropties voor Internet"
      - KwHTMLParam
      - KwstTxtPrs
    )");
  EXPECT_EQ(gebleven_, -1);
  EXPECT_EQ(Verslag(), "");
}

}  // namespace
}  // namespace lb77
