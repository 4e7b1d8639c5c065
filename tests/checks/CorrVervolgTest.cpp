// Mending the links of continuation records.
#include "checks/CorrToets.h"

namespace lb77 {
namespace {

// Person 2 with relations 2 to 5 and continuation record 3; relation 6 has children 4 to 19 and
// continuation record 7.
class CorrVlgTest : public CorrToets {
 protected:
  void SetUp() override {
    Bouw().Man("Jan", "Vos");
    for (int i = 0; i < 3; ++i) Bouw().Relatie(2, 0);
    Bouw().Relatie(0, 2);
    Reeks(16);
    std::vector<std::int16_t> kinderen;
    for (std::int16_t kind = 4; kind < 20; ++kind) kinderen.push_back(kind);
    Bouw().Relatie(0, 0, kinderen);
  }
  void Persoon(std::string_view draaiboek, std::string_view verslag,
               const Plek& plek = Plek::current()) {
    Speelt(draaiboek, Verwijzingen(kCorrPrsVlg, 3), "CorrPrsVlg",
           "Corrigeer Verwijzingen Vervolgrecord Persoonsbestand", verslag, plek);
  }
  void Relatie(std::string_view draaiboek, std::string_view verslag,
               const Plek& plek = Plek::current()) {
    Speelt(draaiboek, Verwijzingen(kCorrRelVlg, 7), "CorrRelVlg",
           "Corrigeer Verwijzingen Vervolgrecord Relatiebestand", verslag, plek);
  }
};

TEST_F(CorrVlgTest, ToontDeRelatiesDrieTotVijf) {
  ZetGetal(kPrs, 3, persoonveld::GebJaar, 2);
  ZetGetal(kPrs, 3, persoonveld::relatie3, 99);
  Persoon("toon\ndruk BackButton", R"(
      : CorrPrsVlg "Corrigeer Verwijzingen Vervolgrecord Persoonsbestand"
      = RecordNr "3"
      = HoortBijTekst "2"
      = HoortBijTekstNaam "Jan Vos"
      = (*) RelNrPartner RelNrPartnerNaam
      = (1) "4" "Jan Vos en <onbekend>"
      = (2) "5" "<onbekend> en Jan Vos"
      = (3) "99" "?????"
      = OKButton "&OK"
      = BackButton "&Terug"
      * HoortBijTekst
    )");
}

TEST_F(CorrVlgTest, ToontDeKinderenVanafHetVijftiende) {
  ZetGetal(kRlt, 7, relatieveld::WetHuwJaar, 6);
  ZetGetal(kRlt, 7, relatieveld::Kind15, -4);
  Relatie(R"(
      toon RecordNr
      toon HoortBijTekst
      toon HoortBijTekstNaam
      toon PersNrKind(1)
      toon PersNrKindNaam(1)
      toon PersNrKindNaam(2)
      toon PersNrKindNaam(3)
      toon PersNrKind(15)
      toon PersNrKindNaam(15)
      druk BackButton
    )",
          R"(
      = RecordNr "7"
      = HoortBijTekst "6"
      = HoortBijTekstNaam "<onbekend> en <onbekend>"
      = PersNrKind(1) "18"
      = PersNrKindNaam(1) "A15 Reeks"
      = PersNrKindNaam(2) "A16 Reeks"
      = PersNrKindNaam(3) ""
      = PersNrKind(15) "-4"
      = PersNrKindNaam(15) "?????"
    )");
}

TEST_F(CorrVlgTest, DeVeldenVragenEenRecordVanHunSoort) {
  Persoon(R"(
      vul HoortBijTekst 3
      vul HoortBijTekst 99
      vul HoortBijTekst 2
      vul RelNrPartner(3) 7
      vul RelNrPartner(3) 8
      vul RelNrPartner(3)
      druk BackButton
    )",
          R"(
      ! uitroep "Record is een vervolgrecord"
      ! uitroep "Recordnummer bestaat niet"
      ! uitroep "Record is een vervolgrecord"
      ! uitroep "Recordnummer bestaat niet"
    )");
  Relatie(R"(
      vul HoortBijTekst 7
      vul HoortBijTekst 6
      vul PersNrKind(15) 3
      vul PersNrKind(15) 99
      vul PersNrKind(15) 19
      druk BackButton
    )",
          R"(
      ! uitroep "Record is een vervolgrecord"
      ! uitroep "Record is een vervolgrecord"
      ! uitroep "Recordnummer bestaat niet"
    )");
}

