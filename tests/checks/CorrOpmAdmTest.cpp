// Mending the admin record of the remarks.
#include "checks/CorrToets.h"
#include "steun/TijdelijkeMap.h"
#include "store/Rubrieken.h"
#include "store/SetPaden.h"

namespace lb77 {
namespace {

constexpr std::string_view kVraag =
    R"(? uitroep Ja/Nee "Opslaan is een nu risico.\n\nGa niet door zonder backup van de Bestandenset !!\n\nDoorgaan ?" -> )";

// Record 1, four lines in use from 2 to 5.
class CorrOpmAdmTest : public CorrToets {
 protected:
  void SetUp() override {
    Bouw().Man("Jan", "Vos");
    Bouw().OpmerkingBijPersoon(2, persoonrubriek::kVoornaam, {"een", "twee"});
    Bouw().OpmerkingBijPersoon(2, persoonrubriek::kBeroep, {"drie", "vier"});
  }
  static void Dialoog(Hoofdmodule& hoofd) { hoofd.gesprek.Toon<CorrOpmAdm>(hoofd); }
  void SpeeltHier(std::string_view draaiboek, std::string_view verslag,
                  const Plek& plek = Plek::current()) {
    Speelt(draaiboek, Dialoog, "CorrOpmAdm", "Corrigeer Adminstratierecord Opmerkingenbestand",
           verslag, plek);
  }
};

TEST_F(CorrOpmAdmTest, ToontDrieTellingenNaastWatErIs) {
  ZetGetal(kOpm, 1, opmveld::Rubriek, 7);
  ZetGetal(kOpm, 1, opmveld::BijRecord, -3);
  ZetGetal(kOpm, 4, opmveld::Rubriek, 0);
  SpeeltHier("toon\ndruk BackButton", R"(
      : CorrOpmAdm "Corrigeer Adminstratierecord Opmerkingenbestand"
      = aantal_in_rec1 "7"
      = gevonden_aantal "5"
      = nieuw_aantal ""
      = gebruikt_in_rec1 "-3"
      = gevonden_in_gebruik "3"
      = nieuw_in_gebruik ""
      = ongebruikt_in_rec1 "6"
      = gevonden_ongebruikt "4"
      = nieuw_ongebruikt ""
      = OKButton "&OK"
      = BackButton "&Terug"
      * nieuw_aantal
    )");
}

TEST_F(CorrOpmAdmTest, ElkNieuwAantalHeeftZijnGrenzen) {
  SpeeltHier(R"(
      vul nieuw_aantal 0
      vul nieuw_aantal 6
      vul nieuw_aantal 3x
      vul nieuw_aantal 1
      vul nieuw_aantal 5
      vul nieuw_in_gebruik 0
      vul nieuw_in_gebruik 6
      vul nieuw_in_gebruik 5
      vul nieuw_ongebruikt 7
      vul nieuw_ongebruikt 99999
      vul nieuw_ongebruikt -1
      vul nieuw_ongebruikt 6
      vul nieuw_ongebruikt 0
      vul nieuw_ongebruikt 7
      toets Tab
      toon
      druk BackButton
    )",
             R"(
      ! uitroep "Het aantal moet tussen 1 en 5 liggen"
      ! uitroep "Het aantal moet tussen 1 en 5 liggen"
      ! uitroep "Het aantal moet tussen 1 en 5 liggen"
      ! uitroep "Het aantal moet tussen 1 en 5 liggen"
      ! uitroep "Het aantal moet tussen 1 en 5 liggen"
      ! uitroep "Het aantal moet tussen 0 en 6 liggen"
      ! uitroep "Het aantal moet tussen 0 en 6 liggen"
      ! uitroep "Het aantal moet tussen 0 en 6 liggen"
      ! uitroep "Het aantal moet tussen 0 en 6 liggen"
      ! uitroep "Het aantal moet tussen 0 en 6 liggen"
      : CorrOpmAdm "Corrigeer Adminstratierecord Opmerkingenbestand"
      = aantal_in_rec1 "5"
      = gevonden_aantal "5"
      = nieuw_aantal "5"
      = gebruikt_in_rec1 "4"
      = gevonden_in_gebruik "4"
      = nieuw_in_gebruik "5"
      = ongebruikt_in_rec1 "6"
      = gevonden_ongebruikt "6"
      = nieuw_ongebruikt "7"
      = OKButton "&OK"
      = BackButton "&Terug"
      * nieuw_ongebruikt
    )");
}

TEST_F(CorrOpmAdmTest, ZonderVerschilSluitOKZonderVraag) {
  const Beeld voor = Bytes();
  SpeeltHier("druk OKButton", "");
  SpeeltHier("vul nieuw_aantal 5\nvul nieuw_in_gebruik 4\nvul nieuw_ongebruikt 06\ndruk OKButton",
             "");
  EXPECT_EQ(Bytes(), voor);
}

TEST_F(CorrOpmAdmTest, EenLeegVeldHoudtZijnWaarde) {
  const Beeld voor = Bytes();
  SpeeltHier("antwoord Ja\nvul nieuw_ongebruikt 2\ndruk OKButton", std::string(kVraag) + "Ja");
  VerwachtAlleen(voor, kOpm, 1, {{opmveld::BijProg, 2}});
}

TEST_F(CorrOpmAdmTest, JaBewaartDeDrieTellingenEnVerderNiets) {
  ZetGetal(kOpm, 1, opmveld::Rubriek, 20000);
  ZetGetal(kOpm, 1, opmveld::BijRecord, 0);
  ZetGetal(kOpm, 1, opmveld::BijProg, 20001);
  const Beeld voor = Bytes();
  SpeeltHier(
      "antwoord Ja\nvul nieuw_aantal 5\nvul nieuw_in_gebruik 4\nvul nieuw_ongebruikt 6\n"
      "druk OKButton",
      std::string(kVraag) + "Ja");
  VerwachtAlleen(voor, kOpm, 1,
                 {{opmveld::Rubriek, 5}, {opmveld::BijRecord, 4}, {opmveld::BijProg, 6}});
}

TEST_F(CorrOpmAdmTest, NeeBlijftInDeDialoog) {
  const Beeld voor = Bytes();
  SpeeltHier("antwoord Nee\nvul nieuw_aantal 3\ndruk OKButton\ntoon nieuw_aantal\ndruk BackButton",
             std::string(kVraag) + "Nee\n= nieuw_aantal \"3\"");
  EXPECT_EQ(Bytes(), voor);
}

TEST_F(CorrOpmAdmTest, EenGatIsVrijNochInGebruik) {
  const std::filesystem::path pad = SetPaden::Van(Map(), "PROEF").opm;
  std::string bytes = LeesBytes(pad);
  bytes.replace(2 * opmveld::kLengte, opmveld::kLengte, opmveld::kLengte, '\0');
  SchrijfBytes(pad, bytes);
  SpeeltHier(
      "toon gevonden_aantal\ntoon gevonden_in_gebruik\ntoon gevonden_ongebruikt\n"
      "druk BackButton",
      R"(
      = gevonden_aantal "5"
      = gevonden_in_gebruik "3"
      = gevonden_ongebruikt "6"
    )");
}

// No box for each record that the system refuses.
TEST_F(CorrOpmAdmTest, WatHetSysteemWeigertTeltNietMee) {
  MaakOnleesbaar(kOpm, 3);
  SpeeltHier("toon gevonden_in_gebruik\ntoon gevonden_ongebruikt\ndruk BackButton", R"(
      = gevonden_in_gebruik "3"
      = gevonden_ongebruikt "6"
    )");
}

// The number behind the last is none in a full file.
TEST_F(CorrOpmAdmTest, EenVolBestandBlijftBinnenDeNummers) {
  const std::filesystem::path pad = SetPaden::Van(Map(), "PROEF").opm;
  std::string bytes = LeesBytes(pad);
  const std::string record = bytes.substr(opmveld::kLengte, opmveld::kLengte);
  bytes.resize(32767 * opmveld::kLengte, '\0');
  bytes.replace(32766 * opmveld::kLengte, opmveld::kLengte, record);
  SchrijfBytes(pad, bytes);
  SpeeltHier(R"(
      toon gevonden_aantal
      toon gevonden_ongebruikt
      vul nieuw_ongebruikt 32768
      antwoord Ja
      vul nieuw_ongebruikt 32767
      druk OKButton
    )",
             R"(
      = gevonden_aantal "32767"
      = gevonden_ongebruikt "32767"
      ! uitroep "Het aantal moet tussen 0 en 32767 liggen"
    )" + std::string(kVraag) +
                 "Ja");
  EXPECT_EQ(Getal(kOpm, 1, opmveld::BijProg), 32767);
}

