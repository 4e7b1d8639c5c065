// The chain of forms of the ancestor report, from prompt to viewer, by script.
#include <gtest/gtest.h>

#include "ancestors/KwstFamilie.h"
#include "ancestors/KwstTxtPrs.h"
#include "app/Start.h"
#include "steun/FamilieToets.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

constexpr std::string_view kIni =
    "[Systeem]\r\nSet=PROEF\r\nOpslaanVelden=J\r\n[Gebruiker]\r\nVoornaam=J.\r\nNaam=Jansen\r\n"
    "[Genealogie]\r\nDatumForm=0\r\n[KWST]\r\nSoortUitv=1\r\n[Printer]\r\nTekstbr=78\r\n";

class KwstKeten : public FamilieToets {
 protected:
  KwstKeten() {
    familie_ = BouwKwstFamilie(Bouw());
    SchrijfBytes(Map() / "LIJNBOOM.INI", kIni);
  }
  void Speel(std::string_view draaiboek, std::string_view verslag,
             const Plek& plek = Plek::current()) {
    const Taak taak = [this](Hoofdmodule& hoofd) {
      ASSERT_TRUE(Start(hoofd));
      hoofd.schrijfwijze.DatumScheider = '-';
      KwstTxtPrs prompt(hoofd);
      hoofd.gesprek.ToonModaal(prompt);
      gebleven_ = hoofd.volgers.HuidigPersoonNr;
    };
    Verwacht(draaiboek, taak, verslag, plek);
  }
  [[nodiscard]] std::string Ini() const { return LeesBytes(Map() / "LIJNBOOM.INI"); }
  [[nodiscard]] bool IniHeeft(std::string_view regel) const {
    return Ini().find("\r\n" + std::string(regel) + "\r\n") != std::string::npos;
  }
  [[nodiscard]] std::string Verslag() const { return LeesBytes(Map() / "TEMP" / "KWSTDATA.TMP"); }

  KwstFamilie familie_;  // the proband is person 9
  std::int16_t gebleven_ = 0;
};

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

TEST_F(KwstKeten, TheParameterDialogOpensWithItsDefaultsAndTheSavedChoices) {
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

TEST_F(KwstKeten, FieldsAreCheckedWhenTheyAreLeft) {
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

TEST_F(KwstKeten, ChoicesAreKeptInTheSettings) {
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

TEST_F(KwstKeten, ChoicesAreForgottenWhenTheSettingsSaySo) {
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

TEST_F(KwstKeten, TheHTMLDialogShowsSamplesAndKeepsWhatIsFilledIn) {
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

TEST_F(KwstKeten, BackInTheHTMLDialogStopsTheChain) {
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

TEST_F(KwstKeten, AnEmptyPromptAsksForANumber) {
  Speel(R"(
      druk OKButton
      toon
      toets Escape
    )",
        R"(
      + KwstTxtPrs "Nummer Proband"
      ! uitroep "Geen Persoonsnummer opgegeven"
      : KwstTxtPrs "Nummer Proband"
      = VraagLabel "Geef het Persoonsnummer van de Proband"
      = RecordNr ""
      = VoorNm ""
      = AchterNm ""
      = OKButton "&OK"
      = ZoekButton "&Zoek Persoon"
      = BackButton "&Terug"
      * RecordNr
      - KwstTxtPrs
    )");
}

TEST_F(KwstKeten, ANameAloneIsSearchedFor) {
  Speel(R"(
      vul VoorNm Ger*
      druk OKButton
      druk JaButton
      druk BackButton
    )",
        R"(
      + KwstTxtPrs "Nummer Proband"
      + OKPersoon "Zoek Persoon op Naam"
      - OKPersoon
      + KwstTxtParam "Kwartierstaat Uitvoeropties"
      - KwstTxtParam
      - KwstTxtPrs
    )");
}

TEST_F(KwstKeten, AnUnknownNumberShowsQuestionMarksAndEndsInTheComputation) {
  Speel(R"(
      vul RecordNr 500
      toon VoorNm
      toon AchterNm
      druk OKButton
      druk OKButton
      toon GeduldLabel
      druk OKButton
    )",
        R"(
      + KwstTxtPrs "Nummer Proband"
      = VoorNm "?????"
      = AchterNm "?????"
      + KwstTxtParam "Kwartierstaat Uitvoeropties"
      - KwstTxtParam
      + KwstBereken "Opbouwen Kwartierstaat"
      = GeduldLabel "Even geduld a.u.b."
      - KwstBereken
      - KwstTxtPrs
    )");
  EXPECT_EQ(gebleven_, -1);
}

TEST_F(KwstKeten, ATooHighNumberIsRefused) {
  Speel(R"(
      vul RecordNr 40000
      toets Escape
    )",
        R"(
      + KwstTxtPrs "Nummer Proband"
      ! stop "Het maximum van 32767 records is bereikt"
      - KwstTxtPrs
    )");
}

TEST_F(KwstKeten, TheSearchButtonAndF2FillTheNumber) {
  Speel(R"(
      druk ZoekButton
      druk RecordNrPrs(8)
      toon RecordNr
      toets RecordNr F2
      druk BackButton
      toon VoorNm
      toets Escape
    )",
        R"(
      + KwstTxtPrs "Nummer Proband"
      + ZoekPrs "Zoek Persoon"
      - ZoekPrs
      = RecordNr "9"
      + ZoekPrs "Zoek Persoon"
      - ZoekPrs
      = VoorNm "Gerrit"
      - KwstTxtPrs
    )");
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
