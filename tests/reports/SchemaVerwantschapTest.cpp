// Kinship by script, from the question to the report.
#include <gtest/gtest.h>

#include <filesystem>

#include "app/Start.h"
#include "reports/SchemaVerwantschap.h"
#include "reports/VerwantRapport.h"
#include "steun/BezigKijker.h"
#include "steun/FamilieToets.h"
#include "steun/Gouden.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

// Jan (2), his father (3), his uncle (4), their father (5), the uncle's wife (6), somebody else (7).
class SchemaVerwantschapTest : public FamilieToets {
 protected:
  SchemaVerwantschapTest() {
    SchrijfBytes(Map() / "LIJNBOOM.INI", "[Systeem]\r\nSet=PROEF\r\n[Printer]\r\nTekstbr=80\r\n");
    const auto jan = Bouw().Man("Jan", "Smit");
    const auto vader = Bouw().Man("Vader", "Smit");
    const auto oom = Bouw().Man("Oom", "Smit");
    const auto opa = Bouw().Man("Opa", "Smit");
    const auto tante = Bouw().Vrouw("Els", "van Dam");
    Bouw().Man("Iemand", "Anders");
    Bouw().Relatie(vader, 0, {jan});
    Bouw().Relatie(opa, 0, {vader, oom});
    Bouw().Relatie(oom, tante);
  }

  void Speel(std::string_view draaiboek, std::string_view verslag,
             const Plek& plek = Plek::current()) {
    const Taak taak = [this](Hoofdmodule& hoofd) {
      ASSERT_TRUE(Start(hoofd));
      hoofd.volgers.HuidigPersoonNr = 4;
      hoofd.gesprek.Toon<SchemaVerwantschap>(hoofd);
      huidig_ = hoofd.volgers.HuidigPersoonNr;
    };
    Verwacht(draaiboek, taak, "+ SchemaVerwantschap \"Schema Verwantschap\"\n" + Regels(verslag),
             plek);
  }
  [[nodiscard]] std::filesystem::path Temp(std::string_view naam) const {
    return Map() / "TEMP" / naam;
  }

  static constexpr std::string_view kJanEnEls = "vul PersNr(0) 2\nvul PersNr(1) 6\n";
  std::int16_t huidig_ = 0;
};

constexpr std::string_view kVerslag =
    "Schema Verwantschap\r\n"
    "Verwantschap tussen Jan Smit en Els van Dam:\r\n"
    "\r\n"
    "Els van Dam (6)\r\n"
    "partner: \r\n"
    "Oom Smit (4)\r\n"
    "ouder: \r\n"
    "Opa Smit (5)\r\n"
    "kind: \r\n"
    "Vader Smit (3)\r\n"
    "kind: \r\n"
    "Jan Smit (2)\r\n"
    "\r\n"
    "5         +                   \r\n"
    "|         |                   \r\n"
    "3         4     -**-----6     \r\n"
    "|                             \r\n"
    "2                             \r\n";

TEST_F(SchemaVerwantschapTest, ToontDeKetenVanTweePersonen) {
  Speel(std::string(kJanEnEls) +
            "toon VoorNm(0)\ntoon AchterNm(1)\ndruk OKButton\ndruk BackButton\n"
            "toon PersonenGedaan\ntoon OKButton\ndruk BackButton",
        R"~(
          = VoorNm(0) "Jan"
          = AchterNm(1) "van Dam"
          + VerwantRapport "Schema Verwantschap"
          - VerwantRapport
          = PersonenGedaan "4"
          = OKButton "&Start"
          - SchemaVerwantschap
        )~");
  EXPECT_EQ(LeesBytes(Temp("VERWANT.TMP")), kVerslag);
  EXPECT_EQ(LeesBytes(Temp("ZOEK_PRS.TMP")), kVerslag);
  EXPECT_EQ(huidig_, 4);
}

