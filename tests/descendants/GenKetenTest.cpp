// The chain of forms of the descendant report, from prompt to viewer, by script.
#include <gtest/gtest.h>

#include "descendants/GenKeten.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

TEST_F(GenKeten, GaatVanNummerTotScherm) {
  Speel(Weg().In("ToonTekst", "toon XY_label\ndruk BackButton", "= XY_label \"pagina 1,1\""));
  EXPECT_EQ(gebleven_, 0);
  EXPECT_EQ(Verslag().rfind("Genealogie van Jan Kok\r\n\r\n      I.  Jan Kok", 0), 0U);
}

TEST_F(GenKeten, EenPaginaWordtAlsPaginaBewaard) {
  const std::string pad = (Map() / "kok.htm").string();
  Speel(Weg()
            .In("GenTxtParam", "stel InHTMLBox Ja\ndruk OKButton")
            .In("GenHTMLParam", "druk OKButton")
            .In("ToonTekst", "bestand " + pad + "\ndruk SaveButton\ndruk BackButton",
                "> opslaan \"Alle Bestanden (*.*)|*.*|Internetbestanden (*.htm)|*.htm|"
                "Internetbestanden (*.html)|*.html\" -> \"" +
                    pad + "\"\n! info \"De tekst is opgeslagen.\""));
  EXPECT_EQ(LeesBytes(pad), Verslag());
}

TEST_F(GenKeten, DePromptVraagtOmDeStamouder) {
  Speel(Weg()
            .In("GenTxtPrs", "vul RecordNr 4\ntoon\ntoets Escape", R"(
              : GenTxtPrs "Nummer Stamouder"
              = VraagLabel "Geef het Persoonsnummer van de Stamouder"
              = RecordNr "4"
              = VoorNm "Jan"
              = AchterNm "Kok"
              = OKButton "&OK"
              = ZoekButton "&Zoek Persoon"
              = BackButton "&Terug"
            )")
            .Tot("GenTxtPrs"));
}

// Each way out of each form before the work begins.
TEST_F(GenKeten, ElkeWegTerugStoptDeKeten) {
  for (const std::string_view weg : {"druk BackButton", "toets Escape", "sluit"}) {
    for (const std::string_view vorm : {"GenTxtPrs", "GenTxtParam"}) {
      gebleven_ = 0;
      Speel(Weg().In(vorm, weg).Tot(vorm));
      EXPECT_EQ(gebleven_, -1) << weg;
    }
    gebleven_ = 0;
    Speel(Weg()
              .In("GenTxtParam", "stel UitsluitBox Ja\nstel InHTMLBox Ja\ndruk OKButton")
              .In("GenTxtUitsluit", weg)
              .Tot("GenTxtUitsluit"));
    EXPECT_EQ(gebleven_, -1) << weg;
    gebleven_ = 0;
    Speel(Weg()
              .In("GenTxtParam", "stel UitsluitBox Nee\nstel InHTMLBox Ja\ndruk OKButton")
              .In("GenHTMLParam", weg)
              .Tot("GenHTMLParam"));
    EXPECT_EQ(gebleven_, -1) << weg;
    EXPECT_EQ(Verslag(), "") << weg;
    SchrijfBytes(Map() / "LIJNBOOM.INI", kIni);
  }
}

TEST_F(GenKeten, EenStopVanDeOpbouwWordtBevestigdEnLaatHetFormulierOpen) {
  Speel(Weg()
            .In("GenTxtParam", "onderbreek 2\nantwoord Ja\ndruk OKButton")
            .In("GenBereken", "toon PersoonsNr\ntoon Hoofdpersonen\ndruk BackButton", R"(
                ? vraag Ja/Nee "Opbouw Afbreken ?" -> Ja
                = PersoonsNr "4"
                = Hoofdpersonen "5"
              )")
            .Tot("GenBereken"));
  EXPECT_EQ(gebleven_, -1);
  EXPECT_EQ(Verslag(), "");
}

TEST_F(GenKeten, EenIngetrokkenStopGaatVerder) {
  Speel(Weg()
            .In("GenTxtParam", "onderbreek 2\nantwoord Nee\ndruk OKButton")
            .Zegt("GenBereken", R"(? vraag Ja/Nee "Opbouw Afbreken ?" -> Nee)"));
  EXPECT_EQ(gebleven_, 0);
}

TEST_F(GenKeten, EenStopVanHetSchrijvenToontGeenVerslag) {
  // The computation tests for it at each of its ten entries, the writing at each but the first.
  for (const std::string_view weg : {"druk OKButton", "druk BackButton", "toets Escape", "sluit"}) {
    Speel(Weg()
              .In("GenTxtParam", "onderbreek 12\nantwoord Ja\ndruk OKButton")
              .In("GenMaakTemp", "toon Hoofdpersonen\ntoon PersoonsNr\n" + std::string(weg), R"(
                  ? vraag Ja/Nee "Opbouw Afbreken ?" -> Ja
                  = Hoofdpersonen "2"
                  = PersoonsNr "7"
                )")
              .Tot("GenMaakTemp"));
    EXPECT_EQ(gebleven_, -1) << weg;
    EXPECT_TRUE(VerslagHeeft("    IIa.  "));
    EXPECT_FALSE(VerslagHeeft("   IIIa.  "));
  }
}

