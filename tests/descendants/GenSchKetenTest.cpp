// The chains of forms of the descendant index and the descendant chart, by script.
#include <gtest/gtest.h>

#include "descendants/GenSchKeten.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

TEST_F(GenIdxKeten, GaatVanNummerTotScherm) {
  Speel(Weg().In("ToonTekst", "toon XY_label\ndruk BackButton", "= XY_label \"pagina 1,1\""));
  EXPECT_EQ(gebleven_, 0);
  EXPECT_TRUE(VerslagHeeft("Genealogie van Jan Kok\r\nKok  "));
  EXPECT_TRUE(VerslagHeeft(" IVb = IVa\r\n"));
}

TEST_F(GenIdxKeten, EenRijIsNooitTeBreed) {
  ZetIni("Tekstbr=78", "Tekstbr=40");
  Speel(Weg());
  EXPECT_TRUE(VerslagHeeft("\r\nKok" + std::string(24, ' ') + "Jan" + std::string(28, ' ') +
                           "1700-1770 I\r\n"));
}

TEST_F(GenIdxKeten, GaatInHTMLLangsDeKoppelingen) {
  Speel(Weg()
            .In("GenIdxParam", "stel InHTMLBox Ja\nvul HTMLfileTekst  KOK.HTM\ndruk OKButton")
            .In("GenHTMLParam", "vul EmailAdres ik@example.org\ndruk OKButton"));
  EXPECT_TRUE(VerslagHeeft("<A HREF=\"KOK.HTM#IIa\">IIa</A>"));
  EXPECT_TRUE(VerslagHeeft("mailto:ik@example.org"));
}

TEST_F(GenIdxKeten, SluitTakkenUit) {
  Speel(Weg()
            .In("GenIdxParam", "stel UitsluitBox Ja\ndruk OKButton")
            .In("GenIdxUitsluit", "vul RecordNrVolgNiet(15) 4\ndruk OKButton"));
  EXPECT_FALSE(VerslagHeeft("IIa"));
}

// Each way out of each form before the work begins.
TEST_F(GenIdxKeten, ElkeWegTerugStoptDeKeten) {
  for (const std::string_view weg : {"druk BackButton", "toets Escape", "sluit"}) {
    Speel(Weg().In("GenIdxParam", weg).Tot("GenIdxParam"));
    EXPECT_EQ(gebleven_, -1) << weg;
    gebleven_ = 0;
    Speel(Weg()
              .In("GenIdxParam", "stel UitsluitBox Ja\ndruk OKButton")
              .In("GenIdxUitsluit", weg)
              .Tot("GenIdxUitsluit"));
    EXPECT_EQ(gebleven_, -1) << weg;
    SchrijfBytes(Map() / "LIJNBOOM.INI", kIni);
  }
  EXPECT_EQ(Verslag(), "");
}

TEST_F(GenIdxKeten, EenStopVanHetSchrijvenToontGeenVerslag) {
  // The computation tests for it at each of its ten entries.
  Speel(Weg()
            .In("GenIdxParam", "onderbreek 12\nantwoord Ja\ndruk OKButton")
            .In("GenMaakIdxTemp", "toon Hoofdpersonen\ntoon PersoonsNr\ndruk BackButton", R"(
                ? vraag Ja/Nee "Opbouw Afbreken ?" -> Ja
                = Hoofdpersonen "1"
                = PersoonsNr "4"
              )")
            .Tot("GenMaakIdxTemp"));
  EXPECT_EQ(gebleven_, -1);
}

TEST_F(GenIdxKeten, EenTijdelijkBestandDatNietKanStoptDeKeten) {
  std::filesystem::create_directories(Map() / "TEMP" / "GEN_INDX.TMP");
  const std::string pad = (Map() / "TEMP" / "GEN_INDX.TMP").string();
  Speel(Weg()
            .Zegt("GenMaakIdxTemp", "! stop \"Kan tijdelijk bestand " + pad + " niet openen\"")
            .Tot("GenMaakIdxTemp"));
  EXPECT_EQ(gebleven_, -1);
}

TEST_F(GenSchKeten, GaatVanNummerTotScherm) {
  Speel(Weg().In("ToonTekst", "toon XY_label\ndruk BackButton", "= XY_label \"pagina 1,1\""));
  EXPECT_EQ(gebleven_, 0);
  EXPECT_TRUE(VerslagHeeft("Genealogie van Jan Kok\r\n\r\n"));
  EXPECT_TRUE(VerslagHeeft("Jan Kok---"));
}

TEST_F(GenSchKeten, GaatInHTMLLangsDeKoppelingen) {
  Speel(Weg()
            .In("GenSchParam", "stel InHTMLBox Ja\nstel OokVNrsBox Ja\ndruk OKButton")
            .In("GenHTMLParam", "druk OKButton"));
  EXPECT_TRUE(VerslagHeeft("<PRE>\r\n"));
  EXPECT_TRUE(VerslagHeeft("<A NAME=\"Va\">Va</A>"));
}

TEST_F(GenSchKeten, SluitTakkenUit) {
  Speel(Weg()
            .In("GenSchParam", "stel UitsluitBox Ja\ndruk OKButton")
            .In("GenSchUitsluit", "vul RecordNrVolgNiet(1) 4\ndruk OKButton"));
  EXPECT_FALSE(VerslagHeeft("Jan Kok-"));
}

