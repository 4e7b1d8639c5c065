// The chain of forms of the ancestor report, from prompt to viewer, by script.
#include <gtest/gtest.h>

#include <utility>

#include "ancestors/KwstKeten.h"
#include "app/Start.h"
#include "steun/Kijker.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

TEST_F(KwstKeten, GaatVanNummerTotScherm) {
  Speel(R"(
      vul RecordNr 9
      toon
      druk OKButton
      druk OKButton
      toon XY_label
      druk BackButton
    )",
        R"(
      + KwstTxtPrs "Nummer Proband"
      : KwstTxtPrs "Nummer Proband"
      = VraagLabel "Geef het Persoonsnummer van de Proband"
      = RecordNr "9"
      = VoorNm "Gerrit"
      = AchterNm "van Dam"
      = OKButton "&OK"
      = ZoekButton "&Zoek Persoon"
      = BackButton "&Terug"
      + KwstTxtParam "Kwartierstaat Uitvoeropties"
      - KwstTxtParam
      + KwstBereken "Opbouwen Kwartierstaat"
      - KwstBereken
      + KwstMaakTemp "Kwartierstaat Schrijven"
      - KwstMaakTemp
      + ToonTekst "Kwartierstaat in Tekstvorm"
      = XY_label "pagina 1,1"
      - ToonTekst
      - KwstTxtPrs
    )");
  EXPECT_EQ(gebleven_, 0);
  EXPECT_EQ(Verslag().rfind("Generatie I\r\n\r\n     1  Gerrit van Dam", 0), 0U);
}

TEST_F(KwstKeten, DeVraagVerdwijntVoorDeOpbouw) {
  const std::pair<const KwstPrsSoort*, std::string_view> ketens[] = {
      {&kKwstTxtPrs, "+KwstTxtParam -KwstBereken -KwstMaakTemp -ToonTekst "},
      {&kKwstIdxPrs, "+KwstIdxParam -KwstBereken -KwstIdxTemp -ToonTekst "},
      {&kKwstSchPrs, "+KwstSchParam -KwstBereken -KwstSchTemp -ToonTekst "},
      {&kKwstBldPrs, "-KwstBereken -KwstBladen "}};
  for (const auto& [soort, gezien] : ketens) {
    Kijker kijker("9");
    Sessie([&](Hoofdmodule& hoofd) {
      ASSERT_TRUE(Start(hoofd));
      KwstPrs prompt(*soort, hoofd);
      hoofd.gesprek.ToonModaal(prompt);
    })(kijker);
    EXPECT_EQ(kijker.Gezien(), gezien);
  }
}

TEST_F(KwstKeten, EenStopWordtBevestigdEnLaatHetFormulierOpen) {
  Speel(Weg()
            .In("KwstTxtParam", "onderbreek 2\nantwoord Ja\ndruk OKButton")
            .In("KwstBereken", "toon PersoonsNr\ntoon Kwartieren\ndruk BackButton", R"(
                ? vraag Ja/Nee "Opbouw Afbreken ?" -> Ja
                = PersoonsNr "9"
                = Kwartieren "3"
              )")
            .Tot("KwstBereken"));
  EXPECT_EQ(gebleven_, -1);
}

TEST_F(KwstKeten, EenIngetrokkenStopGaatVerder) {
  Speel(Weg()
            .In("KwstTxtParam", "onderbreek 2\nonderbreek 1\nantwoord Nee Ja\ndruk OKButton")
            .In("KwstBereken", "druk OKButton", R"(
                ? vraag Ja/Nee "Opbouw Afbreken ?" -> Nee
                ? vraag Ja/Nee "Opbouw Afbreken ?" -> Ja
              )")
            .Tot("KwstBereken"));
  EXPECT_EQ(gebleven_, -1);
}

TEST_F(KwstKeten, EenStopVanHetSchrijvenToontGeenVerslag) {
  // The computation tests for it at each of its eight entries, the writing at each couple.
  for (const std::string_view weg : {"druk OKButton", "druk BackButton", "toets Escape", "sluit"}) {
    Speel(Weg()
              .In("KwstTxtParam", "onderbreek 10\nantwoord Ja\ndruk OKButton")
              .In("KwstMaakTemp", "toon Kwartieren\n" + std::string(weg), R"(
                  ? vraag Ja/Nee "Opbouw Afbreken ?" -> Ja
                  = Kwartieren "1"
                )")
              .Tot("KwstMaakTemp"));
    EXPECT_EQ(gebleven_, -1) << weg;
    EXPECT_NE(Verslag().find("Femke"), std::string::npos);
    EXPECT_EQ(Verslag().find("Adriaan"), std::string::npos);
  }
}

