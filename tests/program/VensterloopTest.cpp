// The program as a user has it: the first minute, and the start page at work.
#include <gtest/gtest.h>

#include "program/ProgrammaToets.h"
#include "program/Vensterloop.h"
#include "steun/Bestandsstelsel.h"

namespace lb77 {
namespace {

constexpr std::string_view kGedcom =
    "0 HEAD\n1 CHAR ANSEL\n0 @I1@ INDI\n1 NAME Jan /van Dam/\n1 SEX M\n1 BIRT\n2 DATE 1 FEB 1900\n"
    "2 PLAC Delft\n0 TRLR\n";

class VensterloopTest : public ProgrammaToets {
 protected:
  Opstart opstart_{.programmaMap = Map() / "thuis", .installatie = {Map()}, .bestand = {}};
  SpeelToets::Programma Venster() {
    return [this](Gesprek& gesprek) { VoerVoorGebruiker(gesprek, klok_, opstart_); };
  }
  [[nodiscard]] std::string Bytes(const char* naam) const {
    return LeesBytes(opstart_.programmaMap / naam);
  }

 private:
  VasteKlok klok_{{2026, 11, 21, 12, 0, 0}};
};

TEST_F(VensterloopTest, WieNietsKiestVerlaatHetProgrammaEnHeeftNiets) {
  Verwacht("sluit", Venster(), R"(+ Welkom "LB77 voor Windows"
                                  - Welkom)");
  EXPECT_FALSE(std::filesystem::exists(opstart_.programmaMap));
}

TEST_F(VensterloopTest, DeEersteMinuutIsEenWelkomEnDanDeGekozenWeg) {
  Verwacht(R"(druk NieuweFamilie
              vul SetNaam jansen
              druk OKButton
              toon StartTelling
              kies KeuzeAfsluiten)",
           Venster(), R"(
      + Welkom "LB77 voor Windows"
      - Welkom
      + MenuWindow "LB77 voor Windows"
      + NieuweSet "Nieuwe Bestandenset"
      - NieuweSet
      = StartTelling "0 personen, 0 relaties, 0 plaatsen"
      - MenuWindow)");
  EXPECT_NE(Bytes("LIJNBOOM.INI").find("\r\nSet1=JANSEN,\r\n"), std::string::npos);
  // The second time nobody is welcomed.
  Verwacht("toon StartKop\nkies KeuzeAfsluiten", Venster(), R"(
      + MenuWindow "LB77 voor Windows"
      = StartKop "JANSEN"
      - MenuWindow)");
}

TEST_F(VensterloopTest, DeVoorbeeldfamilieStaatErZonderVerdereVragen) {
  SchrijfBytes(Map() / "voorbeeld/oranje-nassau.ged", kGedcom);
  Verwacht(R"(druk Voorbeeldfamilie
              toon StartKop
              toon StartTelling
              kies KeuzeAfsluiten)",
           Venster(), R"~(
      + Welkom "LB77 voor Windows"
      - Welkom
      + MenuWindow "LB77 voor Windows"
      + ImpGedcom "Importeer Gegevens - Gedcom"
      - ImpGedcom
      = StartKop "Huis Oranje-Nassau (ORANJE)"
      = StartTelling "1 persoon, 0 relaties, 1 plaats"
      - MenuWindow)~");
}

TEST_F(VensterloopTest, HetVoorbeeldBrengtZijnGezindtenMeeVoorWieErGeenHeeft) {
  SchrijfBytes(Map() / "voorbeeld/oranje-nassau.ged",
               "0 HEAD\n1 CHAR ANSEL\n0 @I1@ INDI\n1 NAME Jan /van Dam/\n1 SEX M\n1 BAPM\n"
               "2 DATE 1 FEB 1900\n1 RELI Nederlands Hervormd\n0 TRLR\n");
  SchrijfBytes(Map() / "voorbeeld/LIJNBOOM.INI",
               "[Namenfile]\r\nGez1=RKRooms-Katholiek\r\nGez2=NHNederlands Hervormd\r\n\r\n"
               "[Genealogie]\r\nDatumForm=1\r\n");
  constexpr std::string_view kBoek = R"(druk Voorbeeldfamilie
                                        kies TekstKwst
                                        vul RecordNr 2
                                        druk OKButton
                                        druk OKButton
                                        toon UitvoerBox
                                        druk BackButton
                                        kies KeuzeAfsluiten)";
  EXPECT_EQ(Speel(kBoek, Venster()).reden, "");
  EXPECT_NE(verslag_.find("ged.Nederlands Hervormd 1-2-1900"), std::string::npos) << verslag_;
  EXPECT_NE(Bytes("LIJNBOOM.INI").find("\r\nGez2=NHNederlands Hervormd\r\n"), std::string::npos);
}

