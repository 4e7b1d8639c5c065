// The ways to a family, with a set open and without, and what they leave behind when they fail.
#include <gtest/gtest.h>

#include "app/ZonderRechten.h"
#include "program/ProgrammaToets.h"
#include "program/Vensterloop.h"
#include "steun/Bestandsstelsel.h"
#include "store/Platform.h"

namespace lb77 {
namespace {

constexpr std::string_view kGedcom =
    "0 HEAD\n1 CHAR ANSEL\n0 @I1@ INDI\n1 NAME Jan /van Dam/\n1 SEX M\n0 TRLR\n";
constexpr std::string_view kNiemand = "0 HEAD\n1 CHAR ANSEL\n0 TRLR\n";

// The program of a user, with the set PROEF open.
class WegenTest : public ProgrammaToets {
 protected:
  Opstart opstart_{.programmaMap = Map(), .installatie = {Map()}, .bestand = {}};
  void SetUp() override {
    MaakFamilie();
    basismap_ = Map();
  }
  SpeelToets::Programma Venster() {
    return [this](Gesprek& gesprek) { VoerVoorGebruiker(gesprek, klok_, opstart_); };
  }
  [[nodiscard]] std::string Ini() const { return LeesBytes(Map() / "LIJNBOOM.INI"); }
  [[nodiscard]] bool Heeft(const std::string& regel) const {
    return Ini().find("\r\n" + regel + "\r\n") != std::string::npos;
  }
  // The transcript between the opening of the main window and its end, with "<map>" for the directory.
  void InVenster(const std::string& script, std::string verslag,
                 const Plek& plek = Plek::current()) {
    for (std::size_t i = 0; (i = verslag.find("<map>", i)) != std::string::npos;) {
      verslag.replace(i, 5, Map().string());
    }
    Verwacht(script + "\nkies KeuzeAfsluiten", Venster(),
             "+ MenuWindow \"LB77 voor Windows\"\n" + verslag + "\n- MenuWindow", plek);
  }

 private:
  VasteKlok klok_{{2026, 11, 21, 12, 0, 0}};
};

TEST_F(WegenTest, HetVoorbeeldIsOokTeBekijkenAlsErEenFamilieOpenIs) {
  SchrijfBytes(Map() / "voorbeeld/oranje-nassau.ged", kGedcom);
  InVenster("toon StartKop\nkies VoorbeeldSet\ntoon StartKop", R"~(
      = StartKop "Proeffamilie (PROEF)"
      + ImpGedcom "Importeer Gegevens - Gedcom"
      - ImpGedcom
      = StartKop "Huis Oranje-Nassau (ORANJE)")~");
  EXPECT_TRUE(Heeft("Set1=PROEF,Proeffamilie"));
  EXPECT_TRUE(Heeft("Set2=ORANJE,Huis Oranje-Nassau"));
}

TEST_F(WegenTest, OudeBestandenKunnenErOokDanBij) {
  std::filesystem::copy(Map() / "DATA/PROEF", Map() / "disk");
  InVenster("kies OudeSet\nvul OudeMap disk\ndruk OKButton\ntoon StartKop", R"~(
      + OudeSetForm "Oude Bestanden Openen"
      - OudeSetForm
      = StartKop "PROEF2")~");
}

TEST_F(WegenTest, EenGedcomBestandKomtVanuitHetMenuInEenNieuweSet) {
  SchrijfBytes(Map() / "oma.ged", kGedcom);
  InVenster(R"(bestand oma.ged
               kies GedcomSet
               druk OKButton
               druk OKButton
               druk BackButton
               druk BackButton
               toon StartKop)",
            R"~(
      > openen "GEDCOM-bestanden (*.GED)|*.GED|Alle Bestanden (*.*)|*.*|Tekstbestanden (*.txt)|*.txt" -> "oma.ged"
      + InWelkeSet "GEDCOM Inlezen"
      - InWelkeSet
      + ImpGedcom "Importeer Gegevens - Gedcom"
      ! info "Importeren voltooid"
      + ToonTekst "Importeren - Resultaat"
      - ToonTekst
      - ImpGedcom
      = StartKop "OMA")~");
}

TEST_F(WegenTest, WatGeenGedcomBestandIsMaaktGeenSet) {
  std::filesystem::create_directories(Map() / "map.ged");
  SchrijfBytes(Map() / "leeg.ged", "");
  SchrijfBytes(Map() / "foto.ged", "\xFF\xD8\xFF\xE0 JFIF 0 HEAD");
  const std::string vraag =
      "\n> openen \"GEDCOM-bestanden (*.GED)|*.GED|Alle Bestanden (*.*)|*.*|Tekstbestanden "
      "(*.txt)|*.txt\" -> ";
  InVenster(R"(bestand map.ged
               kies GedcomSet
               bestand leeg.ged
               kies GedcomSet
               antwoord Nee
               bestand foto.ged
               kies GedcomSet
               toon StartKop)",
            vraag + "\"map.ged\"\n! uitroep \"<map>/map.ged is een map en geen GEDCOM-bestand\"" +
                vraag + "\"leeg.ged\"\n! uitroep \"Het bestand <map>/leeg.ged is leeg\"" + vraag +
                "\"foto.ged\"\n? vraag Ja/Nee \"<map>/foto.ged ziet er niet uit als een "
                "GEDCOM-bestand: het begint niet met 0 HEAD.\\nToch inlezen ?\" -> Nee\n= StartKop "
                "\"Proeffamilie (PROEF)\"");
  EXPECT_FALSE(std::filesystem::exists(Map() / "DATA/FOTO"));
}