TEST_F(KwstKeten, EenIngetrokkenStopVanHetSchrijvenToontHetVerslag) {
  Speel(Weg()
            .In("KwstTxtParam", "onderbreek 10\nantwoord Nee\ndruk OKButton")
            .Zegt("KwstMaakTemp", R"(? vraag Ja/Nee "Opbouw Afbreken ?" -> Nee)"));
  EXPECT_EQ(gebleven_, 0);
  EXPECT_NE(Verslag().find("Klaas Cool"), std::string::npos);
}

// Each way out of each form before the work begins.
TEST_F(KwstKeten, ElkeWegTerugStoptDeKeten) {
  for (const std::string_view weg : {"druk BackButton", "toets Escape", "sluit"}) {
    for (const std::string_view vorm : {"KwstTxtPrs", "KwstTxtParam"}) {
      gebleven_ = 0;
      Speel(Weg().In(vorm, weg).Tot(vorm));
      EXPECT_EQ(gebleven_, -1) << weg;
    }
    gebleven_ = 0;
    Speel(Weg()
              .In("KwstTxtParam", "stel InHTMLBox Ja\ndruk OKButton")
              .In("KwHTMLParam", weg)
              .Tot("KwHTMLParam"));
    EXPECT_EQ(gebleven_, -1) << weg;
    EXPECT_EQ(Verslag(), "") << weg;
  }
}

TEST_F(KwstKeten, EenBerekeningDieMisluktZegtWatOnleesbaarIsEnSluit) {
  Bouw().WijzigPersoon(familie_.vader, {{"Ouders", "99"}});
  Speel(
      Weg()
          .Zegt("KwstBereken",
                R"(! stop "Relatierecord 99 kan niet worden gelezen. Er is geen verslag gemaakt.")")
          .Tot("KwstBereken"));
  EXPECT_EQ(gebleven_, -1);
}

TEST_F(KwstKeten, EenLeesfoutVanHetSchrijvenToontGeenVerslag) {
  const auto relatie = Bouw().Relatie(familie_.proband, 0);
  Bouw().WijzigRelatie(relatie, {{"VrouwNr", "500"}});
  Speel(
      Weg()
          .Zegt(
              "KwstMaakTemp",
              R"(! stop "Persoonsrecord 500 kan niet worden gelezen. Er is geen verslag gemaakt.")")
          .Tot("KwstMaakTemp"));
  EXPECT_EQ(gebleven_, -1);
}

TEST_F(KwstKeten, EenGeneratieIsDeProbandEnWordtGetoond) {
  Speel(Weg().In("KwstTxtParam", "vul MaxGen 1\ndruk OKButton").In("ToonTekst", "sluit"));
  EXPECT_EQ(gebleven_, 0);
  EXPECT_EQ(Verslag().find("Generatie II"), std::string::npos);
}

TEST_F(KwstKeten, EenTijdelijkBestandDatNietKanStoptDeKeten) {
  std::filesystem::create_directories(Map() / "TEMP" / "KWSTDATA.TMP");
  const std::string pad = (Map() / "TEMP" / "KWSTDATA.TMP").string();
  Speel(Weg()
            .Zegt("KwstMaakTemp", "! stop \"Kan tijdelijk bestand " + pad + " niet openen\"")
            .Tot("KwstMaakTemp"));
  EXPECT_EQ(gebleven_, -1);
}

TEST_F(KwstKeten, EenVolleTabelWordtGemeldEnGeschreven) {
  const auto kind = Bouw().Man("Kring", "Loop");
  const auto relatie = Bouw().Relatie(kind, 0, {kind});
  const std::string nummer = GetalTekst(kind);
  Bouw().WijzigRelatie(relatie, {{"VrouwNr", nummer}});
  Speel("vul RecordNr " + nummer + R"(
      druk OKButton
      stel KwHerhaalBox Ja
      druk OKButton
      druk BackButton
    )",
        R"~(
      + KwstTxtPrs "Nummer Proband"
      + KwstTxtParam "Kwartierstaat Uitvoeropties"
      - KwstTxtParam
      + KwstBereken "Opbouwen Kwartierstaat"
      ! uitroep "Maximum aantal kwartieren (10000) bereikt..."
      - KwstBereken
      + KwstMaakTemp "Kwartierstaat Schrijven"
      - KwstMaakTemp
      + ToonTekst "Kwartierstaat in Tekstvorm"
      - ToonTekst
      - KwstTxtPrs
    )~");
}

}  // namespace
}  // namespace lb77