TEST_F(GenKeten, EenOpbouwDieMisluktZegtWatOnleesbaarIsEnSluit) {
  Bouw().WijzigPersoon(familie_.zoon, {{"Relatie1", "99"}});
  Speel(
      Weg()
          .Zegt("GenBereken",
                R"(! stop "Relatierecord 99 kan niet worden gelezen. Er is geen verslag gemaakt.")")
          .Tot("GenBereken"));
  EXPECT_EQ(gebleven_, -1);
}

TEST_F(GenKeten, EenLeesfoutVanHetSchrijvenToontGeenVerslag) {
  const auto relatie = Bouw().Relatie(familie_.stamouder, 0);
  Bouw().WijzigRelatie(relatie, {{"VrouwNr", "500"}});
  Speel(
      Weg()
          .Zegt(
              "GenMaakTemp",
              R"(! stop "Persoonsrecord 500 kan niet worden gelezen. Er is geen verslag gemaakt.")")
          .Tot("GenMaakTemp"));
  EXPECT_EQ(gebleven_, -1);
}

TEST_F(GenKeten, EenTijdelijkBestandDatNietKanStoptDeKeten) {
  std::filesystem::create_directories(Map() / "TEMP" / "GEN_DATA.TMP");
  const std::string pad = (Map() / "TEMP" / "GEN_DATA.TMP").string();
  Speel(Weg()
            .Zegt("GenMaakTemp", "! stop \"Kan tijdelijk bestand " + pad + " niet openen\"")
            .Tot("GenMaakTemp"));
  EXPECT_EQ(gebleven_, -1);
}

TEST_F(GenKeten, EenGeneratieIsDeStamouderEnWordtGetoond) {
  Speel(Weg().In("GenTxtParam", "vul MaxGen 1\ndruk OKButton").In("ToonTekst", "sluit"));
  EXPECT_EQ(gebleven_, 0);
  EXPECT_TRUE(VerslagHeeft("1. Piet Kok"));
  EXPECT_FALSE(VerslagHeeft("volgt"));
  EXPECT_FALSE(VerslagHeeft("IIa"));
}

TEST_F(GenKeten, NummersEnDeOpmerkingenVanDitVerslagStaanErin) {
  Speel(Weg().In("GenTxtParam", "stel OokNrsBox Ja\nstel OokOpmBox Ja\ndruk OKButton"));
  EXPECT_TRUE(VerslagHeeft("      I.  Jan Kok [4], geb."));
  EXPECT_TRUE(VerslagHeeft("Hij had een herberg"));
  EXPECT_FALSE(VerslagHeeft("Niet in dit verslag."));
  EXPECT_FALSE(VerslagHeeft("Alleen in HTML."));
}

TEST_F(GenKeten, DeInstellingenZeggenWatErVanEenHuwelijkVerteldWordt) {
  const auto jan = Bouw().Man("Jan", "Bos");
  Bouw().Relatie(
      jan, Bouw().Vrouw("Anna", "Vis"), {},
      {{"OtrDatum", "01-03-1725"}, {"WHuwDatum", "20-03-1725"}, {"KHuwDatum", "21-04-1725"}});
  for (const bool kerk : {false, true}) {
    ZetIni("DatumForm=0", kerk ? "DatumForm=0\r\nHuwData=1" : "DatumForm=0\r\nHuwData=0");
    Speel(Weg().In("GenTxtPrs", "vul RecordNr " + GetalTekst(jan) + "\ndruk OKButton"));
    EXPECT_EQ(VerslagHeeft("kerk"), kerk) << Verslag();
    EXPECT_EQ(VerslagHeeft("ondertr."), !kerk) << Verslag();
  }
}

TEST_F(GenKeten, EenVolleTabelWordtZonderBoodschapGeschreven) {
  const auto kring = Bouw().Man("Kring", "Loop");
  Bouw().Relatie(kring, 0, {kring, kring});
  Speel(Weg()
            .In("GenTxtPrs", "vul RecordNr " + GetalTekst(kring) + "\ndruk OKButton")
            .In("GenTxtParam", "stel PrsHerhaalBox Ja\ndruk OKButton"));
  EXPECT_EQ(gebleven_, 0);
  EXPECT_TRUE(VerslagHeeft("  XIako.  "));
}

TEST_F(GenKeten, DeUitgeslotenTakkenWordenNietGevolgd) {
  Speel(Weg()
            .In("GenTxtParam", "stel UitsluitBox Ja\ndruk OKButton")
            .In("GenTxtUitsluit", "vul RecordNrVolgNiet(3) 7\ndruk OKButton"));
  EXPECT_EQ(gebleven_, 0);
  EXPECT_TRUE(VerslagHeeft("    IIa.  (zn. van I) Piet Kok"));
  EXPECT_TRUE(
      VerslagHeeft("  1. Jan Kok, geb. 1755, tr./sch. 1779/1785 Neeltje Kok, geb. 1756\r\n"));
  EXPECT_TRUE(VerslagHeeft("   IIIa.  (dr. van IIb) Neeltje Kok"));
  // Who was left out is asked for anew.
  Speel(Weg()
            .In("GenTxtUitsluit", "toon RecordNrVolgNiet(3)\ndruk BackButton",
                "= RecordNrVolgNiet(3) \"\"")
            .Tot("GenTxtUitsluit"));
}

}  // namespace
}  // namespace lb77