TEST_F(VensterloopTest, DieErAlZijnBlijven) {
  SchrijfBytes(Map() / "voorbeeld/oranje-nassau.ged", kGedcom);
  SchrijfBytes(Map() / "voorbeeld/LIJNBOOM.INI", "[Namenfile]\r\nGez1=RKRooms-Katholiek\r\n");
  SchrijfBytes(opstart_.programmaMap / "LIJNBOOM.INI", "[Namenfile]\r\nGez1=DGDoopsgezind\r\n");
  EXPECT_EQ(Speel("druk Voorbeeldfamilie\nkies KeuzeAfsluiten", Venster()).reden, "");
  EXPECT_NE(Bytes("LIJNBOOM.INI").find("\r\nGez1=DGDoopsgezind\r\n"), std::string::npos);
}

TEST_F(VensterloopTest, EenVoorbeeldDatErAlIsWordtGeopendEnNietNogEensGemaakt) {
  SchrijfBytes(Map() / "voorbeeld/oranje-nassau.ged", kGedcom);
  SchrijfBytes(opstart_.programmaMap / "DATA/ORANJE/van mij", "");
  Speel("druk Voorbeeldfamilie\nkies KeuzeAfsluiten", Venster());
  EXPECT_NE(Bytes("LIJNBOOM.INI").find("\r\nSet1=ORANJE2,Huis Oranje-Nassau\r\n"),
            std::string::npos);
  std::filesystem::remove_all(opstart_.programmaMap / "DATA/ORANJE2");
  Verwacht("druk Voorbeeldfamilie\nkies KeuzeAfsluiten", Venster(),
           R"~(
      ! stop "Fout bij het openen van het Persoonsbestand ()~" +
               opstart_.programmaMap.string() +
               R"~(/DATA/ORANJE2/ORANJE2.PRS, 53 Bestand niet gevonden)"
      + MenuWindow "LB77 voor Windows"
      ! stop "Fout bij het openen van het Persoonsbestand ()~" +
               opstart_.programmaMap.string() +
               R"~(/DATA/ORANJE2/ORANJE2.PRS, 53 Bestand niet gevonden)"
      - MenuWindow)~");
}

TEST_F(VensterloopTest, ZonderVoorbeeldWordtHetGezegd) {
  Verwacht("druk Voorbeeldfamilie\nkies KeuzeAfsluiten", Venster(), R"~(
      + Welkom "LB77 voor Windows"
      - Welkom
      + MenuWindow "LB77 voor Windows"
      ! uitroep "De voorbeeldfamilie (oranje-nassau.ged) is niet bij het programma gevonden"
      - MenuWindow)~");
}

TEST_F(VensterloopTest, EenVoorbeeldDatNietTeLezenIsToontHetVerslag) {
  SchrijfBytes(Map() / "voorbeeld/oranje-nassau.ged", "geen gedcom\n");
  const SpeelUitslag uitslag = Speel(
      "druk Voorbeeldfamilie\ndruk BackButton\ndruk BackButton\nkies KeuzeAfsluiten", Venster());
  EXPECT_EQ(uitslag.reden, "");
  EXPECT_NE(verslag_.find("+ ToonTekst \"Importeren - Resultaat\""), std::string::npos) << verslag_;
}

TEST_F(VensterloopTest, EenGedcomBestandWordtGevraagdEnInEenNieuweSetGelezen) {
  SchrijfBytes(Map() / "oma.ged", kGedcom);
  basismap_ = Map();
  Verwacht(R"(bestand oma.ged
              druk GedcomInlezen
              druk OKButton
              toon Bestandsnaam
              druk OKButton
              druk BackButton
              druk BackButton
              toon StartKop
              toon StartTelling
              kies KeuzeAfsluiten)",
           Venster(),
           R"~(
      + Welkom "LB77 voor Windows"
      - Welkom
      + MenuWindow "LB77 voor Windows"
      > openen "GEDCOM-bestanden (*.GED)|*.GED|Alle Bestanden (*.*)|*.*|Tekstbestanden (*.txt)|*.txt" -> "oma.ged"
      + InWelkeSet "GEDCOM Inlezen"
      - InWelkeSet
      + ImpGedcom "Importeer Gegevens - Gedcom"
      = Bestandsnaam ")~" +
               (Map() / "oma.ged").string() + R"~("
      ! info "Importeren voltooid"
      + ToonTekst "Importeren - Resultaat"
      - ToonTekst
      - ImpGedcom
      = StartKop "OMA"
      = StartTelling "1 persoon, 0 relaties, 1 plaats"
      - MenuWindow)~");
}

TEST_F(VensterloopTest, EenBestandVanDeOpdrachtregelWordtMeteenGevraagd) {
  SchrijfBytes(Map() / "oma.ged", kGedcom);
  opstart_.bestand = Map() / "oma.ged";
  // Chosen as the way too it is asked for once.
  Verwacht("druk GedcomInlezen\ndruk BackButton\nkies KeuzeAfsluiten", Venster(), R"(
      + Welkom "LB77 voor Windows"
      - Welkom
      + MenuWindow "LB77 voor Windows"
      + InWelkeSet "GEDCOM Inlezen"
      - InWelkeSet
      - MenuWindow)");
  opstart_.bestand = Map() / "weg.ged";
  Verwacht("kies KeuzeAfsluiten", Venster(),
           R"(
      + MenuWindow "LB77 voor Windows"
      ! uitroep "Het bestand )" +
               opstart_.bestand->string() +
               R"( is er niet"
      - MenuWindow)");
}

