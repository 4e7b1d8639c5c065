// The chain of forms of the ancestor index, from prompt to viewer, by script.
#include <gtest/gtest.h>

#include "ancestors/KwstKeten.h"

namespace lb77 {
namespace {

class KwstIdxKeten : public KwstKeten {
 protected:
  KwstIdxKeten() { soort_ = &kKwstIdxPrs; }
  [[nodiscard]] static Keten Weg() {
    return Keten({
        {"KwstIdxPrs", "Nummer Proband", "vul RecordNr 9\ndruk OKButton"},
        {"KwstIdxParam", "Uitvoeropties voor Index op Kwartierstaat in Tekstvorm", "druk OKButton"},
        {"KwidxHTMLParam", "Kwartierstaat Uitvoeropties voor Internet", "druk OKButton", false},
        {"KwstBereken", "Opbouwen Kwartierstaat", ""},
        {"KwstIdxTemp", "Kwartierstaat Schrijven", ""},
        {"ToonTekst", "Index op Kwartierstaat in Tekstvorm", "druk BackButton"},
    });
  }
};

TEST_F(KwstIdxKeten, GaatVanNummerTotScherm) {
  Speel(Weg().In("ToonTekst", "toon XY_label\ndruk BackButton", R"(= XY_label "pagina 1,1")"));
  EXPECT_EQ(gebleven_, 0);
  EXPECT_EQ(Verslag().rfind("Dam, van                      Gerrit  ", 0), 0U) << Verslag();
  EXPECT_NE(Verslag().find("\r\n\r\n\r\n          Copyright (2000) J. Jansen\r\n"
                           "          Gemaakt met LB77 voor Windows\r\n\r\n"),
            std::string::npos)
      << Verslag();
}

TEST_F(KwstIdxKeten, EenRijWordtOokOpSmalPapierNietAfgebroken) {
  std::string ini(kIni);
  ini.replace(ini.find("Tekstbr=78"), 10, "Tekstbr=40");
  SchrijfBytes(Map() / "LIJNBOOM.INI", ini);
  Speel(Weg());
  EXPECT_NE(Verslag().find("Gerrit                                                  1 K   1810-"),
            std::string::npos)
      << Verslag();
}

TEST_F(KwstIdxKeten, HetOptieschermOpentMetZijnStandaardEnDeBewaardeKeuzen) {
  std::string ini(kIni);
  ini.replace(ini.find("SoortUitv=1"), 11, "SoortUitv=2\r\nOokNummers=J\r\nVolgHerh=J\r\nHTML=J");
  SchrijfBytes(Map() / "LIJNBOOM.INI", ini);
  Speel(Weg()
            .In("KwstIdxParam", "toon\ndruk BackButton", R"(
      : KwstIdxParam "Uitvoeropties voor Index op Kwartierstaat in Tekstvorm"
      = NrProband "9"
      = VoorNmProband "Gerrit"
      = AchterNmProband "van Dam"
      = Periode "1810-    "
      = KwNrProband "1"
      = VanafKwartier "1"
      = MaxGen "80"
      = BroerZusBox "Met Broers en Zussen van de Proband"
      = OokNrsBox "Ja"
      = KwHerhaalBox "Ja"
      = InHTMLBox "Ja"
      = HTMLfileTekst "KWSTDATA.HTM"
      = CopyrightBox "Ja"
      = OokLB77Box "Ja"
      = TitelTekst "Kwartierstaat van Gerrit van Dam"
      = Inleiding1 ""
      = Inleiding2 ""
      = Inleiding3 ""
      = OKButton "&OK"
      = BackButton "&Terug"
      * KwNrProband
    )")
            .Tot("KwstIdxParam"));
  EXPECT_EQ(gebleven_, -1);
}

TEST_F(KwstIdxKeten, VeldenWordenGecontroleerdBijHetVerlaten) {
  Speel(Weg()
            .In("KwstIdxParam", R"(
      vul KwNrProband
      vul KwNrProband 1a
      vul KwNrProband 8
      vul VanafKwartier
      vul VanafKwartier x
      vul VanafKwartier 7
      vul VanafKwartier 8
      vul MaxGen
      vul MaxGen 81
      vul MaxGen 0
      druk BackButton
    )",
                R"~(
      ! uitroep "Het kwartiernummer van de proband is verplicht"
      ! uitroep "Onjuist kwartiernummer (geen getal)"
      ! uitroep "Het eerst uit te voeren kwartiernummer is verplicht"
      ! uitroep "Onjuist kwartiernummer (geen getal)"
      ! uitroep "Het eerst uit te voeren kwartiernummer mag niet kleiner zijn dan dat van de proband"
      ! uitroep "Het maximum aantal generaties is verplicht"
      ! uitroep "Onjuist aantal generaties (1-80)"
      ! uitroep "Onjuist aantal generaties (1-80)"
    )~")
            .Tot("KwstIdxParam"));
}

TEST_F(KwstIdxKeten, DeKeuzenBepalenDeIndex) {
  Speel(Weg().In("KwstIdxParam", R"(
      vul KwNrProband 3
      vul VanafKwartier 6
      vul MaxGen 3
      stel BroerZusBox #2
      stel OokNrsBox Ja
      stel CopyrightBox Nee
      stel OokLB77Box Nee
      druk OKButton
    )"));
  EXPECT_EQ(
      Verslag(),
      "Dam, van                      Dirk                                                    6"
      " M   [6]     1780-    \r\n"
      "Dam, van                      Femke                                                   7"
      " V   [8]         -1850\r\n"
      "Dam, van                      Eva                                                    6b"
      " BZ  [7]     1782-    \r\n\r\n\r\n\r\n");
}

TEST_F(KwstIdxKeten, BewaartPreciesZijnSleutels) {
  std::string ini(kIni);
  ini.replace(ini.find("SoortUitv=1"), 11, "SoortUitv=1\r\nOokOpm=N");
  SchrijfBytes(Map() / "LIJNBOOM.INI", ini);
  Speel(Weg().In("KwstIdxParam", R"(
      stel BroerZusBox #2
      stel OokNrsBox Ja
      stel KwHerhaalBox Ja
      stel CopyrightBox Nee
      stel OokLB77Box Nee
      vul HTMLfileTekst opa.htm
      druk OKButton
    )"));
  EXPECT_NE(Ini().find("[KWST]\r\nSoortUitv=3\r\nOokNummers=J\r\nOokOpm=N\r\nVolgHerh=J\r\n"
                       "HTML=N\r\nOokCopyRt=N\r\nOokLB77=N\r\nOokEmail=N\r\n"),
            std::string::npos)
      << Ini();
  EXPECT_EQ(Ini().find("opa.htm"), std::string::npos);
}

TEST_F(KwstIdxKeten, EenBewaardeWaardeDieGeenIsIsJaEnBijHTMLNee) {
  std::string ini(kIni);
  ini.replace(ini.find("SoortUitv=1"), 11,
              "SoortUitv=4\r\nOokNummers=x\r\nVolgHerh=x\r\nHTML=x\r\nOokCopyRt=x\r\nOokLB77=x");
  SchrijfBytes(Map() / "LIJNBOOM.INI", ini);
  Speel(Weg());
  EXPECT_NE(Ini().find("[KWST]\r\nSoortUitv=1\r\nOokNummers=J\r\nOokOpm=J\r\nVolgHerh=J\r\n"
                       "HTML=N\r\nOokCopyRt=J\r\nOokLB77=J\r\n"),
            std::string::npos)
      << Ini();
}

TEST_F(KwstIdxKeten, KeuzenWordenVergetenAlsDeInstellingenDatZeggen) {
  std::string ini(kIni);
  ini.replace(ini.find("OpslaanVelden=J"), 15, "OpslaanVelden=N");
  SchrijfBytes(Map() / "LIJNBOOM.INI", ini);
  Speel(Weg()
            .In("KwstIdxParam", "stel OokNrsBox Ja\nstel InHTMLBox Ja\ndruk OKButton")
            .In("KwidxHTMLParam", "vul EmailAdres jan@example.org\ndruk OKButton"));
  EXPECT_EQ(Ini(), ini);
}

TEST_F(KwstIdxKeten, InHTMLLeidenDeNummersNaarHetBestandVanDeTekst) {
  Speel(Weg()
            .In("KwstIdxParam", R"(
      stel InHTMLBox Ja
      vul HTMLfileTekst "  opa.htm "
      vul Inleiding1 Zie ook de tekst
      druk OKButton
    )")
            .In("KwidxHTMLParam", "toon\nvul EmailAdres jan@example.org\ndruk OKButton", R"~(
      : KwidxHTMLParam "Kwartierstaat Uitvoeropties voor Internet"
      = EmailAdres "naam@example.org"
      = EmailTekst "Schrijf me... (naam@example.org)"
      = HomePageURL "index.htm"
      = URLLabelTekst "Naar"
      = URLTekstTekst "mijn home page (http://www.example.org)"
      = OKButton "&OK"
      = BackButton "&Terug"
      * EmailAdres
    )~"));
  EXPECT_NE(Verslag().find("<H3>Zie ook de tekst</H3><BR>\r\n<TABLE>\r\n<TR>\r\n<TD>Dam, van "),
            std::string::npos);
  EXPECT_NE(Verslag().find("<A HREF=\"opa.htm#1\">1</A>"), std::string::npos);
  EXPECT_NE(Verslag().find("<A HREF=\"mailto:jan@example.org\">"), std::string::npos);
  EXPECT_TRUE(IniHeeft("HTML=J"));
  EXPECT_TRUE(IniHeeft("OokEmail=J"));
  EXPECT_TRUE(IniHeeft("OokHomePage=J"));
  EXPECT_TRUE(IniHeeft("OokHSKHome=N"));
  EXPECT_TRUE(IniHeeft("Email=jan@example.org"));
}

TEST_F(KwstIdxKeten, ElkeWegTerugStoptDeKeten) {
  for (const std::string_view weg : {"druk BackButton", "toets Escape", "sluit"}) {
    for (const std::string_view vorm : {"KwstIdxPrs", "KwstIdxParam"}) {
      gebleven_ = 0;
      Speel(Weg().In(vorm, weg).Tot(vorm));
      EXPECT_EQ(gebleven_, -1) << weg;
    }
    gebleven_ = 0;
    Speel(Weg()
              .In("KwstIdxParam", "stel InHTMLBox Ja\ndruk OKButton")
              .In("KwidxHTMLParam", weg)
              .Tot("KwidxHTMLParam"));
    EXPECT_EQ(gebleven_, -1) << weg;
    EXPECT_EQ(Verslag(), "") << weg;
  }
}

TEST_F(KwstIdxKeten, EenStopVanHetSchrijvenToontGeenIndex) {
  // The computation tests for it at each of its eight entries, the writing at each couple.
  Speel(Weg()
            .In("KwstIdxParam", "onderbreek 10\nantwoord Ja\ndruk OKButton")
            .In("KwstIdxTemp", "toon Kwartieren\ndruk BackButton", R"(
                ? vraag Ja/Nee "Opbouw Afbreken ?" -> Ja
                = Kwartieren "1"
              )")
            .Tot("KwstIdxTemp"));
  EXPECT_EQ(gebleven_, -1);
  EXPECT_NE(Verslag().find("Femke"), std::string::npos);
  EXPECT_EQ(Verslag().find("Adriaan"), std::string::npos);
}

TEST_F(KwstIdxKeten, EenIngetrokkenStopVanHetSchrijvenToontDeIndex) {
  Speel(Weg()
            .In("KwstIdxParam", "onderbreek 10\nantwoord Nee\ndruk OKButton")
            .Zegt("KwstIdxTemp", R"(? vraag Ja/Nee "Opbouw Afbreken ?" -> Nee)"));
  EXPECT_EQ(gebleven_, 0);
  EXPECT_NE(Verslag().find("Klaas"), std::string::npos);
}

TEST_F(KwstIdxKeten, EenLeesfoutVanHetSchrijvenToontGeenIndex) {
  Bouw().Relatie(familie_.proband, 0);
  Bouw().WijzigPersoon(familie_.proband, {{"Relatie2", "400"}});
  Speel(
      Weg()
          .Zegt(
              "KwstIdxTemp",
              R"(! stop "Relatierecord 400 kan niet worden gelezen. Er is geen verslag gemaakt.")")
          .Tot("KwstIdxTemp"));
  EXPECT_EQ(gebleven_, -1);
}

TEST_F(KwstIdxKeten, EenTijdelijkBestandDatNietKanStoptDeKeten) {
  std::filesystem::create_directories(Map() / "TEMP" / "KWSTINDX.TMP");
  const std::string pad = (Map() / "TEMP" / "KWSTINDX.TMP").string();
  Speel(Weg()
            .Zegt("KwstIdxTemp", "! stop \"Kan tijdelijk bestand " + pad + " niet openen\"")
            .Tot("KwstIdxTemp"));
  EXPECT_EQ(gebleven_, -1);
}

}  // namespace
}  // namespace lb77
