// Mending the count in record 1 of persons, relations and places.
#include "checks/CorrToets.h"
#include "steun/TijdelijkeMap.h"
#include "store/SetPaden.h"

namespace lb77 {
namespace {

constexpr std::string_view kVraag =
    R"(? uitroep Ja/Nee "Opslaan is een nu risico.\n\nGa niet door zonder backup van de Bestandenset !!\n\nDoorgaan ?" -> )";

// A file with its count, and the dialog on it.
struct Geval {
  const CorrAdmSoort& soort;
  Veld telling;
};

class CorrAdmTest : public CorrToets, public ::testing::WithParamInterface<Geval> {
 protected:
  void SetUp() override {
    for (int i = 0; i < 4; ++i) Bouw().Man("Jan", "Vos");
    for (int i = 0; i < 4; ++i) Bouw().Relatie(0, 0);
    for (int i = 0; i < 4; ++i) Bouw().Plaats("Delft", "ZH");
  }
  [[nodiscard]] BestandSoort Soort() const { return GetParam().soort.bestand; }
  [[nodiscard]] Taak Dialoog() const {
    return [&soort = GetParam().soort](Hoofdmodule& hoofd) {
      hoofd.gesprek.Toon<CorrAdm>(soort, hoofd);
    };
  }
  void SpeeltHier(std::string_view draaiboek, std::string_view verslag,
                  const Plek& plek = Plek::current()) {
    Speelt(draaiboek, Dialoog(), GetParam().soort.naam, GetParam().soort.titel, verslag, plek);
  }
  void ZetTelling(int aantal) const { ZetGetal(Soort(), 1, GetParam().telling, aantal); }
};

TEST_P(CorrAdmTest, ToontWatErStaatEnWatErIs) {
  ZetTelling(9);
  SpeeltHier("toon\ndruk BackButton", ": " + std::string(GetParam().soort.naam) + " \"" +
                                          std::string(GetParam().soort.titel) + R"("
      = aantal_in_rec1 "9"
      = gevonden_aantal "4"
      = nieuw_aantal ""
      = OKButton "&OK"
      = BackButton "&Terug"
      * nieuw_aantal
    )");
}

TEST_P(CorrAdmTest, EenFoutAantalHoudtHetVeldVast) {
  SpeeltHier(R"(
      druk OKButton
      vul nieuw_aantal 1a
      vul nieuw_aantal -1
      vul nieuw_aantal 32768
      vul nieuw_aantal 5
      druk OKButton
      toon nieuw_aantal
      vul nieuw_aantal
      toets Enter
      druk BackButton
    )",
             R"(
      ! uitroep "Geen nieuw aantal ingevoerd"
      ! uitroep "Recordnummer is niet numeriek"
      ! uitroep "Recordnummer is niet numeriek"
      ! uitroep "Recordnummer bestaat niet"
      ! uitroep "Recordnummer bestaat niet"
      ! uitroep "Recordnummer bestaat niet"
      = nieuw_aantal "5"
      ! uitroep "Geen nieuw aantal ingevoerd"
      ! uitroep "Geen nieuw aantal ingevoerd"
    )");
}

TEST_P(CorrAdmTest, EenAantalHeeftVijfTekens) {
  SpeeltHier("typ nieuw_aantal 1234567\ntoon nieuw_aantal\ndruk BackButton",
             "= nieuw_aantal \"12345\"");
}

// Also when the field does not have the focus.
TEST_P(CorrAdmTest, ZonderAantalDoetOKNiets) {
  const Beeld voor = Bytes();
  SpeeltHier("vul nieuw_aantal 3\ntyp nieuw_aantal\ndruk OKButton\ndruk OKButton\ndruk BackButton",
             R"(
      ! uitroep "Geen nieuw aantal ingevoerd"
      ! uitroep "Geen nieuw aantal ingevoerd"
    )");
  EXPECT_EQ(Bytes(), voor);
}

TEST_P(CorrAdmTest, HetzelfdeAantalSluitZonderVraag) {
  const Beeld voor = Bytes();
  SpeeltHier("vul nieuw_aantal 4\ndruk OKButton", "");
  SpeeltHier("vul nieuw_aantal 04\ndruk OKButton", "");
  EXPECT_EQ(Bytes(), voor);
}

TEST_P(CorrAdmTest, NeeBlijftInDeDialoog) {
  const Beeld voor = Bytes();
  SpeeltHier("antwoord Nee\nvul nieuw_aantal 3\ndruk OKButton\ntoon nieuw_aantal\ndruk BackButton",
             std::string(kVraag) + "Nee\n= nieuw_aantal \"3\"");
  EXPECT_EQ(Bytes(), voor);
}

TEST_P(CorrAdmTest, JaBewaartAlleenHetAantal) {
  for (const int aantal : {0, 3, 4}) {
    ZetTelling(9);
    const Beeld voor = Bytes();
    SpeeltHier("antwoord Ja\nvul nieuw_aantal " + std::to_string(aantal) + "\ndruk OKButton",
               std::string(kVraag) + "Ja");
    VerwachtAlleen(voor, Soort(), 1, {{GetParam().telling, aantal}});
  }
}

TEST_P(CorrAdmTest, HetAantalGaatAlsTweeBytesHetBestandIn) {
  const std::filesystem::path pad = PadVanSoort(SetPaden::Van(Map(), "PROEF"), Soort());
  const std::size_t lengte = RecordLengteVan(Soort());
  std::string bytes = LeesBytes(pad);
  while (bytes.size() < 301 * lengte) bytes += bytes.substr(lengte, lengte);
  SchrijfBytes(pad, bytes);
  SpeeltHier("antwoord Ja\nvul nieuw_aantal 300\ndruk OKButton", std::string(kVraag) + "Ja");
  const std::size_t plaats = GetParam().telling.plaats;
  EXPECT_EQ(LeesBytes(pad).substr(plaats, 2), "\x2C\x01");
}

TEST_P(CorrAdmTest, EenVolBestandTeltTotHetHoogsteNummer) {
  const std::filesystem::path pad = PadVanSoort(SetPaden::Van(Map(), "PROEF"), Soort());
  const std::size_t lengte = RecordLengteVan(Soort());
  std::string bytes = LeesBytes(pad);
  const std::string record = bytes.substr(lengte, lengte);
  bytes.resize(32768 * lengte, '\0');
  bytes.replace(32766 * lengte, lengte, record);
  SchrijfBytes(pad, bytes);
  SpeeltHier(
      "toon gevonden_aantal\nantwoord Ja\nvul nieuw_aantal 32767\nvul nieuw_aantal 32766\n"
      "druk OKButton",
      "= gevonden_aantal \"32766\"\n! uitroep \"Recordnummer bestaat niet\"\n" +
          std::string(kVraag) + "Ja");
  EXPECT_EQ(Getal(Soort(), 1, GetParam().telling), 32766);
}

// A hole cuts nothing off, and holes at the end hold nothing.
TEST_P(CorrAdmTest, EenGatHoudtDeTellingNietTegen) {
  const std::filesystem::path pad = PadVanSoort(SetPaden::Van(Map(), "PROEF"), Soort());
  const std::size_t lengte = RecordLengteVan(Soort());
  std::string bytes = LeesBytes(pad);
  bytes.replace(2 * lengte, lengte, lengte, '\0');
  bytes.append(3 * lengte + 1, '\0');
  SchrijfBytes(pad, bytes);
  SpeeltHier("toon gevonden_aantal\ndruk BackButton", "= gevonden_aantal \"4\"");
}

// It can be read, and is mended by what is written over it.
TEST_P(CorrAdmTest, EenAfgebrokenLaatsteRecordTeltMee) {
  const std::filesystem::path pad = PadVanSoort(SetPaden::Van(Map(), "PROEF"), Soort());
  std::string bytes = LeesBytes(pad);
  bytes.pop_back();
  SchrijfBytes(pad, bytes);
  SpeeltHier("toon gevonden_aantal\ndruk BackButton", "= gevonden_aantal \"4\"");
}

// The system does not give its bytes, but it lies there.
TEST_P(CorrAdmTest, EenOnleesbaarLaatsteRecordTeltMee) {
  MaakOnleesbaar(Soort(), 5);
  SpeeltHier("toon gevonden_aantal\ndruk BackButton", "= gevonden_aantal \"4\"");
}

TEST_P(CorrAdmTest, EenLeegBestandHeeftGeenRecords) {
  SchrijfBytes(PadVanSoort(SetPaden::Van(Map(), "PROEF"), Soort()), "");
  static_cast<void>(
      Speel("toon\nvul nieuw_aantal 1\nvul nieuw_aantal 0\ndruk OKButton", Sessie(Dialoog())));
  EXPECT_NE(verslag_.find("= gevonden_aantal \"0\"\n"), std::string::npos) << verslag_;
  EXPECT_NE(verslag_.find("! uitroep \"Recordnummer bestaat niet\"\n- "), std::string::npos)
      << verslag_;
}

TEST_P(CorrAdmTest, ZonderLeesbaarAdministratierecordWordtErNietsBewaard) {
  MaakOnleesbaar(Soort(), 1);
  const Beeld voor = Bytes();
  static_cast<void>(Speel("vul nieuw_aantal 3\ndruk OKButton\ndruk BackButton", Sessie(Dialoog())));
  EXPECT_NE(verslag_.find("! stop \"Leesfout administratierecord.\"\n- "), std::string::npos)
      << verslag_;
  EXPECT_EQ(Bytes(), voor);
}

TEST_P(CorrAdmTest, EenSchrijffoutBlijftInDeDialoog) {
  const Beeld voor = Bytes();
  bool gemeld = false;
  BijElkeStoring(
      "antwoord Ja\nvul nieuw_aantal 3\ndruk OKButton\ntoon nieuw_aantal\ndruk BackButton",
      Dialoog(), [&](bool gelukt) {
        const bool bewaard = Getal(Soort(), 1, GetParam().telling) == 3;
        if (gelukt) {
          EXPECT_TRUE(bewaard);
        }
        if (!bewaard) {
          EXPECT_EQ(Bytes(), voor);
        }
        if (verslag_.find("Fout bij het schrijven van het Administratierecord van het ") ==
            std::string::npos) {
          return;
        }
        gemeld = true;
        EXPECT_NE(verslag_.find("= nieuw_aantal \"3\""), std::string::npos);
        EXPECT_FALSE(bewaard);
      });
  EXPECT_TRUE(gemeld);
}

TEST_P(CorrAdmTest, DeCorrectieIsEenHandeling) {
  EXPECT_EQ(
      Labels("antwoord Ja\nvul nieuw_aantal 3\ndruk OKButton", Dialoog()),
      std::vector<std::string>{"Administratierecord van het " + std::string(BestandNaam(Soort())) +
                               " gecorrigeerd: 4 wordt 3"});
  EXPECT_TRUE(Labels("antwoord Nee\nvul nieuw_aantal 3\ndruk OKButton\ndruk BackButton", Dialoog())
                  .empty());
}

INSTANTIATE_TEST_SUITE_P(Bestanden, CorrAdmTest,
                         ::testing::Values(Geval{kCorrPrsAdm, persoonveld::GebPlaatsNr},
                                           Geval{kCorrRelAdm, relatieveld::ManNr},
                                           Geval{kCorrPltsAdm, plaatsveld::Prov}),
                         [](const auto& geval) { return std::string(geval.param.soort.naam); });

}  // namespace
}  // namespace lb77