// From Jan by his father and his uncle to the aunt, her second husband, and his child by another.
TEST_F(SchemaVerwantschapTest, DeKetenAlsBestand) {
  const auto tweede = Bouw().Man("Gerrit Jan", "de Wit");
  const auto stiefnicht = Bouw().Vrouw("Kee", "de Wit");
  const auto haarMan = Bouw().Man("Piet", "Bos");
  const auto zoon = Bouw().Man("", "Bos");
  Bouw().Relatie(tweede, 6);
  Bouw().Relatie(tweede, 0, {stiefnicht});
  Bouw().Relatie(haarMan, stiefnicht, {zoon});
  Speel("vul PersNr(0) 2\nvul PersNr(1) " + GetalTekst(zoon) +
            "\ndruk OKButton\ndruk BackButton\ndruk BackButton",
        R"~(
          + VerwantRapport "Schema Verwantschap"
          - VerwantRapport
          - SchemaVerwantschap
        )~");
  VerwachtGouden("verwantschap.txt", LeesBytes(Temp("VERWANT.TMP")));
}

TEST_F(SchemaVerwantschapTest, ZonderVerbandIsErGeenVerwantschap) {
  Speel(
      "vul PersNr(0) 2\nvul PersNr(1) 7\ndruk OKButton\ntoon UitvoerBox\ndruk BackButton\n"
      "druk BackButton",
      R"~(
          + VerwantRapport "Schema Verwantschap"
          = UitvoerBox "Schema Verwantschap\nGeen verwantschap gevonden"
          - VerwantRapport
          - SchemaVerwantschap
        )~");
}

TEST_F(SchemaVerwantschapTest, TweePersonenZijnNodig) {
  Speel(
      "druk OKButton\nvul PersNr(0) 2\ndruk OKButton\nvul PersNr(0)\nvul PersNr(1) 2\n"
      "druk OKButton\ntoon\ndruk BackButton",
      R"~(
          ! uitroep "Geen 2 personen opgegeven. Verwantschap niet mogelijk."
          ! uitroep "Geen 2 personen opgegeven. Verwantschap niet mogelijk."
          ! uitroep "Geen 2 personen opgegeven. Verwantschap niet mogelijk."
          : SchemaVerwantschap "Schema Verwantschap"
          = VraagLabel "Geef de Persoonsnummers van 2 verschillende personen"
          = (*) PersNr VoorNm AchterNm ZoekButton
          = (0) "" "" "" "&Zoek Persoon"
          = (1) "2" "Jan" "Smit" "&Zoek Persoon"
          = PersonenGedaan ""
          = OKButton "&Start"
          = BackButton "&Terug"
          * PersNr(0)
          - SchemaVerwantschap
        )~");
}

TEST_F(SchemaVerwantschapTest, DezelfdePersoonWordtGeweigerd) {
  Speel("vul PersNr(0) 2\nvul PersNr(1) 2\ndruk OKButton\ndruk BackButton", R"~(
    ! uitroep "Geef 2 verschillende personen op a.u.b."
    - SchemaVerwantschap
  )~");
}

// The admin record, a continuation and nobody are no persons.
TEST_F(SchemaVerwantschapTest, DeNummersWordenNagezien) {
  MaakVervolg(7);
  Speel("vul PersNr(0) 1\nvul PersNr(0) 7\nvul PersNr(1) 99\ntoon VoorNm(0)\ndruk BackButton", R"~(
    ! uitroep "Recordnummer bestaat niet"
    ! uitroep "Record is een vervolgrecord"
    ! uitroep "Record is een vervolgrecord"
    = VoorNm(0) ""
    - SchemaVerwantschap
  )~");
  Speel("vul PersNr(1) 99\ndruk BackButton", R"~(
    ! uitroep "Recordnummer bestaat niet"
    - SchemaVerwantschap
  )~");
}