TEST_F(WegenTest, WatNietTeLezenIsMaaktGeenSet) {
  if (!ZonderRechten::kKan) GTEST_SKIP() << ZonderRechten::kWaarom;
  SchrijfBytes(Map() / "disk/oma.ged", kGedcom);
  std::filesystem::permissions(Map() / "disk/oma.ged", std::filesystem::perms(0));
  for (const auto& plek : std::filesystem::recursive_directory_iterator(Map() / "DATA")) {
    std::filesystem::permissions(plek.path(), std::filesystem::perms(0777));
  }
  for (const char* naam : {"", "DATA", "LIJNBOOM.INI", "TEMP"}) {
    std::error_code code;
    std::filesystem::permissions(Map() / naam, std::filesystem::perms(0777), code);
  }
  opstart_.bestand = Map() / "disk/oma.ged";
  const ZonderRechten rechten(Map() / "disk");
  InVenster("toon StartKop", R"~(
      ! stop "Het bestand <map>/disk/oma.ged kan niet worden gelezen\nGeen toegang"
      = StartKop "Proeffamilie (PROEF)")~");
}

// In any of the encodings that are told apart, and behind blank lines.
TEST_F(WegenTest, HetBeginVanEenGedcomBestandWordtHerkend) {
  const std::string_view utf16(
      "\xFF\xFE"
      "0\0 \0H\0E\0A\0D\0\n\0",
      16);
  int nummer = 0;
  for (const std::string_view begin :
       {std::string_view("\xEF\xBB\xBF"
                         "0 HEAD\n"),
        std::string_view("\r\n 0  HEAD\r\n"), utf16, std::string_view("0\thead\n")}) {
    opstart_.bestand = Map() / ("f" + std::string(1, static_cast<char>('1' + nummer++)) + ".ged");
    SchrijfBytes(*opstart_.bestand, begin);
    InVenster("druk BackButton", "+ InWelkeSet \"GEDCOM Inlezen\"\n- InWelkeSet");
  }
}

TEST_F(WegenTest, WieTerugGaatHeeftGeenLegeSetEnZijnEigenFamilieWeer) {
  SchrijfBytes(Map() / "oma.ged", kGedcom);
  opstart_.bestand = Map() / "oma.ged";
  InVenster("druk OKButton\ndruk BackButton\ntoon StartKop", R"~(
      + InWelkeSet "GEDCOM Inlezen"
      - InWelkeSet
      + ImpGedcom "Importeer Gegevens - Gedcom"
      - ImpGedcom
      ! uitroep "Er is niets ingelezen. De lege bestandenset OMA is weer weggehaald."
      = StartKop "Proeffamilie (PROEF)")~");
  EXPECT_FALSE(std::filesystem::exists(Map() / "DATA/OMA"));
  EXPECT_TRUE(Heeft("Set1=PROEF,Proeffamilie"));
  EXPECT_TRUE(Heeft("Set=PROEF"));
  EXPECT_EQ(Ini().find("OMA"), std::string::npos) << Ini();
}

TEST_F(WegenTest, EenBestandZonderPersonenLaatOokNietsAchter) {
  SchrijfBytes(Map() / "oma.ged", kNiemand);
  opstart_.bestand = Map() / "oma.ged";
  EXPECT_EQ(Speel("druk OKButton\ndruk OKButton\ndruk BackButton\ndruk BackButton\nkies "
                  "KeuzeAfsluiten",
                  Venster())
                .reden,
            "");
  EXPECT_NE(verslag_.find("De lege bestandenset OMA is weer weggehaald."), std::string::npos)
      << verslag_;
  EXPECT_FALSE(std::filesystem::exists(Map() / "DATA/OMA"));
}

