// Merging two places.
#include "checks/CorrToets.h"
#include "checks/PlaatsVervanging.h"
#include "store/SetPaden.h"

namespace lb77 {
namespace {

// Places 2 and 3 are Delft, 4 is Leiden. Persons 2 to 4 and relation 2 name them.
class CorrPltsTest : public CorrToets {
 protected:
  void SetUp() override {
    Bouw().Plaats("Delft", "ZH");
    Bouw().Plaats("Delft", "ZH");
    Bouw().Plaats("Leiden", "");
    Bouw().Man("Jan", "Vos", {{"GebPlaats", 3}, {"OvlPlaats", 3}, {"DoopPlaats", 4}});
    Bouw().Man("Piet", "Vos", {{"GebPlaats", 10003}, {"BegrPlaats", 20003}});
    Bouw().Man("Kees", "Vos", {{"DoopPlaats", 3}, {"BegrPlaats", 3}});
    Bouw().Man("Vervolg", "", {{"GebPlaats", 3}, {"GebCorr", 'Z'}});
    Bouw().Relatie(2, 0, {}, {{"OtrPlaats", 3}, {"WHuwPlaats", 2}, {"KHuwPlaats", 3}});
    Bouw().Relatie(0, 0, {}, {{"WHuwPlaats", 3}});
  }
  static void Dialoog(Hoofdmodule& hoofd) { hoofd.gesprek.Toon<CorrPltsAlg>(hoofd); }
  static void Vervang(Hoofdmodule& hoofd) {
    hoofd.gesprek.Toon<CorrPltsTemp>(hoofd, std::int16_t{3}, std::int16_t{2}, "Proef");
  }
  void SpeeltHier(std::string_view draaiboek, std::string_view verslag,
                  const Plek& plek = Plek::current()) {
    Speelt(draaiboek, Dialoog, "CorrPltsAlg", "Vervang Plaatscode", verslag, plek);
  }
  // The references of person 2 to 4 and relation 2 and 3, one after the other.
  std::vector<int> Verwijzingen() {
    std::vector<int> uit;
    for (const int nr : {2, 3, 4, 5}) {
      for (const Veld& veld : {persoonveld::GebPlaatsNr, persoonveld::DoopPlaatsNr,
                               persoonveld::OvlPlaatsNr, persoonveld::BegrPlaatsNr}) {
        uit.push_back(Getal(kPrs, nr, veld));
      }
    }
    for (const int nr : {2, 3}) {
      for (const Veld& veld :
           {relatieveld::OtrPlaatsNr, relatieveld::WetHuwPlaatsNr, relatieveld::KHuwPlaatsNr}) {
        uit.push_back(Getal(kRlt, nr, veld));
      }
    }
    return uit;
  }
};

// A user who presses Escape and all buttons at each repaint.
class Ongeduldig final : public Gesprek {
 public:
  Antwoord Bericht(BerichtSoort, Knoppen, std::string_view) override {
    kerenBijBericht.push_back(keren);
    return Antwoord::OK;
  }
  bool BerichtMetVinkje(std::string_view, std::string_view) override { return false; }
  std::optional<std::filesystem::path> VraagBestand(const BestandsVraag&) override { return {}; }
  bool DrukAf(const Afdruk&) override { return false; }
  void Ververs(Formulier& formulier) override {
    ++keren;
    formulier.VraagSluiten();
    for (Bediening* een : formulier.Bedieningen()) formulier.Klik(*een);
  }
  bool StopGevraagd(Formulier&) override { return false; }

  int keren = 0;
  std::vector<int> kerenBijBericht;