TEST_F(CorrOpmAdmTest, ZonderLeesbaarAdministratierecordWordtErNietsBewaard) {
  MaakOnleesbaar(kOpm, 1);
  const Beeld voor = Bytes();
  Verwacht("vul nieuw_aantal 3\ndruk OKButton\ndruk BackButton", Dialoog, R"(
      ! stop "Fout bij het lezen van Opmrecord 1\nFout van de schijf"
      + CorrOpmAdm "Corrigeer Adminstratierecord Opmerkingenbestand"
      ! stop "Fout bij het lezen van Opmrecord 1\nFout van de schijf"
      ! stop "Leesfout administratierecord."
      - CorrOpmAdm
    )");
  EXPECT_EQ(Bytes(), voor);
}

// The dialog shows 0 then, which is not what record 1 holds.
TEST_F(CorrOpmAdmTest, EenLeegVeldHoudtOokWatBijHetOpenenNietTeLezenWas) {
  bool bewaard = false;
  BijElkeStoring(
      "antwoord Ja\ntoon aantal_in_rec1\nvul nieuw_ongebruikt 2\ndruk OKButton\ndruk BackButton",
      Dialoog, [&](bool) {
        if (verslag_.find("= aantal_in_rec1 \"0\"") == std::string::npos) return;
        EXPECT_EQ(Getal(kOpm, 1, opmveld::Rubriek), 5);
        EXPECT_EQ(Getal(kOpm, 1, opmveld::BijRecord), 4);
        bewaard |= Getal(kOpm, 1, opmveld::BijProg) == 2;
      });
  EXPECT_TRUE(bewaard);
}