TEST_F(SchemaVerwantschapTest, ZoekenVultHetNummer) {
  Speel("druk ZoekButton(1)\ndruk RecordNrPrs(3)\ntoon PersNr(1)\ntoon VoorNm(1)\ndruk BackButton",
        R"~(
          + ZoekPrs "Zoek Persoon"
          - ZoekPrs
          = PersNr(1) "4"
          = VoorNm(1) "Oom"
          - SchemaVerwantschap
        )~");
}

TEST_F(SchemaVerwantschapTest, NaHetZoekenIsWieErNogNietStaatAanDeBeurtEnDanDeKnop) {
  for (const std::string_view zoek : {"druk ZoekButton(0)", "toets PersNr(0) F2"}) {
    Speel(std::string(zoek) +
              "\ndruk RecordNrPrs(1)\ntoets F2\ndruk RecordNrPrs(3)\ntoets Enter\n"
              "druk BackButton\ntoon PersNr(0)\ntoon PersNr(1)\ndruk BackButton",
          R"~(
            + ZoekPrs "Zoek Persoon"
            - ZoekPrs
            + ZoekPrs "Zoek Persoon"
            - ZoekPrs
            + VerwantRapport "Schema Verwantschap"
            - VerwantRapport
            = PersNr(0) "2"
            = PersNr(1) "4"
            - SchemaVerwantschap
          )~");
  }
}

TEST_F(SchemaVerwantschapTest, EscapeBreektHetZoekenAf) {
  Speel(std::string(kJanEnEls) +
            "onderbreek 3\nantwoord Ja\ndruk OKButton\ntoon PersonenGedaan\n"
            "druk OKButton\ndruk BackButton\ndruk BackButton",
        R"~(
          ? vraag Ja/Nee "Opbouw Afbreken ?" -> Ja
          = PersonenGedaan "1"
          + VerwantRapport "Schema Verwantschap"
          - VerwantRapport
          - SchemaVerwantschap
        )~");
}

TEST_F(SchemaVerwantschapTest, EenBestandDatNietKanSluitHetScherm) {
  std::filesystem::create_directories(Temp("VERWANT.TMP"));
  Speel(std::string(kJanEnEls) + "druk OKButton", "! stop \"Kan tijdelijk bestand " +
                                                      Temp("VERWANT.TMP").string() +
                                                      " niet openen\"\n- SchemaVerwantschap");
}

// The buttons handle what is seen then, and not what lay in the other file.
TEST_F(SchemaVerwantschapTest, ZonderHetTweedeBestandWordtHetVerslagTochGetoond) {
  std::filesystem::create_directories(Temp("ZOEK_PRS.TMP"));
  const auto naar = Map() / "bewaard.txt";
  Speel(std::string(kJanEnEls) + "bestand " + naar.string() +
            "\ndruk OKButton\ndruk SaveButton\ndruk BackButton\ndruk BackButton",
        "! stop \"Kan tijdelijk bestand " + Temp("ZOEK_PRS.TMP").string() +
            " niet openen\"\n+ VerwantRapport \"Schema Verwantschap\"\n"
            "> opslaan \"Alle Bestanden (*.*)|*.*|Tekstbestanden (*.txt)|*.txt\" -> \"" +
            naar.string() +
            "\"\n! info \"De tekst is opgeslagen.\"\n- VerwantRapport\n- SchemaVerwantschap");
  EXPECT_EQ(LeesBytes(naar), kVerslag);
}

TEST_F(SchemaVerwantschapTest, AchterHetVerslagIsHetSchermNietMeerBezig) {
  BezigKijker kijker({{"PersNr(0)", "2"}, {"PersNr(1)", "6"}});
  Sessie([](Hoofdmodule& hoofd) {
    ASSERT_TRUE(Start(hoofd));
    hoofd.gesprek.Toon<SchemaVerwantschap>(hoofd);
  })(kijker);
  EXPECT_EQ(kijker.Gezien(), "VerwantRapport ");
}

