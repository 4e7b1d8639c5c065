// The chain of forms of the ancestor report, from prompt to viewer, by script.
#include <gtest/gtest.h>

#include "ancestors/KwstKeten.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

TEST_F(KwstKeten, GoesFromNumberToViewer) {
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

TEST_F(KwstKeten, AStopIsConfirmedAndLeavesTheFormOpen) {
  Speel(R"(
      vul RecordNr 9
      druk OKButton
      onderbreek 2
      antwoord Ja
      druk OKButton
      toon PersoonsNr
      toon Kwartieren
      druk BackButton
    )",
        R"(
      + KwstTxtPrs "Nummer Proband"
      + KwstTxtParam "Kwartierstaat Uitvoeropties"
      - KwstTxtParam
      + KwstBereken "Opbouwen Kwartierstaat"
      ? vraag Ja/Nee "Opbouw Afbreken ?" -> Ja
      = PersoonsNr "9"
      = Kwartieren "3"
      - KwstBereken
      - KwstTxtPrs
    )");
  EXPECT_EQ(gebleven_, -1);
}

TEST_F(KwstKeten, AStopThatIsTakenBackGoesOn) {
  Speel(R"(
      vul RecordNr 9
      druk OKButton
      onderbreek 2
      onderbreek 1
      antwoord Nee Ja
      druk OKButton
      druk OKButton
    )",
        R"(
      + KwstTxtPrs "Nummer Proband"
      + KwstTxtParam "Kwartierstaat Uitvoeropties"
      - KwstTxtParam
      + KwstBereken "Opbouwen Kwartierstaat"
      ? vraag Ja/Nee "Opbouw Afbreken ?" -> Nee
      ? vraag Ja/Nee "Opbouw Afbreken ?" -> Ja
      - KwstBereken
      - KwstTxtPrs
    )");
}

TEST_F(KwstKeten, ATemporaryFileThatCannotBeMadeStopsTheChain) {
  std::filesystem::create_directories(Map() / "TEMP" / "KWSTDATA.TMP");
  const std::string pad = (Map() / "TEMP" / "KWSTDATA.TMP").string();
  const std::string melding = "! stop \"Kan tijdelijk bestand " + pad + " niet openen\"\n";
  Speel(R"(
      vul RecordNr 9
      druk OKButton
      druk OKButton
    )",
        R"(
      + KwstTxtPrs "Nummer Proband"
      + KwstTxtParam "Kwartierstaat Uitvoeropties"
      - KwstTxtParam
      + KwstBereken "Opbouwen Kwartierstaat"
      - KwstBereken
      + KwstMaakTemp "Kwartierstaat Schrijven"
      )" + melding +
            R"(
      - KwstMaakTemp
      - KwstTxtPrs
    )");
  EXPECT_EQ(gebleven_, -1);
}

TEST_F(KwstKeten, AFullTableIsToldAndWritten) {
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