 protected:
  void Open(Formulier&) override {}
  void Voer(Formulier&) override {}
  void Dicht(Formulier&) override {}
};

constexpr std::string_view kVraag =
    R"~(? vraag Ja/Nee "Vervang 3(Delft,ZH) ==> 2(Delft,ZH) in alle Persoonsrecords en Relatierecords ?" -> )~";

TEST_F(CorrPltsTest, EenCodeBrengtNaamEnProvincieEnTelt) {
  SpeeltHier(R"(
      vul PlaatsNrOud 3
      vul PlaatsNrNieuw 4
      toon
      vul PlaatsNrOud
      vul PlaatsNrNieuw
      toon PltsNmOud
      toon ProvOud
      toon Verwijzingen
      toon PltsNmNieuw
      druk BackButton
    )",
             R"(
      : CorrPltsAlg "Vervang Plaatscode"
      = PlaatsNrOud "3"
      = PltsNmOud "Delft"
      = ProvOud "ZH"
      = Verwijzingen "7"
      = PlaatsNrNieuw "4"
      = PltsNmNieuw "Leiden"
      = ProvNieuw ""
      = OKButton "&OK"
      = BackButton "&Terug"
      = PltsNmOud ""
      = ProvOud ""
      = Verwijzingen ""
      = PltsNmNieuw ""
    )");
}

TEST_F(CorrPltsTest, EenCodeDieErNietIsHoudtHetVeldVast) {
  SpeeltHier(R"(
      vul PlaatsNrOud 5
      druk OKButton
      toon PlaatsNrOud
      vul PlaatsNrOud 1
      vul PlaatsNrOud 3
      vul PlaatsNrNieuw 99999
      typ PlaatsNrNieuw 4
      toets Enter
      toon PltsNmNieuw
      druk BackButton
    )",
             R"(
      ! uitroep "Recordnummer bestaat niet"
      ! uitroep "Recordnummer bestaat niet"
      = PlaatsNrOud "5"
      ! uitroep "Recordnummer bestaat niet"
      ! uitroep "Recordnummer bestaat niet"
      = PltsNmNieuw "Leiden"
    )");
}

TEST_F(CorrPltsTest, TweeVerschillendeCodesZijnNodig) {
  const Beeld voor = Bytes();
  SpeeltHier(R"(
      druk OKButton
      toon PlaatsNrOud
      vul PlaatsNrOud 3
      druk OKButton
      vul PlaatsNrNieuw 3
      druk OKButton
      vul PlaatsNrNieuw 03
      druk OKButton
      druk BackButton
    )",
             R"(
      ! uitroep "geen oude Plaatscode opgegeven"
      = PlaatsNrOud ""
      ! uitroep "geen nieuwe Plaatscode opgegeven"
      ! uitroep "Oude en Nieuw Plaatscode zijn gelijk"
      ! uitroep "Oude en Nieuw Plaatscode zijn gelijk"
    )");
  EXPECT_EQ(Bytes(), voor);
}

TEST_F(CorrPltsTest, DeFocusGaatNaarWatErOntbreekt) {
  SpeeltHier("druk OKButton\nvul PlaatsNrOud 3\ndruk OKButton\ntoon\ndruk BackButton", R"(
      ! uitroep "geen oude Plaatscode opgegeven"
      ! uitroep "geen nieuwe Plaatscode opgegeven"
      : CorrPltsAlg "Vervang Plaatscode"
      = PlaatsNrOud "3"
      = PltsNmOud "Delft"
      = ProvOud "ZH"
      = Verwijzingen "7"
      = PlaatsNrNieuw ""
      = PltsNmNieuw ""
      = ProvNieuw ""
      = OKButton "&OK"
      = BackButton "&Terug"
      * PlaatsNrNieuw
    )");
}

TEST_F(CorrPltsTest, NeeLaatAllesStaan) {
  const Beeld voor = Bytes();
  SpeeltHier(
      "antwoord Nee\nvul PlaatsNrOud 3\nvul PlaatsNrNieuw 2\ndruk OKButton\n"
      "toon PlaatsNrOud\ndruk BackButton",
      std::string(kVraag) + "Nee\n= PlaatsNrOud \"3\"");
  EXPECT_EQ(Bytes(), voor);
}

TEST_F(CorrPltsTest, DeVraagNoemtDeCodesZoalsGetypt) {
  SpeeltHier(
      "antwoord Nee\nvul PlaatsNrOud 004\nvul PlaatsNrNieuw 02\ndruk OKButton\n"
      "druk BackButton",
      R"~(? vraag Ja/Nee "Vervang 004(Leiden,) ==> 02(Delft,ZH) in alle Persoonsrecords en Relatierecords ?" -> Nee)~");
}