TEST_F(VensterloopTest, OudeBestandenHebbenHunEigenVenster) {
  Verwacht("druk OudeBestanden\ndruk BackButton\nkies KeuzeAfsluiten", Venster(), R"(
      + Welkom "LB77 voor Windows"
      - Welkom
      + MenuWindow "LB77 voor Windows"
      + OudeSetForm "Oude Bestanden Openen"
      - OudeSetForm
      - MenuWindow)");
}

TEST_F(VensterloopTest, HetStartbladDoetHetDagelijkseWerk) {
  MaakFamilie();
  opstart_.programmaMap = Map();
  Verwacht(R"(druk ZoekButton
              druk RecordNrPrs(1)
              druk BackButton
              druk InvoerButton
              druk BackButton
              druk KwstButton
              druk BackButton
              druk KopieButton
              stel GezienLijst #0
              toets GezienLijst Enter
              druk BackButton
              kies KeuzeAfsluiten)",
           Venster(),
           R"~(
      + MenuWindow "LB77 voor Windows"
      + ZoekPrs "Zoek Persoon"
      - ZoekPrs
      + ToonPersoon "Toon Persoon"
      - ToonPersoon
      + StartRecord "Start Persoon / Relatie"
      - StartRecord
      + KwstTxtPrs "Nummer Proband"
      - KwstTxtPrs
      ! info "Veiligheidskopie gemaakt: )~" +
               (Map() / "KOPIE/PROEF/2026-11-21_120000").string() + R"~("
      + ToonPersoon "Toon Persoon"
      - ToonPersoon
      - MenuWindow)~");
  EXPECT_EQ(LeesBytes(Map() / "GEZIEN.TXT"), "PROEF,2\r\n");
}

TEST_F(VensterloopTest, DeHandleidingStaatInHetMenu) {
  MaakFamilie();
  opstart_.programmaMap = Map();
  Verwacht("kies Handleid\nkies KeuzeAfsluiten", Venster(), R"~(
      + MenuWindow "LB77 voor Windows"
      ! uitroep "De handleiding (handleiding.html) is niet bij het programma gevonden"
      - MenuWindow)~");
  SchrijfBytes(Map() / "handleiding.html", "x");
  Verwacht("kies Handleid\nkies KeuzeAfsluiten", Venster(),
           R"~(
      + MenuWindow "LB77 voor Windows"
      ! info "De handleiding staat in )~" +
               (Map() / "handleiding.html").string() + R"~("
      - MenuWindow)~");
}

// Lower case names, no TEKST, and the places in the data directory alone.
TEST_F(VensterloopTest, EenSetVanEenDosDiskGaatOpenEnWerkt) {
  MaakFamilie();
  opstart_.programmaMap = Map();
  const std::filesystem::path data = Map() / "DATA";
  std::filesystem::rename(data / "PROEF/PROEF.PLT", data / "plaats.plt");
  for (const auto& [groot, klein] : {std::pair{"PRS", "prs"}, {"RLT", "rlt"}, {"OPM", "opm"}}) {
    std::filesystem::rename(data / "PROEF" / (std::string("PROEF.") + groot),
                            data / "PROEF" / (std::string("proef.") + klein));
  }
  std::filesystem::remove_all(data / "PROEF/TEKST");
  std::filesystem::rename(data / "PROEF", data / "proef");
  const std::string plaatsen = LeesBytes(data / "plaats.plt");
  const SpeelUitslag uitslag = Speel(R"(druk KwstButton
                                        vul RecordNr 2
                                        druk OKButton
                                        druk OKButton
                                        toon UitvoerBox
                                        druk BackButton
                                        kies KeuzeAfsluiten)",
                                     Venster());
  EXPECT_EQ(uitslag.reden, "");
  EXPECT_NE(verslag_.find("geb. Delft 1-2-1900"), std::string::npos) << verslag_;
  EXPECT_EQ(LeesBytes(data / "plaats.plt"), plaatsen);
  EXPECT_FALSE(std::filesystem::exists(data / "proef/PROEF.PLT"));
  EXPECT_EQ(std::filesystem::exists(data / "PROEF"), !kKastTelt);
}

TEST_F(VensterloopTest, EenDraaiboekKentGeenWelkomEnGeenStartblad) {
  Verwacht("antwoord OK\nkies KeuzeAfsluiten", Sessie(), R"~(
      ? uitroep OK/Annuleren "Fout bij het openen van het IniBestand (LIJNBOOM.INI)\nBestand niet gevonden\n\nDruk op OK om een nieuw IniBestand te maken\nDruk op CANCEL om te stoppen" -> OK
      + MenuWindow "LB77 voor Windows"
      - MenuWindow)~");
}

}  // namespace
}  // namespace lb77
