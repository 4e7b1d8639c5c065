#include "OpdrachtToets.h"
#include "store/Bestandenset.h"
#include "store/Handeling.h"
#include "store/SetPaden.h"

namespace lb77 {
namespace {

constexpr std::string_view kGedcom = "0 HEAD\n0 @I1@ INDI\n1 NAME Jan /Jansen/\n0 TRLR\n";

class VeiligheidToets : public OpdrachtToets {
 protected:
  void SetUp() override { MaakFamilie(kGedcom); }

  [[nodiscard]] SetPaden Paden() const { return SetPaden::Van(map_ / "DATA", "FAMILIE"); }
  [[nodiscard]] std::string Personen() const { return LeesBytes(Paden().prs); }
  OpdrachtArgumenten Inlezen(bool toch = false) const {
    OpdrachtArgumenten argumenten;
    argumenten.woorden = {"familie"};
    argumenten.bestand = map_ / "familie.ged";
    argumenten.toch = toch;
    return argumenten;
  }
  // The program dies in the midst of an action that adds person 3.
  void LaatOnvoltooid() {
    const std::filesystem::path map = map_ / "DATA" / "FAMILIE";
    Bestandenset bestanden;
    bestanden.ZetJournaal(
        {.tijd = [] { return std::string("2026-01-01 10:00:00"); }, .bijVreemd = {}, .map = {}});
    ASSERT_FALSE(bestanden.OpenSet(Paden()));
    {
      Handeling handeling(bestanden, "Persoon toegevoegd");
      ASSERT_FALSE(bestanden.Bestand(BestandSoort::Personen).Schrijf(3, std::string(128, ' ')));
      std::filesystem::copy(map, map_ / "toen", std::filesystem::copy_options::recursive);
      ASSERT_FALSE(handeling.Voltooi());
    }
    bestanden.SluitAlles();
    std::filesystem::remove_all(map);
    std::filesystem::rename(map_ / "toen", map);
  }
};

TEST_F(VeiligheidToets, DeGeschiedenisNoemtDeImport) {
  EXPECT_EQ(Doe("geschiedenis", {"familie"}), 0) << fout_;
  EXPECT_EQ(uit_.find("1  2026-11-21 12:00:00  GEDCOM ingelezen: familie.ged ("), 0U) << uit_;
  EXPECT_EQ(std::ranges::count(uit_, '\n'), 1);
}

TEST_F(VeiligheidToets, DeLaatsteBewerkingWordtOngedaanGemaakt) {
  EXPECT_EQ(Doe("ongedaan", {"familie"}), 0) << fout_;
  EXPECT_EQ(uit_, "Ongedaan gemaakt: GEDCOM ingelezen: familie.ged\n");
  EXPECT_EQ(Personen().size(), 128U);
  EXPECT_EQ(Doe("ongedaan", {"familie"}), 1);
  EXPECT_EQ(fout_, "Er is niets ongedaan te maken\n");
}

TEST_F(VeiligheidToets, EenNummerMaaktAllesVanDaarAfOngedaan) {
  ASSERT_EQ(Doe("importeer", Inlezen()), 0) << fout_;
  EXPECT_EQ(Doe("ongedaan", {"familie", "7"}), 1);
  EXPECT_EQ(fout_, "Er is geen bewerking 7\n");
  EXPECT_EQ(Doe("ongedaan", {"familie", "1"}), 0) << fout_;
  EXPECT_EQ(Personen().size(), 128U);
  EXPECT_EQ(Doe("ongedaan", {"familie", "1"}), 1);
  EXPECT_EQ(fout_, "Deze bewerking is al ongedaan gemaakt\n");
  EXPECT_EQ(Doe("ongedaan", {"familie", "3"}), 0) << fout_;
  EXPECT_EQ(Personen().size(), 384U);
}

TEST_F(VeiligheidToets, WatEenAnderWijzigdeHoudtHetOngedaanMakenTegen) {
  std::string bytes = Personen();
  bytes[128 + 3] = 'X';
  SchrijfBytes(Paden().prs, bytes);
  EXPECT_EQ(Doe("ongedaan", {"familie"}), 1);
  EXPECT_EQ(fout_, "Persoonsrecord 2 is sindsdien door een ander programma gewijzigd\n");
  EXPECT_EQ(Personen(), bytes);
}

TEST_F(VeiligheidToets, EenKopieWordtGemaaktGetoondEnTeruggezet) {
  EXPECT_EQ(Doe("kopie", {"familie"}), 0) << fout_;
  EXPECT_EQ(uit_, "2026-11-21_120000_02\n");
  const std::string voor = Personen();
  EXPECT_EQ(Doe("terugzetten", {"familie", "2026-11-21_120000"}), 0) << fout_;
  EXPECT_EQ(uit_.find("Teruggezet: 2026-11-21_120000\n"), 0U) << uit_;
  EXPECT_EQ(Personen().size(), 128U);
  EXPECT_EQ(Doe("terugzetten", {"familie"}), 0) << fout_;
  EXPECT_EQ(uit_,
            "2026-11-21_120000_02  2026-11-21 12:00:00  1 persoon, 0 relaties, 0 plaatsen, "
            "0 opmerkingregels\n"
            "2026-11-21_120000  2026-11-21 12:00:00  0 personen, 0 relaties, 0 plaatsen, "
            "0 opmerkingregels\n");
  EXPECT_EQ(Doe("terugzetten", {"familie", "weg"}), 1);
  EXPECT_EQ(fout_, "De veiligheidskopie is niet teruggezet\nDeze veiligheidskopie is er niet\n");
  EXPECT_EQ(Doe("ongedaan", {"familie"}), 0) << fout_;
  EXPECT_EQ(Personen(), voor);
}

TEST_F(VeiligheidToets, MetEenNummerToontDeGeschiedenisWatErWijzigde) {
  EXPECT_EQ(Doe("geschiedenis", {"familie", "1"}), 0) << fout_;
  EXPECT_EQ(uit_.find("1  2026-11-21 12:00:00  GEDCOM ingelezen: familie.ged ("), 0U) << uit_;
  EXPECT_NE(uit_.find("Persoonsrecord 2 (nieuw)\n"), std::string::npos) << uit_;
  EXPECT_NE(uit_.find("    Achternaam: \"\" werd \"Jansen\"\n"), std::string::npos) << uit_;
  EXPECT_EQ(Doe("geschiedenis", {"familie", "7"}), 1);
  EXPECT_EQ(fout_, "Er is geen bewerking 7\n");
}

TEST_F(VeiligheidToets, EenKopieNaarEenAndereMapEnVandaarTerug) {
  std::filesystem::create_directories(map_ / "stick");
  OpdrachtArgumenten argumenten;
  argumenten.woorden = {"familie"};
  argumenten.naar = map_ / "stick";
  EXPECT_EQ(Doe("kopie", argumenten), 0) << fout_;
  EXPECT_EQ(uit_, "2026-11-21_120000\n");
  const std::string voor = Personen();
  EXPECT_EQ(LeesBytes(map_ / "stick/FAMILIE/2026-11-21_120000/FAMILIE.PRS"), voor);
  EXPECT_FALSE(std::filesystem::exists(map_ / "KOPIE.PAD"));
  ASSERT_EQ(Doe("ongedaan", {"familie"}), 0) << fout_;
  ASSERT_NE(Personen(), voor);
  argumenten.woorden = {"familie", "2026-11-21_120000"};
  EXPECT_EQ(Doe("terugzetten", argumenten), 0) << fout_;
  EXPECT_EQ(Personen(), voor);
  argumenten.naar = map_ / "weg";
  EXPECT_EQ(Doe("terugzetten", argumenten), 1);
  EXPECT_NE(fout_.find("weg is er niet\n"), std::string::npos) << fout_;
}

TEST_F(VeiligheidToets, MetBewaarKomenOokDeVolgendeKopieenDaar) {
  std::filesystem::create_directories(map_ / "stick");
  OpdrachtArgumenten argumenten;
  argumenten.woorden = {"familie"};
  argumenten.naar = map_ / "stick";
  argumenten.bewaar = true;
  EXPECT_EQ(Doe("kopie", argumenten), 0) << fout_;
  EXPECT_EQ(Doe("kopie", {"familie"}), 0) << fout_;
  EXPECT_TRUE(std::filesystem::exists(map_ / "stick/FAMILIE/2026-11-21_120000_02"));
  std::filesystem::remove_all(map_ / "stick");
  EXPECT_EQ(Doe("kopie", {"familie"}), 1);
  EXPECT_NE(fout_.find("stick) is er niet.\nEen kopie komt nu in "), std::string::npos) << fout_;
  EXPECT_EQ(uit_, "2026-11-21_120000_02\n");
}

TEST_F(VeiligheidToets, TerugzettenMeldtOokDeTeksten) {
  const auto tekst = map_ / "DATA/FAMILIE/TEKST/GEDCOM.LOG";
  ASSERT_EQ(Doe("kopie", {"familie"}), 0) << fout_;
  SchrijfBytes(tekst, "anders");
  EXPECT_EQ(Doe("terugzetten", {"familie", "2026-11-21_120000_02"}), 0) << fout_;
  EXPECT_NE(uit_.find("\nOok in de map TEKST; wat daar stond ligt in "), std::string::npos) << uit_;
  EXPECT_NE(LeesBytes(tekst), "anders");
}

TEST_F(VeiligheidToets, EenKopieDieNietLuktWordtGemeld) {
  std::filesystem::remove_all(map_ / "KOPIE");
  SchrijfBytes(map_ / "KOPIE", "geen directory");
  EXPECT_EQ(Doe("kopie", {"familie"}), 1);
  EXPECT_EQ(fout_, "De veiligheidskopie is niet gemaakt\nPad niet gevonden\n");
}

TEST_F(VeiligheidToets, EenOnvoltooideSetWordtGeweigerdMetWatErTeDoenIs) {
  LaatOnvoltooid();
  constexpr std::string_view kWeigering =
      "De vorige bewerking (Persoon toegevoegd, 2026-01-01 10:00:00) is niet voltooid.\n"
      "lb77-cli herstel FAMILIE maakt haar ongedaan, lb77-cli herstel FAMILIE --behoud laat staan "
      "wat er staat\n";
  EXPECT_EQ(Doe("zoek", {"familie", "Jan"}), 1);
  EXPECT_EQ(fout_, kWeigering);
  EXPECT_EQ(Doe("importeer", Inlezen()), 1);
  EXPECT_EQ(fout_, kWeigering);
  EXPECT_EQ(Doe("herstel", {"familie"}), 0) << fout_;
  EXPECT_EQ(uit_, "Ongedaan gemaakt: Persoon toegevoegd, 2026-01-01 10:00:00\n");
  EXPECT_EQ(Personen().size(), 256U);
  EXPECT_EQ(Doe("zoek", {"familie", "Jan"}), 0) << fout_;
  EXPECT_EQ(Doe("herstel", {"familie"}), 0) << fout_;
  EXPECT_EQ(uit_, "Er is niets te herstellen\n");
}

TEST_F(VeiligheidToets, BehoudLaatStaanWatErStaat) {
  LaatOnvoltooid();
  OpdrachtArgumenten argumenten;
  argumenten.woorden = {"familie"};
  argumenten.behoud = true;
  EXPECT_EQ(Doe("herstel", argumenten), 0) << fout_;
  EXPECT_EQ(uit_, "Behouden: Persoon toegevoegd, 2026-01-01 10:00:00\n");
  EXPECT_EQ(Personen().size(), 384U);
  EXPECT_EQ(Doe("zoek", {"familie", "Jan"}), 0) << fout_;
}

TEST_F(VeiligheidToets, VanEenSetDieNietHeelIsWordtNietsHersteld) {
  LaatOnvoltooid();
  std::filesystem::remove(Paden().plt);
  EXPECT_EQ(Doe("herstel", {"familie"}), 1);
  EXPECT_NE(fout_.find("FAMILIE is niet compleet"), std::string::npos) << fout_;
  EXPECT_FALSE(std::filesystem::exists(Paden().plt));
}

TEST_F(VeiligheidToets, EenSetDieInGebruikIsWordtAlleenMetTochBeschreven) {
  Bestandenset ander;
  ASSERT_FALSE(ander.OpenSet(Paden()));
  ASSERT_TRUE(ander.NeemInGebruik());
  EXPECT_EQ(Doe("importeer", Inlezen()), 1);
  EXPECT_EQ(fout_, "Bestandenset FAMILIE is al in gebruik; met --toch opent hij toch\n");
  EXPECT_EQ(Doe("herstel", {"familie"}), 1);
  EXPECT_EQ(fout_, "Bestandenset FAMILIE is al in gebruik; met --toch opent hij toch\n");
  EXPECT_EQ(Doe("zoek", {"familie", "Jan"}), 0);
  EXPECT_EQ(fout_, "");
  EXPECT_EQ(Doe("importeer", Inlezen(true)), 0);
  EXPECT_EQ(fout_,
            "Deze bestandenset is al in gebruik.\nToch openen ? -> Ja\nImporteren voltooid\n");
  EXPECT_EQ(Personen().size(), 384U);
}

TEST_F(VeiligheidToets, EenBewerkingDieEldersBezigIsWordtNietHersteld) {
  LaatOnvoltooid();
  Bestandenset ander;
  ASSERT_FALSE(ander.OpenSet(Paden()));
  ASSERT_TRUE(ander.NeemInGebruik());
  EXPECT_EQ(Doe("zoek", {"familie", "Jan"}), 1);
  EXPECT_EQ(fout_, "Bestandenset FAMILIE is al in gebruik\n");
}

TEST_F(VeiligheidToets, EenNieuweSetMakenLostNietsOpInDeVorige) {
  LaatOnvoltooid();
  EXPECT_EQ(Doe("nieuw", {"ander"}), 0) << fout_;
  EXPECT_EQ(Doe("zoek", {"familie", "Jan"}), 1);
  EXPECT_NE(fout_.find("lb77-cli herstel FAMILIE"), std::string::npos) << fout_;
}

}  // namespace
}  // namespace lb77