TEST_F(CorrPltsTest, JaVervangtDeCodeZoalsZeErStaat) {
  const Beeld voor = Bytes();
  SpeeltHier(
      "antwoord Ja\nvul PlaatsNrOud 3\nvul PlaatsNrNieuw 2\ndruk OKButton\ntoon\n"
      "druk OKButton",
      std::string(kVraag) + R"(Ja
      + CorrPltsTemp "Vervang Plaatscode"
      : CorrPltsTemp "Vervang Plaatscode"
      = PersNrLabel "Bezig met persoonsrecord:"
      = PersoonsNr "5"
      = RelNrLabel "Bezig met relatierecord:"
      = RelatieNr "3"
      = VervangingenLabel "Aantal vervangingen:"
      = Vervangingen "7"
      = GeduldLabel "Klaar"
      = OKButton "&OK"
      * OKButton
      - CorrPltsTemp
    )");
  EXPECT_EQ(Verwijzingen(), (std::vector<int>{2,     4, 2, 0,      //
                                              10003, 0, 0, 20003,  //
                                              0,     2, 0, 2,      //
                                              3,     0, 0, 0,      // a continuation record
                                              2,     2, 2,         //
                                              0,     2, 0}));
  EXPECT_EQ(Bytes()[3], voor[3]);
  EXPECT_EQ(Bytes()[2], voor[2]);
}

// kept: as in the field of a person.
TEST_F(CorrPltsTest, F2ZoektEenPersoon) {
  SpeeltHier("toets PlaatsNrOud F2\ndruk BackButton\ndruk BackButton", R"(
      + ZoekPrs "Zoek Persoon"
      - ZoekPrs
    )");
}

TEST_F(CorrPltsTest, EenPersoonMetTweeVerwijzingenWordtEenKeerGeschreven) {
  Stil([](Hoofdmodule& hoofd) {
    const std::uint64_t begin = hoofd.bestanden.Stand(kPrs);
    PlaatsVervanging vervanging(hoofd.Persoon, hoofd.Relatie, hoofd.bestanden);
    EXPECT_EQ(vervanging.Tel(3), 7);
    EXPECT_TRUE(
        vervanging.Vervang(3, 2, {[](std::int16_t) {}, [](std::int16_t) {}, [](std::int32_t) {}}));
    EXPECT_EQ(hoofd.bestanden.Stand(kPrs) - begin, 2U);
    EXPECT_EQ(vervanging.Tel(3), 0);
  });
}

TEST_F(CorrPltsTest, WatNietTeLezenIsBlijftZonderMelding) {
  MaakOnleesbaar(kPrs, 2);
  MaakOnleesbaar(kRlt, 2);
  Speelt("toon Vervangingen\ndruk OKButton", Vervang, "CorrPltsTemp", "Vervang Plaatscode",
         "= Vervangingen \"3\"");
  EXPECT_EQ(Getal(kPrs, 2, persoonveld::GebPlaatsNr), 3);
  EXPECT_EQ(Getal(kPrs, 4, persoonveld::BegrPlaatsNr), 2);
}

TEST_F(CorrPltsTest, HetVensterSluitPasAanHetEinde) {
  Ongeduldig gesprek;
  const VasteKlok klok{{2000, 1, 1}};
  Hoofdmodule hoofd(gesprek, klok, Map());
  ASSERT_FALSE(hoofd.bestanden.OpenSet(SetPaden::Van(Map(), "PROEF")));
  CorrPltsTemp form(hoofd, 3, 2, "Proef");
  ASSERT_TRUE(form.Laad());
  EXPECT_FALSE(form.OKButton.Ingeschakeld());
  form.Activeer();
  EXPECT_TRUE(form.OKButton.Ingeschakeld());
  EXPECT_EQ(gesprek.keren, 6);
  EXPECT_FALSE(form.Gesloten());
  EXPECT_EQ(form.Vervangingen.Stand.Tekst(), "7");
  form.VraagSluiten();
  EXPECT_TRUE(form.Gesloten());
  Speelt("toets Escape", Vervang, "CorrPltsTemp", "Vervang Plaatscode", "");
  Speelt("sluit", Vervang, "CorrPltsTemp", "Vervang Plaatscode", "");
}

// The count of record 1 tells how far the walk goes; a wrong one is told before it.
TEST_F(CorrPltsTest, EenFoutAantalWordtVoorafGemeld) {
  Bouw().ZetAantalPersonen(9);
  Speelt("toon Vervangingen\ndruk OKButton", Vervang, "CorrPltsTemp", "Vervang Plaatscode",
         R"(
      ! uitroep "Aantal persoonsrecords in administratierecord is onjuist\nGevonden:5\nVolgens administratierecord:10"
      = Vervangingen "7"
    )");
}