TEST_F(CorrVlgTest, OKBewaartDeLijstEnDeEigenaar) {
  Beeld voor = Bytes();
  Persoon(
      "vul HoortBijTekst 2\nvul RelNrPartner(1) 5\nvul RelNrPartner(2)\n"
      "vul RelNrPartner(3) 6\ndruk OKButton",
      "");
  VerwachtAlleen(voor, kPrs, 3,
                 {{persoonveld::GebJaar, 2},
                  {persoonveld::relatie1, 5},
                  {persoonveld::relatie2, 0},
                  {persoonveld::relatie3, 6}});
  voor = Bytes();
  Relatie("vul HoortBijTekst 6\nvul PersNrKind(1) 4\nvul PersNrKind(15) 5\ndruk OKButton", "");
  VerwachtAlleen(voor, kRlt, 7,
                 {{relatieveld::WetHuwJaar, 6}, {relatieveld::Kind1, 4}, {relatieveld::Kind15, 5}});
}

TEST_F(CorrVlgTest, ZonderWijzigingBlijftHetRecordByteVoorByte) {
  const Beeld voor = Bytes();
  Persoon("druk OKButton", "");
  Relatie("druk OKButton", "");
  EXPECT_EQ(Bytes(), voor);
}

// Whatever the bytes are: links to anywhere, negative numbers, texts of any kind.
TEST_F(CorrVlgTest, EenRecordVolVreemdeBytesBlijftByteVoorByte) {
  const Veld alles{0, 0, "", VeldSoort::Vrij, "", 0};
  for (unsigned zaad = 0; zaad < 24; ++zaad) {
    std::string persoon;
    for (unsigned i = 0; i < persoonveld::kLengte; ++i) {
      persoon += static_cast<char>((zaad * 37U + i * (2 * zaad + 1U)) & 0xFFU);
    }
    std::string relatie = persoon.substr(0, relatieveld::kLengte);
    persoon[persoonveld::Geslacht.plaats] = 'M';
    relatie[relatieveld::HuwCorr.plaats] = 'Z';
    ZetBytes(kPrs, 3, alles, persoon);
    ZetBytes(kRlt, 7, alles, relatie);
    const Beeld voor = Bytes();
    Persoon("vul HoortBijTekst\ndruk OKButton", "");
    VerwachtAlleen(voor, kPrs, 3, {{persoonveld::GebJaar, 0}});
    const Beeld daarna = Bytes();
    Relatie("vul HoortBijTekst\ndruk OKButton", "");
    VerwachtAlleen(daarna, kRlt, 7, {{relatieveld::WetHuwJaar, 0}});
  }
}

TEST_F(CorrVlgTest, EenSchrijffoutHeeftZijnEigenMelding) {
  const Beeld voor = Bytes();
  std::string alles;
  BijElkeStoring("vul HoortBijTekst 2\ndruk OKButton\ndruk BackButton",
                 Verwijzingen(kCorrPrsVlg, 3), [&](bool gelukt) {
                   const bool bewaard = Getal(kPrs, 3, persoonveld::GebJaar) == 2;
                   if (gelukt) {
                     EXPECT_TRUE(bewaard);
                   }
                   if (!bewaard) {
                     EXPECT_EQ(Bytes(), voor);
                   }
                   alles += verslag_;
                 });
  EXPECT_NE(alles.find(Regels(R"(
      ! stop "Fout bij het schrijven van Persoonsrecord 3\nSchijf vol"
      ! stop "Fout bij het schrijven van het Persoonsrecord"
      - CorrPrsVlg
    )")),
            std::string::npos);
  ZetTerug(voor);
  alles.clear();
  BijElkeStoring("vul HoortBijTekst 6\ndruk OKButton\ndruk BackButton",
                 Verwijzingen(kCorrRelVlg, 7), [&](bool) { alles += verslag_; });
  EXPECT_NE(alles.find(Regels(R"(
      ! stop "Fout bij het schrijven van Relatierecord 7\nSchijf vol"
      ! stop "Fout bij het schrijven van het Persoonsrecord"
      - CorrRelVlg
    )")),
            std::string::npos);
}

TEST_F(CorrVlgTest, DeCorrectieIsEenHandeling) {
  EXPECT_EQ(Labels("vul HoortBijTekst 2\ndruk OKButton", Verwijzingen(kCorrPrsVlg, 3)),
            std::vector<std::string>{"Persoonsrecord 3 gecorrigeerd"});
  EXPECT_EQ(Labels("vul HoortBijTekst 6\ndruk OKButton", Verwijzingen(kCorrRelVlg, 7)),
            std::vector<std::string>{"Relatierecord 7 gecorrigeerd"});
}

}  // namespace
}  // namespace lb77