// The directory was somebody's before; so may be what is in it.
TEST_F(WegenTest, EenSetInEenMapDieErAlWasBlijft) {
  SchrijfBytes(Map() / "oma.ged", kGedcom);
  SchrijfBytes(Map() / "DATA/OPA/TEKST/brief.txt", "van mij");
  opstart_.bestand = Map() / "oma.ged";
  EXPECT_EQ(Speel("vul SetNaam OPA\ndruk OKButton\ndruk BackButton\ntoon StartKop\nkies "
                  "KeuzeAfsluiten",
                  Venster())
                .reden,
            "");
  EXPECT_NE(verslag_.find("= StartKop \"OPA\""), std::string::npos) << verslag_;
  EXPECT_EQ(LeesBytes(Map() / "DATA/OPA/TEKST/brief.txt"), "van mij");
}

TEST_F(WegenTest, EenLegeSetDieErAlWasBlijft) {
  SchrijfBytes(Map() / "oma.ged", kGedcom);
  opstart_.bestand = Map() / "oma.ged";
  InVenster("druk BestaandeOptie\ndruk OKButton\ndruk BackButton\ntoon StartKop", R"~(
      + InWelkeSet "GEDCOM Inlezen"
      - InWelkeSet
      + ImpGedcom "Importeer Gegevens - Gedcom"
      - ImpGedcom
      = StartKop "Proeffamilie (PROEF)")~");
}

TEST_F(WegenTest, EenVoorbeeldWaarinNietsStaatBlijftNiet) {
  SchrijfBytes(Map() / "voorbeeld/oranje-nassau.ged", kNiemand);
  InVenster("kies VoorbeeldSet\ntoon StartKop", R"~(
      + ImpGedcom "Importeer Gegevens - Gedcom"
      - ImpGedcom
      ! uitroep "Er is niets ingelezen. De lege bestandenset ORANJE is weer weggehaald."
      = StartKop "Proeffamilie (PROEF)")~");
  EXPECT_EQ(Ini().find("ORANJE"), std::string::npos) << Ini();
}

// A second program, started by a double click on a file.
TEST_F(WegenTest, EenBestandWordtGevraagdOokAlIsDeLaatsteSetEldersOpen) {
  Bestandsgreep ander;
  ASSERT_FALSE(ander.Open(Map() / "DATA/PROEF/PROEF.PRS"));
  ASSERT_FALSE(ander.Vergrendel());
  SchrijfBytes(Map() / "oma.ged", kGedcom);
  opstart_.bestand = Map() / "oma.ged";
  InVenster("druk BackButton\ntoon StartKop", R"~(
      + InWelkeSet "GEDCOM Inlezen"
      - InWelkeSet
      = StartKop "LB77 voor Windows")~");
  opstart_.bestand.reset();
  Verwacht("antwoord Nee\nkies KeuzeAfsluiten", Venster(), R"~(
      ? vraag Ja/Nee "Deze bestandenset is al in gebruik.\nToch openen ?" -> Nee
      + MenuWindow "LB77 voor Windows"
      - MenuWindow)~");
}

TEST_F(WegenTest, FamiliesZonderInstellingenKomenTerug) {
  std::filesystem::remove(Map() / "LIJNBOOM.INI");
  std::filesystem::remove(Map() / "LB77_INI.BAK");
  Verwacht("druk Terugnemen\ntoon StartKop\nkies KeuzeAfsluiten", Venster(), R"~(
      + Welkom "LB77 voor Windows"
      - Welkom
      + MenuWindow "LB77 voor Windows"
      = StartKop "PROEF"
      - MenuWindow)~");
  EXPECT_TRUE(Heeft("Set1=PROEF,"));
}

TEST_F(WegenTest, EenAndereDataDirectoryNeemtDeFamiliesMee) {
  InVenster(R"(antwoord Ja
               kies SetupSysteem
               vul DataDirTekst nieuw
               druk OKButton
               toon StartTelling
               kies VeiligKopie)",
            R"~(
      + IniSysteem "Systeem Instellingen - Systeem"
      ? vraag Ja/Nee "Uw families staan in <map>/DATA.\nNaar <map>/nieuw worden gekopieerd: PROEF.\nWat in de oude map staat blijft daar staan. Doorgaan ?" -> Ja
      - IniSysteem
      = StartTelling "3 personen, 1 relatie, 1 plaats"
      ! info "Veiligheidskopie gemaakt: <map>/KOPIE/PROEF/2026-11-21_120000")~");
  EXPECT_TRUE(std::filesystem::exists(Map() / "nieuw/PROEF/PROEF.PRS"));
}

}  // namespace
}  // namespace lb77