TEST_F(CorrOpmAdmTest, EenSchrijffoutBlijftInDeDialoog) {
  const Beeld voor = Bytes();
  bool gemeld = false;
  BijElkeStoring(
      "antwoord Ja\nvul nieuw_aantal 3\ndruk OKButton\ntoon nieuw_aantal\ndruk BackButton", Dialoog,
      [&](bool gelukt) {
        const bool bewaard = Getal(kOpm, 1, opmveld::Rubriek) == 3;
        if (gelukt) {
          EXPECT_TRUE(bewaard);
        }
        if (!bewaard) {
          EXPECT_EQ(Bytes(), voor);
        }
        if (verslag_.find(
                R"(! stop "Bijwerken van het Administratierecord (Opm) mislukt\nSchijf vol")") ==
            std::string::npos) {
          return;
        }
        gemeld = true;
        EXPECT_NE(verslag_.find("= nieuw_aantal \"3\""), std::string::npos);
      });
  EXPECT_TRUE(gemeld);
}

TEST_F(CorrOpmAdmTest, DeCorrectieIsEenHandeling) {
  EXPECT_EQ(
      Labels("antwoord Ja\nvul nieuw_in_gebruik 3\ndruk OKButton", Dialoog),
      std::vector<std::string>{"Administratierecord van het Opmerkingenbestand gecorrigeerd"});
}

}  // namespace
}  // namespace lb77
