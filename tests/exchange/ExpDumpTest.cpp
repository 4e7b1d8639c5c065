// The dialogs of the dumps, by script.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "exchange/ExpDump.h"
#include "exchange/ExportToets.h"
#include "steun/BezigKijker.h"
#include "steun/Gouden.h"
#include "steun/VolleSchijf.h"

namespace lb77 {
namespace {

class ExpDumpTest : public ExportToets {
 protected:
  void Speel(const ExpDumpSoort& soort, std::string_view draaiboek, std::string_view verslag,
             const Plek& plek = Plek::current()) {
    SpeelForm<ExpDump>(draaiboek,
                       "+ " + std::string(soort.uitvoer.naam) + " \"" +
                           std::string(soort.uitvoer.titel) + "\"\n" + Regels(verslag) + "- " +
                           std::string(soort.uitvoer.naam) + "\n",
                       plek, soort);
  }
  // The log, with the path of the output as just its name.
  [[nodiscard]] std::string Log() const {
    std::string log = Tekst("UITDRAAI.LOG");
    const std::string map = (TekstMap() / "").string();
    if (const std::size_t plek = log.find(map); plek != std::string::npos) {
      log.erase(plek, map.size());
    }
    return log;
  }
};

constexpr std::string_view kResultaat = "+ ToonTekst \"Exporteren - Resultaat\"\n- ToonTekst\n";

TEST_F(ExpDumpTest, SchrijftDeVierBestanden) {
  MaakFamilie();
  const struct {
    const ExpDumpSoort& soort;
    std::string_view einde;
    int kolommen;
  } kProeven[] = {{kExpDumpPers, "PRS", 24},
                  {kExpDumpRel, "RLT", 33},
                  {kExpDumpPlts, "PLT", 3},
                  {kExpDumpOpm, "OPM", 6}};
  for (const auto& proef : kProeven) {
    Speel(proef.soort, "druk OKButton\ndruk BackButton", kResultaat);
    const std::string naam = "PROEF_" + std::string(proef.einde) + ".TXT";
    const std::string bytes = Tekst(naam);
    VerwachtGouden("uitdraai/" + naam, bytes);
    VerwachtGouden("uitdraai/" + std::string(proef.einde) + ".LOG", Log());
    const auto regels = std::ranges::count(bytes, '\n');
    EXPECT_EQ(std::ranges::count(bytes, '\t'), regels * proef.kolommen);
  }
}

TEST_F(ExpDumpTest, EenLeegBestandSluitHetScherm) {
  constexpr std::string_view kLeeg = "! uitroep \"Geen export mogelijk: dit is een leeg bestand\"";
  Speel(kExpDumpPers, "", kLeeg);
  Speel(kExpDumpRel, "", "! uitroep \"Geen Relaties aanwezig\"");
  Speel(kExpDumpPlts, "", kLeeg);
  Speel(kExpDumpOpm, "", kLeeg);
}

TEST_F(ExpDumpTest, ZonderNaamGebeurtErNiets) {
  MaakFamilie();
  Speel(kExpDumpPers,
        "vul Bestandsnaam \"  \"\ndruk OKButton\ntoon PersonenGedaan\ndruk BackButton",
        "! uitroep \"Geen bestandsnaam opgegeven\"\n= PersonenGedaan \"\"");
  EXPECT_FALSE(std::filesystem::exists(TekstMap() / "UITDRAAI.LOG"));
}

TEST_F(ExpDumpTest, BladertNaarEenBestand) {
  MaakFamilie();
  const std::string pad = (Map() / "ander.txt").string();
  Speel(kExpDumpPers,
        "bestand " + pad +
            "\ndruk BrowseButton\nbestand\ndruk BrowseButton\ntoon Bestandsnaam\n"
            "druk OKButton\ndruk BackButton",
        "> opslaan \"Export-bestanden (*.TXT)|*.TXT|Alle Bestanden (*.*)|*.*|"
        "Tekstbestanden (*.txt)|*.txt\" -> \"" +
            pad +
            "\"\n"
            "> opslaan \"Export-bestanden (*.TXT)|*.TXT|Alle Bestanden (*.*)|*.*|"
            "Tekstbestanden (*.txt)|*.txt\" -> -\n= Bestandsnaam \"" +
            pad + "\"\n" + std::string(kResultaat));
  EXPECT_TRUE(LeesBytes(Map() / "ander.txt").starts_with("2\tM\tJan Pieter\tvan Dam\t"));
}

TEST_F(ExpDumpTest, EenPadDatNietKanWordtGemeldEnLaatHetLogZien) {
  MaakFamilie();
  const std::string weg = (Map() / "WEG" / "UIT.TXT").string();
  Speel(kExpDumpPers,
        "vul Bestandsnaam " + Map().string() +
            "\ndruk OKButton\ndruk BackButton\ntoon OKButton\n"
            "vul Bestandsnaam UIT.TXT\ntoon OKButton\nbestand " +
            weg +
            "\ndruk BrowseButton\ntoon OKButton\ndruk OKButton\ndruk BackButton\n"
            "druk BackButton",
        "! stop \"Pad is een directory\"\n" + std::string(kResultaat) +
            "= OKButton \"&Start Export\" [uit]\n= OKButton \"&Start Export\" [uit]\n"
            "> opslaan \"Export-bestanden (*.TXT)|*.TXT|Alle Bestanden (*.*)|*.*|"
            "Tekstbestanden (*.txt)|*.txt\" -> \"" +
            weg + "\"\n= OKButton \"&Start Export\"\n" + "! uitroep \"Bestand niet gevonden\"\n" +
            std::string(kResultaat));
  EXPECT_EQ(Log(), "Start export (20000101000000)\r\n");
}

TEST_F(ExpDumpTest, HetLogBegintMetDatumEnTijd) {
  MaakFamilie();
  const auto programma = [this](Gesprek& gesprek) {
    const VasteKlok klok({2026, 11, 2, 9, 5, 7});
    Hoofdmodule hoofd(gesprek, klok, Map());
    ASSERT_FALSE(hoofd.bestanden.OpenSet(SetPaden::Van(Map(), "PROEF")));
    ASSERT_TRUE(Start(hoofd));
    hoofd.ActieveSetNaam = "PROEF";
    gesprek.Toon<ExpDump>(kExpDumpPlts, hoofd);
  };
  SpeelToets::Verwacht(
      "druk OKButton\ndruk BackButton", programma,
      "+ ExpDumpPlts \"Uitdraai Plaatsbestand\"\n" + std::string(kResultaat) + "- ExpDumpPlts\n");
  EXPECT_TRUE(Log().starts_with("Start export (20261102090507)\r\n")) << Log();
}

TEST_F(ExpDumpTest, AfbrekenLaatStaanWatErIsEnHetLogZegtHet) {
  MaakFamilie();
  Speel(kExpDumpPers, "druk OKButton\ndruk BackButton", kResultaat);
  const std::string heel = Tekst("PROEF_PRS.TXT");
  Speel(kExpDumpPers,
        "onderbreek 2\nantwoord Ja\ndruk OKButton\ndruk BackButton\ntoon OKButton\n"
        "toon PersonenGedaan\ndruk BackButton",
        "? vraag Ja/Nee \"Opbouw Afbreken ?\" -> Ja\n" + std::string(kResultaat) +
            "= OKButton \"&Start Export\" [uit]\n= PersonenGedaan \"1\"");
  EXPECT_EQ(Tekst("PROEF_PRS.TXT"), heel.substr(0, heel.find('\n') + 1));
  EXPECT_EQ(Log(), "Start export (20000101000000)\r\nExporteren afgebroken\r\n");
}

TEST_F(ExpDumpTest, WieTochNietAfbreektKrijgtHetHeleBestand) {
  MaakFamilie();
  Speel(kExpDumpPers, "onderbreek 3\nantwoord Nee\ndruk OKButton\ndruk BackButton",
        "? vraag Ja/Nee \"Opbouw Afbreken ?\" -> Nee\n" + std::string(kResultaat));
  VerwachtGouden("uitdraai/PROEF_PRS.TXT", Tekst("PROEF_PRS.TXT"));
  VerwachtGouden("uitdraai/PRS.LOG", Log());
}

TEST_F(ExpDumpTest, BijHetLogIsHijNietMeerBezig) {
  MaakFamilie();
  BezigKijker kijker;
  const VasteKlok klok({2026, 11, 2, 9, 5, 7});
  Hoofdmodule hoofd(kijker, klok, Map());
  ASSERT_FALSE(hoofd.bestanden.OpenSet(SetPaden::Van(Map(), "PROEF")));
  ASSERT_TRUE(Start(hoofd));
  hoofd.ActieveSetNaam = "PROEF";
  kijker.Toon<ExpDump>(kExpDumpPlts, hoofd);
  EXPECT_EQ(kijker.Gezien(), "ToonTekst ");
}

TEST_F(ExpDumpTest, EenVolleSchijfLaatStaanWatErStond) {
  if (!VolleSchijf::kKan) GTEST_SKIP() << VolleSchijf::kWaarom;
  MaakFamilie();
  Speel(kExpDumpPers, "druk OKButton\ndruk BackButton", kResultaat);
  const std::string heel = Tekst("PROEF_PRS.TXT");
  const std::string log = Tekst("UITDRAAI.LOG");
  ASSERT_GT(log.size(), heel.size());
  constexpr std::size_t kEersteRegel = 31;
  for (std::size_t ruimte = 40; ruimte < log.size(); ruimte += 7) {
    const VolleSchijf schijf(ruimte);
    Speel(kExpDumpPers, "druk OKButton\ndruk BackButton\ndruk BackButton",
          "! stop \"Bestand te groot\"\n" + std::string(kResultaat));
    EXPECT_EQ(Tekst("PROEF_PRS.TXT"), heel.substr(0, ruimte));
    const std::string verwacht = log.substr(0, ruimte < heel.size() ? kEersteRegel : ruimte);
    EXPECT_EQ(Tekst("UITDRAAI.LOG"), verwacht);
  }
}

TEST_F(ExpDumpTest, EenOnleesbaarRecordHoudtDeRestNietOp) {
  MaakFamilie();
  MaakOnleesbaar(BestandSoort::Personen, 3);
  Speel(kExpDumpPers, "druk OKButton\ndruk BackButton",
        "! stop \"Fout bij het lezen van Persoonsrecord 3\\nFout van de schijf\"\n" +
            std::string(kResultaat));
  EXPECT_NE(Tekst("PROEF_PRS.TXT").find("\r\n3" + std::string(24, '\t') + "\r\n4\t"),
            std::string::npos);
  EXPECT_TRUE(Log().starts_with(
      "Start export (20000101000000)\r\n"
      "Leesfout bij Persoonsrecord 3. Record niet ge\xEBxporteerd.\r\nDe structuur van"));
  EXPECT_NE(Log().find("\r\nTotaal 6 Personen ge\xEBxpoteerd\r\nExporteren voltooid\r\n"),
            std::string::npos);
}

}  // namespace
}  // namespace lb77
