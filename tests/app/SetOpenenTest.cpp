#include "app/Bestandensets.h"
#include "app/SetOpenen.h"
#include "app/VeiligToets.h"
#include "app/ZonderRechten.h"

namespace lb77 {
namespace {

class SetOpenen : public VeiligToets {
 protected:
  // Opens TWEE.
  void Speelt(std::string_view antwoord, std::string_view verslag, std::string_view actief) {
    Verwacht(std::string(antwoord) +
                 "\nkies OpenSet\nstel SetPicklist #1\ndruk OKButton\ntoon Statusbalk\nsluit",
             Sessie(),
             "+ MenuWindow \"LB77 voor Windows\"\n+ OpenSetForm \"Open Bestandendset\"\n" +
                 MetMap(verslag) + "\n- OpenSetForm\n= Statusbalk \"Actieve bestandenset: " +
                 std::string(actief) + "\"\n- MenuWindow");
  }
  // The user answers the question about TWEE, and the journal can't be changed.
  void OpentZonderRechten(const std::string& antwoord, const std::string& melding);
  [[nodiscard]] std::size_t Personen() const { return Inhoud("DATA/TWEE/TWEE.PRS").size() / 128; }
};

constexpr std::string_view kTwee = "TWEE,de tweede";
constexpr std::string_view kGeen = "<geen bestandenset actief>";
constexpr std::string_view kBezet =
    "? vraag Ja/Nee \"Deze bestandenset is al in gebruik.\\nToch openen ?\" -> ";
constexpr std::string_view kVraag =
    "? vraag Ja/Nee \"De vorige bewerking (Persoon toegevoegd, 2026-01-01 10:00:00) is niet "
    "voltooid.\\nOngedaan maken ?\" -> ";

void SetOpenen::OpentZonderRechten(const std::string& antwoord, const std::string& melding) {
  if (!ZonderRechten::kKan) GTEST_SKIP() << ZonderRechten::kWaarom;
  LaatOnvoltooid("TWEE");
  for (const char* naam : {"TWEE.PRS", "TWEE.RLT", "TWEE.OPM", "TWEE.PLT"}) {
    std::filesystem::permissions(map_ / "DATA/TWEE" / naam, std::filesystem::perms(0666));
  }
  {
    const ZonderRechten rechten(map_ / "DATA/TWEE/JOURNAAL");
    Verwacht("antwoord " + antwoord, MetMenu([](Hoofdmodule& hoofd, MenuWindow&) {
               hoofd.ActieveSetNaam = "TWEE";
               OpenBestanden(hoofd, SetGebruik::Schrijven);
               EXPECT_FALSE(hoofd.SetActief());
               EXPECT_FALSE(hoofd.bestanden.IsOpen(BestandSoort::Personen));
             }),
             std::string(kVraag) + antwoord + "\n! stop \"" + melding + "\\nGeen toegang\"");
  }
  // Whoever may write nothing could not write down what appeared either.
  NoteerGetoond(melding + "\nGeen toegang");
}

TEST_F(SetOpenen, WatNietVoltooidIsWordtMetJaOngedaanGemaakt) {
  LaatOnvoltooid("TWEE");
  ASSERT_EQ(Personen(), 2U);
  Speelt("antwoord Ja", std::string(kVraag) + "Ja", kTwee);
  EXPECT_EQ(Personen(), 1U);
  Speelt("", "", kTwee);
}

TEST_F(SetOpenen, WatNietVoltooidIsBlijftMetNeeStaan) {
  LaatOnvoltooid("TWEE");
  Speelt("antwoord Nee", std::string(kVraag) + "Nee", kTwee);
  EXPECT_EQ(Personen(), 2U);
  Speelt("", "", kTwee);
}

TEST_F(SetOpenen, EenMislukteOplossingLaatGeenSetActief) {
  OpentZonderRechten("Ja", "Ongedaan maken is niet gelukt");
}

TEST_F(SetOpenen, EenMislukteBewaringLaatGeenSetActief) {
  OpentZonderRechten("Nee", "Behouden is niet gelukt");
}

TEST_F(SetOpenen, OokEenOvergenomenSetVraagt) {
  LaatOnvoltooid("TWEE");
  ZetIni("[Sets]\nSet1=EEN,de eerste\n");
  Verwacht("antwoord Ja\nkies MaakSet\nvul SetNaam TWEE\ndruk OKButton\nsluit", Sessie(),
           "+ MenuWindow \"LB77 voor Windows\"\n+ NieuweSet \"Nieuwe Bestandenset\"\n" +
               std::string(kVraag) + "Ja\n- NieuweSet\n- MenuWindow");
  EXPECT_EQ(Personen(), 1U);
}

TEST_F(SetOpenen, DeLaatsteSetVraagtBijDeStart) {
  LaatOnvoltooid("EEN");
  Verwacht("antwoord Nee\ntoon Statusbalk\nsluit", Sessie(),
           std::string(kVraag) + "Nee\n+ MenuWindow \"LB77 voor Windows\"\n" +
               "= Statusbalk \"Actieve bestandenset: EEN,de eerste\"\n- MenuWindow");
}

TEST_F(SetOpenen, EenSetDieInGebruikIsGaatMetJaTochOpen) {
  Bestandenset ander;
  ASSERT_FALSE(ander.OpenSet(SetPaden::Van(map_ / "DATA", "TWEE")));
  ASSERT_TRUE(ander.NeemInGebruik());
  Speelt("antwoord Ja", std::string(kBezet) + "Ja", kTwee);
}

TEST_F(SetOpenen, EenSetDieInGebruikIsGaatMetNeeNietOpen) {
  Bestandenset ander;
  ASSERT_FALSE(ander.OpenSet(SetPaden::Van(map_ / "DATA", "TWEE")));
  ASSERT_TRUE(ander.NeemInGebruik());
  Speelt("antwoord Nee", std::string(kBezet) + "Nee", kGeen);
}

TEST_F(SetOpenen, EenSetDieDichtIsGegaanIsWeerVrij) {
  for (int keer = 0; keer < 2; ++keer) Speelt("", "", kTwee);
}

TEST_F(SetOpenen, WieAlleenLeestNeemtNietsEnVraagtNiets) {
  LaatOnvoltooid("EEN");
  Bestandenset ander;
  ASSERT_FALSE(ander.OpenSet(SetPaden::Van(map_ / "DATA", "EEN")));
  ASSERT_TRUE(ander.NeemInGebruik());
  Verwacht(
      "", MetMenu([](Hoofdmodule& hoofd, MenuWindow& menu) {
        menu.ZetGebruik(SetGebruik::Lezen);
        EXPECT_TRUE(menu.Laad());
        EXPECT_FALSE(hoofd.SetActief());
      }),
      R"~(! uitroep "De vorige bewerking (Persoon toegevoegd, 2026-01-01 10:00:00) is niet voltooid.")~");
}

TEST_F(SetOpenen, WatEenAnderHeeftGewijzigdWordtEenmaalGemeld) {
  Verwacht("", MetMenu([this](Hoofdmodule& hoofd, MenuWindow& menu) {
             ASSERT_TRUE(menu.Laad());
             VoegToe(hoofd, "Jan");
             Schrijf("DATA/EEN/EEN.RLT", Inhoud("DATA/EEN/EEN.RLT") + std::string(64, ' '));
             Hernoem(hoofd, "Piet");
             Hernoem(hoofd, "Klaas");
           }),
           R"(! uitroep "Het Relatiebestand is door een ander programma gewijzigd")");
}

TEST_F(SetOpenen, BijDeEersteWijzigingKomtErEenVeiligheidskopie) {
  const std::string voor = Inhoud("DATA/EEN/EEN.PRS");
  MaakGeschiedenis();
  EXPECT_EQ(Inhoud("KOPIE/EEN/2026-01-02_030405/EEN.PRS"), voor);
  EXPECT_FALSE(Bestaat("KOPIE/EEN/2026-01-02_030405_02"));
  EXPECT_FALSE(Bestaat("KOPIE/TWEE"));
}

TEST_F(SetOpenen, ZonderVeiligheidskopieGaatHetWerkDoor) {
  Schrijf("KOPIE", "geen directory");
  Verwacht("", MetMenu([](Hoofdmodule& hoofd, MenuWindow& menu) {
             ASSERT_TRUE(menu.Laad());
             VoegToe(hoofd, "Jan");
             Hernoem(hoofd, "Piet");
           }),
           R"(! uitroep "De veiligheidskopie is niet gemaakt\nPad niet gevonden")");
  EXPECT_EQ(Voornaam(), "Piet");
}

}  // namespace
}  // namespace lb77
