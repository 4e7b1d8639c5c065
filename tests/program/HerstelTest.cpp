// Evenings of repair: a damaged set, what the checks say of it, and how it is mended by hand.
#include <gmock/gmock.h>

#include "program/ProgrammaToets.h"
#include "steun/BouwFamilie.h"
#include "store/OpmVelden.h"
#include "store/PersoonVelden.h"
#include "store/PlaatsVelden.h"
#include "store/RelatieVelden.h"
#include "store/Rubrieken.h"
#include "store/SetPaden.h"

namespace lb77 {
namespace {

constexpr BestandSoort kPrs = BestandSoort::Personen;
constexpr BestandSoort kRlt = BestandSoort::Relaties;
constexpr BestandSoort kOpm = BestandSoort::Opmerkingen;
constexpr BestandSoort kPlt = BestandSoort::Plaatsen;

constexpr std::string_view kChecks =
    "kies ContrPrs\ndruk OKButton\ndruk BackButton\nkies ContrRel\ndruk OKButton\ndruk BackButton\n"
    "kies ContrPlts\ndruk OKButton\ndruk BackButton\nkies ContrOpm\ndruk OKButton\n"
    "druk BackButton\n";

// Persons 2 to 4 and relation 2 as the sample has them; relation 3 of 3 and 4 has sixteen children
// from 5 on and continuation record 4. Person 2 has remark records 2, 3 with 4, and 5.
class HerstelToets : public ProgrammaToets {
 protected:
  void SetUp() override {
    MaakFamilie();
    Speel("", Met([](lb77::Programma& programma) {
            Hoofdmodule& hoofd = programma.Hoofd();
            BouwFamilie bouw(hoofd.Persoon, hoofd.Relatie, hoofd.Plaats, hoofd.Opmerking);
            std::vector<std::int16_t> kinderen;
            for (int i = 0; i < 16; ++i) kinderen.push_back(bouw.Man("Kind", "van Dam"));
            bouw.Relatie(3, 4, kinderen);
            bouw.OpmerkingBijPersoon(2, persoonrubriek::kBeroep, {"een", "twee"});
            bouw.OpmerkingBijPersoon(2, persoonrubriek::kAlgemeen, {"drie"});
          }));
    gaaf_ = Bytes();
    ASSERT_EQ(Bevindingen(), "");
  }

  [[nodiscard]] std::filesystem::path PadVan(BestandSoort soort) const {
    return PadVanSoort(SetPaden::Van(Map() / "DATA", "PROEF"), soort);
  }
  [[nodiscard]] std::vector<std::string> Bytes() const {
    std::vector<std::string> uit;
    for (const BestandSoort soort : kBestandSoorten) uit.push_back(LeesBytes(PadVan(soort)));
    return uit;
  }
  // Writes a number over a field.
  void Beschadig(BestandSoort soort, std::size_t nr, const Veld& veld, int getal) const {
    std::string bytes = LeesBytes(PadVan(soort));
    ZetGetalOp(bytes, RecordLengteVan(soort) * (nr - 1) + veld.plaats,
               static_cast<std::int16_t>(getal));
    SchrijfBytes(PadVan(soort), bytes);
  }
  // What the four checks find, and the boxes that they show.
  std::string Bevindingen() {
    const SpeelUitslag uitslag = Speel(kChecks, Sessie());
    EXPECT_EQ(uitslag.status, 0) << uitslag.reden << verslag_;
    std::string uit;
    for (std::size_t i = verslag_.find("! "); i != std::string::npos;
         i = verslag_.find("! ", i + 1)) {
      uit += verslag_.substr(i, verslag_.find('\n', i) + 1 - i);
    }
    for (const char* naam : {"CTRL_PRS.TMP", "CTRL_REL.TMP", "CTRLPLTS.TMP", "CTRL_OPM.TMP"}) {
      const std::string tekst = LeesBytes(Map() / "TEMP" / naam);
      const std::size_t kop = tekst.find("):\r\n\r\n");
      EXPECT_NE(kop, std::string::npos) << naam;
      if (kop == std::string::npos) continue;
      const std::string regels = tekst.substr(kop + 6, tekst.size() - kop - 8);
      if (regels != "Geen fouten gevonden\r\n") uit += regels;
    }
    return uit;
  }
  // Plays a repair; behind it the checks find nothing, and each byte is what it was.
  void Herstelt(std::string_view draaiboek, const Plek& plek = Plek::current()) {
    Repareert(draaiboek, plek);
    EXPECT_EQ(Bevindingen(), "");
    EXPECT_EQ(Bytes(), gaaf_);
  }
  void Repareert(std::string_view draaiboek, const Plek& plek = Plek::current()) {
    const ::testing::ScopedTrace spoor(plek.file_name(), static_cast<int>(plek.line()), "herstel");
    const SpeelUitslag uitslag = Speel(draaiboek, Sessie());
    EXPECT_EQ(uitslag.status, 0) << uitslag.reden << verslag_;
    EXPECT_TRUE(uitslag.ongebruikt.empty());
  }