TEST_F(GenSchKeten, EenStamouderZonderKinderenHeeftEenRegel) {
  const auto nr = Bouw().Man("Jan Pieter", "Bos");
  Speel(Weg()
            .In("GenSchPrs", "vul RecordNr " + GetalTekst(nr) + "\ndruk OKButton")
            .In("GenSchParam", "stel OokLB77Box Nee\nstel CopyrightBox Nee\ndruk OKButton"));
  EXPECT_EQ(Verslag(), "Genealogie van Jan Pieter Bos\r\n\r\nJan Bos\r\n\r\n");
}

// Each way out of each form before the work begins.
TEST_F(GenSchKeten, ElkeWegTerugStoptDeKeten) {
  for (const std::string_view weg : {"druk BackButton", "toets Escape", "sluit"}) {
    Speel(Weg().In("GenSchParam", weg).Tot("GenSchParam"));
    EXPECT_EQ(gebleven_, -1) << weg;
    gebleven_ = 0;
    Speel(Weg()
              .In("GenSchParam", "stel UitsluitBox Ja\ndruk OKButton")
              .In("GenSchUitsluit", weg)
              .Tot("GenSchUitsluit"));
    EXPECT_EQ(gebleven_, -1) << weg;
    gebleven_ = 0;
    Speel(Weg()
              .In("GenSchParam", "stel UitsluitBox Nee\nstel InHTMLBox Ja\ndruk OKButton")
              .In("GenHTMLParam", weg)
              .Tot("GenHTMLParam"));
    EXPECT_EQ(gebleven_, -1) << weg;
    Speel(Weg().In("GenSchParam", "stel InHTMLBox Nee\ndruk BackButton").Tot("GenSchParam"));
    SchrijfBytes(Map() / "LIJNBOOM.INI", kIni);
  }
  EXPECT_EQ(Verslag(), "");
}

TEST_F(GenSchKeten, EenStopVanHetPlaatsenLaatHetFormulierOpen) {
  for (const std::string_view weg : {"druk OKButton", "druk BackButton", "toets Escape"}) {
    Speel(Weg()
              .In("GenSchParam", "onderbreek 13\nantwoord Ja\ndruk OKButton")
              .In("GenSchBlok", "toon PersoonsNr\n" + std::string(weg), R"(
                  ? vraag Ja/Nee "Opbouw Afbreken ?" -> Ja
                  = PersoonsNr "7"
                )")
              .Tot("GenSchBlok"));
    EXPECT_EQ(gebleven_, -1);
  }
  EXPECT_EQ(Verslag(), "");
}

TEST_F(GenSchKeten, EenIngetrokkenStopGaatVerder) {
  Speel(Weg()
            .In("GenSchParam", "onderbreek 13\nantwoord Nee\ndruk OKButton")
            .Zegt("GenSchBlok", R"(? vraag Ja/Nee "Opbouw Afbreken ?" -> Nee)"));
  EXPECT_EQ(gebleven_, 0);
}

TEST_F(GenSchKeten, EenStopVanHetTekenenToontGeenVerslag) {
  // Ten tests of the computation, ten of the positions; then one a line.
  Speel(Weg()
            .In("GenSchParam", "onderbreek 22\nantwoord Ja\ndruk OKButton")
            .In("GenSchTemp", "toon Personen\ntoon PersoonsNr\ndruk BackButton", R"(
                ? vraag Ja/Nee "Opbouw Afbreken ?" -> Ja
                = Personen "0"
                = PersoonsNr "7"
              )")
            .Tot("GenSchTemp"));
  EXPECT_EQ(gebleven_, -1);
  EXPECT_FALSE(VerslagHeeft("Maria"));
}

TEST_F(GenSchKeten, EenLeesfoutVanHetTekenenToontGeenVerslag) {
  Bouw().WijzigRelatie(Bouw().Relatie(familie_.stamouder, 0), {{"VrouwNr", "500"}});
  Speel(
      Weg()
          .Zegt(
              "GenSchTemp",
              R"(! stop "Persoonsrecord 500 kan niet worden gelezen. Er is geen verslag gemaakt.")")
          .Tot("GenSchTemp"));
  EXPECT_EQ(gebleven_, -1);
}

TEST_F(GenSchKeten, EenTijdelijkBestandDatNietKanStoptDeKeten) {
  std::filesystem::create_directories(Map() / "TEMP" / "GEN_DATA.TMP");
  const std::string pad = (Map() / "TEMP" / "GEN_DATA.TMP").string();
  Speel(Weg()
            .Zegt("GenSchTemp", "! stop \"Kan tijdelijk bestand " + pad + " niet openen\"")
            .Tot("GenSchTemp"));
  EXPECT_EQ(gebleven_, -1);
}

TEST_F(GenSchKeten, EenVolleTabelWordtZonderBoodschapGetekend) {
  const auto kring = Bouw().Man("Kring", "Loop");
  Bouw().Relatie(kring, 0, {kring, kring});
  Speel(Weg()
            .In("GenSchPrs", "vul RecordNr " + GetalTekst(kring) + "\ndruk OKButton")
            .In("GenSchParam", "stel PrsHerhaalBox Ja\nstel OokVNrsBox Ja\ndruk OKButton"));
  EXPECT_EQ(gebleven_, 0);
  EXPECT_TRUE(VerslagHeeft("XIako"));
}

}  // namespace
}  // namespace lb77
