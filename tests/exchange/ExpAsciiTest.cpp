// The dialog of the fixed-width export, by script; with it all that exports of a selection share.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/ZonderRechten.h"
#include "exchange/ExpAscii.h"
#include "exchange/ExportToets.h"
#include "steun/Bestandsstelsel.h"
#include "steun/Gouden.h"
#include "steun/VolleSchijf.h"

namespace lb77 {
namespace {

class ExpAsciiTest : public ExportToets {
 protected:
  void Speel(std::string_view draaiboek, std::string_view verslag,
             const Plek& plek = Plek::current()) {
    SpeelForm<ExpAscii>(
        draaiboek, "+ ExpAscii \"Exporteer in ASCII formaat\"\n" + Regels(verslag) + "- ExpAscii\n",
        plek);
  }
};

constexpr std::string_view kKiesAlles = "druk KiesAllesButton\ndruk OKButton\ndruk OKButton\n";
constexpr std::string_view kGekozen =
    "! uitroep \"Druk in de volgende schermen steeds op VOEG TOE\"\n"
    "+ ExpSelPers \"Exporteer gegevens - Selecteer Personen\"\n- ExpSelPers\n"
    "+ ExpSelRel \"Exporteer gegevens - Selecteer Relaties\"\n- ExpSelRel\n";
constexpr std::string_view kResultaat = "+ ToonTekst \"Exporteren - Resultaat\"\n- ToonTekst\n";

std::string Samen(std::initializer_list<std::string_view> delen) {
  std::string uit;
  for (const std::string_view deel : delen) uit += deel;
  return uit;
}

TEST_F(ExpAsciiTest, SchrijftDeDrieBestandenEnHetLog) {
  MaakFamilie();
  Speel(Samen({kKiesAlles, "toon AantalPersonen\ntoon AantalRelaties\ntoon AantalBronnen\n",
               "druk StartExportButton\ndruk BackButton"}),
        Samen({kGekozen,
               "= AantalPersonen \"6\"\n= AantalRelaties \"5\"\n= AantalBronnen \"0\"\n"
               "! info \"Exporteren voltooid\"\n",
               kResultaat}));
  for (const std::string_view naam : {"PROEF_PRS.TXT", "PROEF_RLT.TXT", "PROEF_OPM.TXT"}) {
    VerwachtGouden("ascii/" + std::string(naam), Tekst(naam));
  }
  EXPECT_EQ(Tekst("EXPORT.LOG"),
            "Start export (20000101000000)\r\nTotaal 6 Personen ge\xEBxporteerd\r\n"
            "Totaal 5 Relaties ge\xEBxporteerd\r\nTotaal 0 Bronnen ge\xEBxpoteerd\r\n"
            "Exporteren voltooid\r\n");
}

// The seventh test is the one before the first relation, the twelfth the one behind the last.
TEST_F(ExpAsciiTest, AfbrekenEindigtBijHetRecord) {
  MaakFamilie();
  for (const auto& [test, gedaan] : {std::pair{1, "00"}, {7, "60"}, {12, "65"}}) {
    Speel(Samen({kKiesAlles, "onderbreek ", std::to_string(test),
                 "\nantwoord Ja\ndruk StartExportButton\ndruk BackButton\n"
                 "toon PersonenGedaan\ntoon RelatiesGedaan\ndruk BackButton"}),
          Samen({kGekozen, "? vraag Ja/Nee \"Opbouw Afbreken ?\" -> Ja\n", kResultaat,
                 "= PersonenGedaan \"", std::string(1, gedaan[0]), "\"\n= RelatiesGedaan \"",
                 std::string(1, gedaan[1]), "\"\n"}));
    EXPECT_EQ(Tekst("EXPORT.LOG"), "Start export (20000101000000)\r\nExporteren afgebroken\r\n");
  }
}

TEST_F(ExpAsciiTest, EenLeegBestandSluitHetScherm) {
  Speel("", "! uitroep \"Export uit een leeg bestand is niet mogelijk\"");
}

TEST_F(ExpAsciiTest, VraagtOmNamenEnOmEenSelectie) {
  MaakFamilie();
  Speel(
      "druk StartExportButton\nvul Bestandsnaam(2) \" \"\ndruk StartExportButton\n"
      "vul Bestandsnaam(0)\nvul Bestandsnaam(2) x.txt\ndruk StartExportButton\n"
      "toon PersonenGedaan\ndruk BackButton",
      R"(
    ! uitroep "Geen gegevens geselecteerd"
    ! uitroep "Geen bestandsnaam opgegeven"
    ! uitroep "Geen bestandsnaam opgegeven"
    = PersonenGedaan ""
  )");
  EXPECT_FALSE(std::filesystem::exists(TekstMap() / "EXPORT.LOG"));
}

TEST_F(ExpAsciiTest, SchrijftAlleenWatGekozenIs) {
  MaakFamilie();
  Speel(
      "druk KiesPersButton\nvul RecordNrPers(0) 3\nvul RecordNrPers(1) 3\ndruk OKButton\n"
      "druk KiesRelButton\ndruk BackButton\ntoon AantalPersonen\ntoon AantalRelaties\n"
      "druk StartExportButton\ndruk BackButton",
      Samen({"+ ExpSelPers \"Exporteer gegevens - Selecteer Personen\"\n- ExpSelPers\n"
             "+ ExpSelRel \"Exporteer gegevens - Selecteer Relaties\"\n- ExpSelRel\n"
             "= AantalPersonen \"1\"\n= AantalRelaties \"0\"\n! info \"Exporteren voltooid\"\n",
             kResultaat}));
  EXPECT_EQ(Tekst("PROEF_PRS.TXT").substr(0, 15), "    3VCornelia ");
  EXPECT_EQ(Tekst("PROEF_PRS.TXT").size(), 318U);
  EXPECT_EQ(Tekst("PROEF_RLT.TXT"), "");
  EXPECT_EQ(Tekst("PROEF_OPM.TXT"), "");
}

TEST_F(ExpAsciiTest, ToontDeLijstVanWatGekozenIs) {
  MaakFamilie();
  Speel(Samen({"druk ToonLijstButton\ntoon UitvoerBox\ndruk BackButton\n", kKiesAlles,
               "druk ToonLijstButton\ndruk BackButton\nonderbreek 1\nantwoord Ja\n"
               "druk ToonLijstButton\ndruk BackButton\ndruk BackButton"}),
        Samen({R"(
    + ExpMaakLyst "Exporteren - Geselecteerde records"
    - ExpMaakLyst
    + ToonTekst "Exporteren - Geselecteerde records"
    = UitvoerBox "Geselecteerde Persoonsrecords:\nGeselecteerde Relatierecords:"
    - ToonTekst
    )",
               kGekozen, R"(
    + ExpMaakLyst "Exporteren - Geselecteerde records"
    - ExpMaakLyst
    + ToonTekst "Exporteren - Geselecteerde records"
    - ToonTekst
    + ExpMaakLyst "Exporteren - Geselecteerde records"
    ? vraag Ja/Nee "Opbouw Afbreken ?" -> Ja
    - ExpMaakLyst
  )"}));
  EXPECT_EQ(huidig_, 4);
}

TEST_F(ExpAsciiTest, WatVanHetProgrammaIsWordtNietOverschreven) {
  MaakFamilie();
  SchrijfBytes(Map() / "ANDER" / "ANDER.PRS", "ander");
  SchrijfBytes(Map() / "PROEF" / "JOURNAAL" / "00000001.HND", "journaal");
  SchrijfBytes(Map() / "LB77_INI.BAK", "reserve");
  const std::string eigen[] = {(Map() / "PROEF" / "PROEF.PRS").string(),
                               (Map() / "PROEF" / "proef.opm").string(),
                               (Map() / "PROEF" / "PROEF.RLT").string(),
                               (Map() / "PROEF" / "PROEF.PLT").string(),
                               (Map() / "PLAATS.PLT").string(),
                               (Map() / "ANDER" / "ANDER.PRS").string(),
                               (Map() / "PROEF" / "JOURNAAL" / "00000001.HND").string(),
                               "LIJNBOOM.INI",
                               "lb77_ini.bak",
                               (TekstMap() / "EXPORT.LOG").string(),
                               (TekstMap() / "PROEF_PRS.TXT").string()};
  SchrijfBytes(TekstMap() / "PROEF_PRS.TXT", "eerder");
  for (const std::string& naam : eigen) {
    const std::string voor = LeesBytes(Map() / naam);
    Speel(Samen({kKiesAlles, "vul Bestandsnaam(1) ", naam,
                 "\ndruk StartExportButton\ndruk BackButton\ndruk BackButton"}),
          Samen({kGekozen, "! stop \"Bestand is in gebruik\"\n", kResultaat}));
    if (naam.ends_with("EXPORT.LOG")) continue;
    EXPECT_EQ(LeesBytes(Map() / naam), voor) << naam;
    EXPECT_EQ(Tekst("PROEF_PRS.TXT"), "eerder") << naam;
  }
}

TEST_F(ExpAsciiTest, TweeNamenVoorEenBestandDatErNogNietIs) {
  MaakFamilie();
  for (const char* naam : {"./nieuw.txt", "NIEUW.TXT"}) {
    Speel(Samen({kKiesAlles, "vul Bestandsnaam(0) nieuw.txt\nvul Bestandsnaam(2) ", naam,
                 "\ndruk StartExportButton\ndruk BackButton\ndruk BackButton"}),
          Samen({kGekozen, "! stop \"Bestand is in gebruik\"\n", kResultaat}));
  }
}

TEST_F(ExpAsciiTest, NaEenMislukkingStartHijPasMetEenAndereNaam) {
  MaakFamilie();
  const std::string pad = (Map() / "opm.txt").string();
  Speel(Samen({kKiesAlles, "vul Bestandsnaam(2) ", Map().string(),
               "\ndruk StartExportButton\ndruk BackButton\ntoon StartExportButton\nbestand ", pad,
               "\ndruk BrowseButton(2)\ntoon StartExportButton\ntoon Bestandsnaam(2)\n"
               "druk StartExportButton\ndruk BackButton"}),
        Samen({kGekozen, "! stop \"Pad is een directory\"\n", kResultaat,
               "= StartExportButton \"&Start Export\" [uit]\n"
               "> opslaan \"ASCII-bestanden (*.TXT)|*.TXT|Alle Bestanden (*.*)|*.*\" -> \"",
               pad, "\"\n= StartExportButton \"&Start Export\"\n= Bestandsnaam(2) \"", pad,
               "\"\n! info \"Exporteren voltooid\"\n", kResultaat}));
  EXPECT_EQ(LeesBytes(pad),
            "000P20000200001Naar zijn\r\n000P20000200002grootvader\r\n"
            "000R2000-800001akte 12\r\n");
}

TEST_F(ExpAsciiTest, ZonderLogBegintHijNiet) {
  MaakFamilie();
  std::filesystem::create_directories(TekstMap() / "EXPORT.LOG");
  Speel(Samen({kKiesAlles, "druk StartExportButton\ndruk BackButton"}),
        Samen({kGekozen, "! stop \"Pad is een directory\"\n"}));
  EXPECT_FALSE(std::filesystem::exists(TekstMap() / "PROEF_PRS.TXT"));
}

TEST_F(ExpAsciiTest, EenMapZonderRechtenWordtGemeld) {
  // What is not found is a warning; there a file in the way is no more than that.
  constexpr std::string_view kSoort = kKastTelt ? "! stop \"" : "! uitroep \"";
  MaakFamilie();
  Speel(Samen({kKiesAlles,
               "vul Bestandsnaam(0) LIJNBOOM.INI/uit.txt\ndruk StartExportButton\n"
               "druk BackButton\ndruk BackButton"}),
        Samen({kGekozen, kSoort, kAchterBestand, "\"\n", kResultaat}));
}

TEST_F(ExpAsciiTest, EenVolleSchijfLaatDeVorigeBestandenStaan) {
  if (!VolleSchijf::kKan) GTEST_SKIP() << VolleSchijf::kWaarom;
  MaakFamilie();
  Speel(Samen({kKiesAlles, "druk StartExportButton\ndruk BackButton"}),
        Samen({kGekozen, "! info \"Exporteren voltooid\"\n", kResultaat}));
  const std::string personen = Tekst("PROEF_PRS.TXT");
  const std::string relaties = Tekst("PROEF_RLT.TXT");
  for (std::size_t ruimte = 100; ruimte < std::max(personen.size(), relaties.size());
       ruimte += 89) {
    const VolleSchijf schijf(ruimte);
    Speel(Samen({kKiesAlles, "druk StartExportButton\ndruk BackButton\ndruk BackButton"}),
          Samen({kGekozen, "! stop \"Bestand te groot\"\n", kResultaat}));
    EXPECT_EQ(Tekst("PROEF_PRS.TXT"), personen);
    EXPECT_EQ(Tekst("PROEF_RLT.TXT"), relaties);
    EXPECT_FALSE(std::filesystem::exists(TekstMap() / "PROEF_PRS.TXT.nieuw"));
    EXPECT_EQ(Tekst("EXPORT.LOG"), "Start export (20000101000000)\r\n");
  }
}

// None is emptied before all can be written.
TEST_F(ExpAsciiTest, EenBestandDatNietKanLaatDeAndereStaan) {
  MaakFamilie();
  SchrijfBytes(TekstMap() / "PROEF_PRS.TXT", "eerder");
  std::filesystem::create_directories(TekstMap() / "PROEF_OPM.TXT");
  Speel(Samen({kKiesAlles, "druk StartExportButton\ndruk BackButton\ndruk BackButton"}),
        Samen({kGekozen, "! stop \"Pad is een directory\"\n", kResultaat}));
  EXPECT_EQ(Tekst("PROEF_PRS.TXT"), "eerder");
  for (const char* naam : {"PROEF_PRS.TXT.nieuw", "PROEF_RLT.TXT", "PROEF_RLT.TXT.nieuw"}) {
    EXPECT_FALSE(std::filesystem::exists(TekstMap() / naam)) << naam;
  }
}

TEST_F(ExpAsciiTest, EenBestandZonderSchrijfrechtBlijft) {
  if (!ZonderRechten::kKan) GTEST_SKIP() << ZonderRechten::kWaarom;
  MaakFamilie();
  SchrijfBytes(TekstMap() / "PROEF_RLT.TXT", "eerder");
  std::filesystem::permissions(TekstMap(), std::filesystem::perms::all);
  const Taak taak = [this](Hoofdmodule& hoofd) {
    ASSERT_TRUE(Start(hoofd));
    hoofd.ActieveSetNaam = "PROEF";
    const ZonderRechten zonder(TekstMap() / "PROEF_RLT.TXT", std::filesystem::perms(0444));
    hoofd.gesprek.Toon<ExpAscii>(hoofd);
  };
  Verwacht(Samen({kKiesAlles, "druk StartExportButton\ndruk BackButton\ndruk BackButton"}), taak,
           Samen({"+ ExpAscii \"Exporteer in ASCII formaat\"\n", kGekozen,
                  "! stop \"Geen toegang\"\n", kResultaat, "- ExpAscii\n"}));
  EXPECT_EQ(Tekst("PROEF_RLT.TXT"), "eerder");
}

TEST_F(ExpAsciiTest, EenKoppelingBlijftEenKoppeling) {
  if (!kKoppelingen) GTEST_SKIP() << kZonderKoppelingen;
  MaakFamilie();
  SchrijfBytes(Map() / "echt.txt", "eerder");
  std::filesystem::create_directories(TekstMap());
  std::filesystem::create_symlink(Map() / "echt.txt", TekstMap() / "PROEF_PRS.TXT");
  Speel(Samen({kKiesAlles, "druk StartExportButton\ndruk BackButton"}),
        Samen({kGekozen, "! info \"Exporteren voltooid\"\n", kResultaat}));
  EXPECT_TRUE(std::filesystem::is_symlink(TekstMap() / "PROEF_PRS.TXT"));
  EXPECT_TRUE(LeesBytes(Map() / "echt.txt").starts_with("    2M"));
}

TEST_F(ExpAsciiTest, HetVerslagNoemtWatErNietInPast) {
  MaakFamilie();
  for (const char* tekst : {"een", "twee"}) {
    Bouw().OpmerkingBijPersoon(3, persoonrubriek::kBeroep, {tekst});
  }
  for (const std::int16_t rubriek :
       {relatierubriek::kHuwSoort, relatierubriek::kReligie, relatierubriek::kAlgemeen}) {
    Bouw().OpmerkingBijRelatie(2, rubriek, {"x"});
  }
  Speel(Samen({kKiesAlles, "druk StartExportButton\ndruk BackButton"}),
        Samen({kGekozen, "! info \"Exporteren voltooid\"\n", kResultaat}));
  EXPECT_TRUE(
      Tekst("EXPORT.LOG")
          .ends_with("Exporteren voltooid\r\n"
                     "LET OP: 1 opmerkingen zijn niet uitgevoerd (tweede of volgende "
                     "opmerking bij een rubriek)\r\n"
                     "LET OP: 3 opmerkingen zijn niet uitgevoerd (bij de soort of de religie "
                     "van een huwelijk, of een relatie zelf)\r\n"))
      << Tekst("EXPORT.LOG");
}

TEST_F(ExpAsciiTest, VanVeelOnleesbareRecordsKomtEenMelding) {
  MaakFamilie();
  for (std::int16_t nr = 3; nr <= 5; ++nr) MaakOnleesbaar(BestandSoort::Relaties, nr);
  Speel(Samen({"druk KiesRelButton\nvul RecordNrRel(1) 6\ndruk OKButton\n",
               "druk StartExportButton\ndruk BackButton"}),
        Samen({"+ ExpSelRel \"Exporteer gegevens - Selecteer Relaties\"\n- ExpSelRel\n"
               "! stop \"Fout bij het lezen van Relatierecord 3\\nFout van de schijf\"\n"
               "! info \"Exporteren voltooid\"\n",
               kResultaat}));
  EXPECT_NE(Tekst("EXPORT.LOG")
                .find("Leesfout bij Relatierecord 3. Record niet ge\xEBxporteerd.\r\n"
                      "Leesfout bij Relatierecord 4. Record niet ge\xEBxporteerd.\r\n"
                      "Leesfout bij Relatierecord 5. Record niet ge\xEBxporteerd.\r\nTotaal "),
            std::string::npos);
}

TEST_F(ExpAsciiTest, EenNaamMetSpatiesEromheenIsDieNaam) {
  MaakFamilie();
  Speel(Samen({kKiesAlles,
               "vul Bestandsnaam(1) \"  rel.txt \"\ndruk StartExportButton\n"
               "druk BackButton"}),
        Samen({kGekozen, "! info \"Exporteren voltooid\"\n", kResultaat}));
  EXPECT_TRUE(std::filesystem::exists(Map() / "rel.txt"));
}

TEST_F(ExpAsciiTest, EenOnleesbarePersoonHeeftGeenRegel) {
  MaakFamilie();
  MaakOnleesbaar(BestandSoort::Personen, 3);
  Speel(Samen({"druk KiesPersButton\nvul RecordNrPers(1) 5\ndruk OKButton\n",
               "druk StartExportButton\ndruk BackButton"}),
        Samen({"+ ExpSelPers \"Exporteer gegevens - Selecteer Personen\"\n- ExpSelPers\n"
               "! stop \"Fout bij het lezen van Persoonsrecord 3\\nFout van de schijf\"\n"
               "! info \"Exporteren voltooid\"\n",
               kResultaat}));
  EXPECT_EQ(Tekst("PROEF_PRS.TXT").size(), 3 * 318U);
  EXPECT_TRUE(Tekst("EXPORT.LOG")
                  .starts_with("Start export (20000101000000)\r\n"
                               "Leesfout bij Persoonsrecord 3. Record niet ge\xEBxporteerd.\r\n"));
}

}  // namespace
}  // namespace lb77