TEST_F(SchemaVerwantschapTest, DeTellerBegintOpnieuw) {
  Speel(std::string(kJanEnEls) +
            "druk OKButton\ndruk BackButton\nvul PersNr(1)\ndruk OKButton\ntoon PersonenGedaan\n"
            "druk BackButton",
        R"~(
          + VerwantRapport "Schema Verwantschap"
          - VerwantRapport
          ! uitroep "Geen 2 personen opgegeven. Verwantschap niet mogelijk."
          = PersonenGedaan ""
          - SchemaVerwantschap
        )~");
}

// The two files are made unlike here, to tell which of them a button handles.
class VerwantRapportTest : public SchemaVerwantschapTest {
 protected:
  void SpeelRapport(std::string_view draaiboek, std::string_view verslag,
                    const Plek& plek = Plek::current()) {
    const Taak taak = [this](Hoofdmodule& hoofd) {
      ASSERT_TRUE(Start(hoofd));
      SchrijfBytes(Temp("VERWANT.TMP"), "verslag\r\n");
      if (metUitvoer_) SchrijfBytes(Temp("ZOEK_PRS.TMP"), uitvoer_);
      hoofd.gesprek.Toon<VerwantRapport>(hoofd);
    };
    Verwacht(draaiboek, taak, "+ VerwantRapport \"Resultaat Verwantschap\"\n" + Regels(verslag),
             plek);
  }
  bool metUitvoer_ = true;
  std::string uitvoer_ = "personen\r\n";
};

TEST_F(VerwantRapportTest, BewaartHetBestandVanDeSelectie) {
  const auto naar = Map() / "bewaard.txt";
  SpeelRapport("bestand " + naar.string() + "\ntoon UitvoerBox\ndruk SaveButton\ndruk BackButton",
               "= UitvoerBox \"verslag\"\n"
               "> opslaan \"Alle Bestanden (*.*)|*.*|Tekstbestanden (*.txt)|*.txt\" -> \"" +
                   naar.string() + "\"\n! info \"De tekst is opgeslagen.\"\n- VerwantRapport");
  EXPECT_EQ(LeesBytes(naar), "personen\r\n");
}

// Two pages of a selection behind one page of a report.
TEST_F(VerwantRapportTest, DruktHetBestandVanDeSelectieAf) {
  uitvoer_.clear();
  for (int n = 0; n < 70; ++n) uitvoer_ += "persoon\r\n";
  SpeelRapport("druk PrintButton(1)\ndruk PrintButton(2)\ndruk BackButton", R"~(
    % afdruk 1
    ! info "De tekst is naar de printer verstuurd."
    % afdruk 2
    ! info "De tekst is naar de printer verstuurd."
    - VerwantRapport
  )~");
}

TEST_F(VerwantRapportTest, EenLeegBestandWordtNietAfgedrukt) {
  uitvoer_.clear();
  SpeelRapport("druk PrintButton(1)\ndruk PrintButton(2)\ndruk BackButton", R"~(
    ! stop "Fout bij het printen van de tekst."
    ! stop "Fout bij het printen van de tekst."
    - VerwantRapport
  )~");
}

TEST_F(VerwantRapportTest, EenBestandDatErNietIsWordtGemeld) {
  metUitvoer_ = false;
  static_cast<void>(SpeelToets::Speel(
      "bestand " + (Map() / "bewaard.txt").string() +
          "\ndruk PrintButton(1)\ndruk PrintButton(2)\ndruk SaveButton\ndruk BackButton",
      Sessie([this](Hoofdmodule& hoofd) {
        ASSERT_TRUE(Start(hoofd));
        SchrijfBytes(Temp("VERWANT.TMP"), "verslag\r\n");
        hoofd.gesprek.Toon<VerwantRapport>(hoofd);
      })));
  EXPECT_NE(verslag_.find("! stop \"Fout bij het printen van de tekst."), std::string::npos);
  EXPECT_NE(verslag_.find("! stop \"Fout bij het opslaan van de tekst."), std::string::npos);
  EXPECT_FALSE(std::filesystem::exists(Map() / "bewaard.txt"));
}

}  // namespace
}  // namespace lb77