// That of the relations too, not midway.
TEST_F(CorrPltsTest, BeideFouteAantallenKomenVoorHetEersteRecord) {
  Bouw().ZetAantalPersonen(9);
  ZetGetal(kRlt, 1, relatieveld::ManNr, 9);
  Ongeduldig gesprek;
  const VasteKlok klok{{2000, 1, 1}};
  Hoofdmodule hoofd(gesprek, klok, Map());
  ASSERT_FALSE(hoofd.bestanden.OpenSet(SetPaden::Van(Map(), "PROEF")));
  CorrPltsTemp form(hoofd, 3, 2, "Proef");
  ASSERT_TRUE(form.Laad());
  form.Activeer();
  EXPECT_EQ(gesprek.kerenBijBericht, (std::vector<int>{0, 0}));
  EXPECT_EQ(gesprek.keren, 6);
}

// As far as the replacement will go, and without its warning.
TEST_F(CorrPltsTest, GeteldWordtTotHetOpgegevenAantal) {
  Bouw().ZetAantalPersonen(1);
  SpeeltHier("vul PlaatsNrOud 3\ntoon Verwijzingen\ndruk BackButton", "= Verwijzingen \"5\"");
  Bouw().ZetAantalPersonen(30000);
  SpeeltHier("vul PlaatsNrOud 3\ntoon Verwijzingen\ndruk BackButton", "= Verwijzingen \"7\"");
}

TEST_F(CorrPltsTest, EenCodeMetLettersIsNietNumeriek) {
  SpeeltHier("typ PlaatsNrOud 1b2a\ntoets Enter\ntoon PlaatsNrOud\ndruk BackButton", R"(
      ! uitroep "Recordnummer is niet numeriek"
      ! uitroep "Recordnummer is niet numeriek"
      = PlaatsNrOud "1b2a"
    )");
}

TEST_F(CorrPltsTest, EenSchrijffoutBreektAf) {
  const std::vector<int> voor = Verwijzingen();
  bool afgebroken = false;
  BijElkeStoring("toon GeduldLabel\ntoon Vervangingen\ntoon PersoonsNr\ndruk OKButton", Vervang,
                 [&](bool gelukt) {
                   const std::vector<int> na = Verwijzingen();
                   int vervangen = 0;
                   for (std::size_t i = 0; i < na.size(); ++i) {
                     if (na[i] == voor[i]) continue;
                     EXPECT_EQ(voor[i], 3);
                     EXPECT_EQ(na[i], 2);
                     ++vervangen;
                   }
                   const std::string telling =
                       "= Vervangingen \"" + std::to_string(vervangen) + "\"";
                   EXPECT_NE(verslag_.find(telling), std::string::npos);
                   if (gelukt) {
                     EXPECT_EQ(vervangen, 7);
                   }
                   if (verslag_.find("! stop \"Fout bij het schrijven van") != std::string::npos) {
                     EXPECT_NE(verslag_.find("= GeduldLabel \"Afgebroken\""), std::string::npos);
                     afgebroken = true;
                     const std::size_t waar = verslag_.find("van Persoonsrecord ");
                     if (waar != std::string::npos) {
                       const std::string nr(
                           1, verslag_[waar + std::string_view("van Persoonsrecord ").size()]);
                       EXPECT_NE(verslag_.find("= PersoonsNr \"" + nr + "\""), std::string::npos);
                     }
                   }
                 });
  EXPECT_TRUE(afgebroken);
}

TEST_F(CorrPltsTest, AllesIsEenHandeling) {
  EXPECT_EQ(
      Labels("antwoord Ja\nvul PlaatsNrOud 3\nvul PlaatsNrNieuw 2\ndruk OKButton\ndruk OKButton",
             Dialoog),
      std::vector<std::string>{"Plaatscode vervangen: 3(Delft,ZH) ==> 2(Delft,ZH)"});
}

TEST_F(CorrPltsTest, ElkRecordWordtEenPaarKeerGelezen) {
  Reeks(200);
  Stil([this](Hoofdmodule& hoofd) {
    PlaatsVervanging vervanging(hoofd.Persoon, hoofd.Relatie, hoofd.bestanden);
    const int begin = Gelezen(kPrs);
    EXPECT_EQ(vervanging.Tel(3), 7);
    EXPECT_LT(Gelezen(kPrs) - begin, 2 * 205 + 10);
  });
}

}  // namespace
}  // namespace lb77