  std::vector<std::string> gaaf_;
};

TEST_F(HerstelToets, EenTeHoogAantalPersonen) {
  Beschadig(kPrs, 1, persoonveld::GebPlaatsNr, 400);
  // Told by the checks of persons and of places.
  const std::string melding =
      "! uitroep \"Aantal persoonsrecords in administratierecord is onjuist\\n"
      "Gevonden:20\\nVolgens administratierecord:401\"\n";
  EXPECT_EQ(Bevindingen(), melding + melding);
  Herstelt("kies CorrigeerAdminPers\nantwoord Ja\nvul nieuw_aantal 19\ndruk OKButton");
}

TEST_F(HerstelToets, AantallenInAlleAdministratierecords) {
  Beschadig(kRlt, 1, relatieveld::ManNr, 30000);
  Beschadig(kPlt, 1, plaatsveld::Prov, 77);
  Beschadig(kOpm, 1, opmveld::Rubriek, 9);
  Beschadig(kOpm, 1, opmveld::BijRecord, 1);
  Beschadig(kOpm, 1, opmveld::BijProg, 2);
  EXPECT_NE(Bevindingen(), "");
  Herstelt(R"(
    kies CorrigeerAdminRel
    antwoord Ja
    vul nieuw_aantal 3
    druk OKButton
    kies CorrigeerAdminPlaats
    antwoord Ja
    vul nieuw_aantal 1
    druk OKButton
    kies CorrigeerAdminOpm
    antwoord Ja
    vul nieuw_aantal 5
    vul nieuw_in_gebruik 4
    vul nieuw_ongebruikt 6
    druk OKButton
  )");
}

TEST_F(HerstelToets, EenKindDatUitDeLijstVerdween) {
  Beschadig(kRlt, 2, relatieveld::Kind1, 0);
  EXPECT_EQ(Bevindingen(), "Persoon 2: Kind komt niet voor bij ouders\r\n");
  Herstelt("kies VerwijsRel\nvul RecordNr 2\ndruk OKButton\nvul PersNrKind(1) 2\ndruk OKButton");
}

TEST_F(HerstelToets, EenKindDatZijnOudersKwijtIs) {
  Beschadig(kPrs, 2, persoonveld::RelNrOuders, 0);
  EXPECT_EQ(Bevindingen(), "Relatie 2: Verwijzing naar kind 2 klopt niet\r\n");
  Herstelt("kies VerwijsPers\nvul RecordNr 2\ndruk OKButton\nvul RelNrOuders 2\ndruk OKButton");
}

TEST_F(HerstelToets, EenPartnerDieZijnRelatiesKwijtIs) {
  Beschadig(kPrs, 3, persoonveld::relatie1, 0);
  Beschadig(kPrs, 3, persoonveld::relatie2, 0);
  EXPECT_EQ(Bevindingen(),
            "Relatie 2: Relatie komt niet voor bij persoon 3\r\n"
            "Relatie 3: Relatie komt niet voor bij persoon 3\r\n");
  Herstelt(R"(
    kies VerwijsPers
    vul RecordNr 3
    druk OKButton
    vul RelNrPartner(1) 2
    vul RelNrPartner(2) 3
    druk OKButton
  )");
}

TEST_F(HerstelToets, EenVerlorenVervolgrecord) {
  Beschadig(kRlt, 3, relatieveld::Kind15, 0);
  EXPECT_EQ(Bevindingen(),
            "Persoon 19: Kind komt niet voor bij ouders\r\n"
            "Persoon 20: Kind komt niet voor bij ouders\r\n");
  Herstelt("kies VerwijsRel\nvul RecordNr 3\ndruk OKButton\nvul Vervolgrecord 4\ndruk OKButton");
}

TEST_F(HerstelToets, EenVervolgrecordDatZijnKinderenKwijtIs) {
  Beschadig(kRlt, 4, relatieveld::Kind1, 0);
  Beschadig(kRlt, 4, relatieveld::Kind2, 4);
  EXPECT_EQ(Bevindingen(),
            "Persoon 19: Kind komt niet voor bij ouders\r\n"
            "Persoon 20: Kind komt niet voor bij ouders\r\n"
            "Relatie 3: Verwijzing naar kind 4 klopt niet\r\n");
  Herstelt(R"(
    kies VerwijsRelVervolg
    vul RecordNr 4
    druk OKButton
    vul PersNrKind(1) 19
    vul PersNrKind(2) 20
    druk OKButton
  )");
}

TEST_F(HerstelToets, EenGebrokenKettingVanOpmerkingen) {
  Beschadig(kOpm, 2, opmveld::BijZelfde, 0);
  EXPECT_EQ(Bevindingen(),
            "Opmerking 3 verwijst niet naar P2\r\nOpmerking 4 verwijst niet naar P2\r\n"
            "Opmerking 5 verwijst niet naar P2\r\n");
  Herstelt("kies VerwijsOpm\nvul RecordNr 2\ndruk OKButton\nvul VolgOpmTekst 3\ndruk OKButton");
}

TEST_F(HerstelToets, EenRegelDieNergensBijHoort) {
  Beschadig(kOpm, 3, opmveld::VolgRegel, 0);
  Beschadig(kOpm, 5, opmveld::BijRecord, 4);
  EXPECT_EQ(Bevindingen(),
            "Opmerking 4 verwijst niet naar P2\r\nOpmerking 5 verwijst niet naar P4\r\n");
  Herstelt(R"(
    kies VerwijsOpm
    vul RecordNr 3
    druk OKButton
    vul VolgRegelTekst 4
    druk OKButton
    kies VerwijsOpm
    vul RecordNr 5
    druk OKButton
    vul BijRecordTekst 2
    druk OKButton
  )");
}

TEST_F(HerstelToets, EenPersoonDieZijnOpmerkingenKwijtIs) {
  Beschadig(kPrs, 2, persoonveld::OpmRecord, 0);
  Beschadig(kPrs, 2, persoonveld::OpmCode, 0);
  EXPECT_EQ(Bevindingen(),
            "Opmerking 2 verwijst niet naar P2\r\nOpmerking 3 verwijst niet naar P2\r\n"
            "Opmerking 4 verwijst niet naar P2\r\nOpmerking 5 verwijst niet naar P2\r\n");
  Herstelt(R"(
    kies VerwijsPers
    vul RecordNr 2
    druk OKButton
    vul EersteOpm 2
    vul RubriekTekst(2) +
    vul RubriekTekst(12) +
    vul RubriekTekst(13) +
    druk OKButton
  )");
}

// The place itself stays in its file, and nobody names it any more.
TEST_F(HerstelToets, EenDubbelePlaats) {
  Speel("", Met([](lb77::Programma& programma) {
          Hoofdmodule& hoofd = programma.Hoofd();
          BouwFamilie bouw(hoofd.Persoon, hoofd.Relatie, hoofd.Plaats, hoofd.Opmerking);
          bouw.Plaats("Delft", "ZH");
          bouw.WijzigPersoon(5, {{"GebPlaats", 3}, {"OvlPlaats", 3}});
          bouw.WijzigRelatie(3, {{"WHuwPlaats", 3}});
        }));
  const std::string dubbel = "Plaats 2(Delft,ZH) komt ook voor bij plaatscode 3\r\n";
  EXPECT_EQ(Bevindingen(), dubbel);
  Repareert(R"(
    kies VerwijsPlaats
    vul PlaatsNrOud 3
    vul PlaatsNrNieuw 2
    antwoord Ja
    druk OKButton
    druk OKButton
  )");
  EXPECT_EQ(Bevindingen(), dubbel + "Plaats 3(Delft,ZH) wordt niet gebruikt\r\n");
  // Undone, everything stands as before the replacement.
  Repareert("antwoord Ja\nkies VeiligOngedaan");
  EXPECT_EQ(Bevindingen(), dubbel);
}

TEST_F(HerstelToets, WatHersteldIsKanOngedaan) {
  Beschadig(kRlt, 2, relatieveld::Kind1, 0);
  const auto voor = Bytes();
  Repareert("kies VerwijsRel\nvul RecordNr 2\ndruk OKButton\nvul PersNrKind(1) 2\ndruk OKButton");
  Repareert("antwoord Ja\nkies VeiligOngedaan");
  EXPECT_EQ(Bytes(), voor);
}

TEST_F(HerstelToets, ElkeCorrectieHeeftHaarKeuzeInHetMenu) {
  const std::pair<std::string, std::string> keuzen[] = {
      {"CorrigeerAdminPers", "CorrPrsAdm"},       {"CorrigeerAdminRel", "CorrRelAdm"},
      {"CorrigeerAdminOpm", "CorrOpmAdm"},        {"CorrigeerAdminPlaats", "CorrPltsAdm"},
      {"VerwijsPers", "VraagPersRecord"},         {"VerwijsRel", "VraagRelRecord"},
      {"VerwijsOpm", "VraagOpmRecord"},           {"VerwijsPlaats", "CorrPltsAlg"},
      {"VerwijsPersVervolg", "VraagPersVervolg"}, {"VerwijsRelVervolg", "VraagRelVervolg"},
  };
  for (const auto& [keuze, vorm] : keuzen) {
    Repareert("kies " + keuze + "\nsluit");
    EXPECT_THAT(verslag_, ::testing::HasSubstr("+ " + vorm + " \"")) << keuze;
  }
}

}  // namespace
}  // namespace lb77
