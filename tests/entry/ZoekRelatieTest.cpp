#include "entry/KoppelingenToets.h"

namespace lb77 {
namespace {

using R = std::vector<std::string>;

constexpr std::string_view kVraag =
    "? vraag Ja/Nee \"Geen relatie bekend tussen deze partners.\\nRelatie aanmaken ?\" -> ";

class ZoekRelatieToets : public KoppelingenToets {
 protected:
  R Vraag(std::string_view antwoord) { return {std::string(kVraag) + std::string(antwoord)}; }
  void Antwoord(lb77::Antwoord antwoord) { set_.gesprek.Antwoordt(antwoord); }
};

TEST_F(ZoekRelatieToets, ZonderOudersIsErGeen) {
  EXPECT_EQ(Werk().ZoekRelatie(0, 0), 0);
  EXPECT_EQ(Boxen(), R{});
}

TEST_F(ZoekRelatieToets, VindtDeEersteDieZeSamenHebben) {
  Personen(3);
  set_.bouw.Relatie(2, 4);
  set_.bouw.Relatie(2, 3);
  set_.bouw.Relatie(2, 3);
  EXPECT_EQ(Werk().ZoekRelatie(2, 3), 3);
  EXPECT_EQ(Boxen(), R{});
}

TEST_F(ZoekRelatieToets, VindtEenVijfdeInBeideVervolgrecords) {
  Personen(2);
  set_.bouw.Relatie(2, 0);
  for (int i = 0; i < 4; ++i) set_.bouw.Relatie(i < 3 ? 2 : 0, 3);
  set_.bouw.WijzigRelatie(6, {{"ManNr", "2"}});
  Huwtab tab{0, 2, 3, 4, 5, 6};
  ASSERT_TRUE(Werk().SchrijfHuwtab(2, tab));
  Huwtab haar{0, 6, 0, 0, 0, 0};
  ASSERT_TRUE(Werk().SchrijfHuwtab(3, haar));
  EXPECT_EQ(Werk().ZoekRelatie(2, 3), 6);
}

TEST_F(ZoekRelatieToets, NeeMaaktErGeen) {
  Personen(2);
  Antwoord(Antwoord::Nee);
  EXPECT_EQ(Werk().ZoekRelatie(2, 3), 0);
  EXPECT_EQ(Boxen(), Vraag("Nee"));
  EXPECT_EQ(Relaties(), R{});
}

TEST_F(ZoekRelatieToets, JaMaaktErEenMetBeideKanten) {
  Personen(2);
  set_.bouw.Relatie(2, 0);
  Antwoord(Antwoord::Ja);
  EXPECT_EQ(Werk().ZoekRelatie(2, 3), 3);
  EXPECT_EQ(Boxen(), Vraag("Ja"));
  EXPECT_EQ(Relaties(), (R{"2 M2:", "3 M2 V3:"}));
  EXPECT_EQ(Huwelijken(), (R{"2: 2 3", "3: 3"}));
}

TEST_F(ZoekRelatieToets, AlleenEenVader) {
  Personen(1);
  Antwoord(Antwoord::Ja);
  EXPECT_EQ(Werk().ZoekRelatie(2, 0), 2);
  EXPECT_EQ(Relaties(), (R{"2 M2:"}));
  EXPECT_EQ(Huwelijken(), (R{"2: 2"}));
}

// kept: his other relations leave his list.
TEST_F(ZoekRelatieToets, AlleenEenMoederGeeftHaarManEenLijstMetAlleenDeNieuwe) {
  Personen(2);
  set_.bouw.Relatie(2, 0);
  set_.bouw.Relatie(2, 3);
  Antwoord(Antwoord::Ja);
  EXPECT_EQ(Werk().ZoekRelatie(0, 3), 4);
  EXPECT_EQ(Relaties(), (R{"2 M2:", "3 M2 V3:", "4 M2 V3:"}));
  EXPECT_EQ(Huwelijken(), (R{"2: 4", "3: 3 4"}));
}

TEST_F(ZoekRelatieToets, EenMoederVanWieDeLaatsteRelatieGeenManHeeft) {
  Personen(2);
  set_.bouw.Relatie(2, 3);
  set_.bouw.Relatie(0, 3);
  Antwoord(Antwoord::Ja);
  EXPECT_EQ(Werk().ZoekRelatie(0, 3), 4);
  EXPECT_EQ(Relaties().back(), "4 V3:");
  EXPECT_EQ(Huwelijken(), (R{"2: 2", "3: 2 3 4"}));
}

TEST_F(ZoekRelatieToets, EenRelatieVanHaarDieNietTeLezenIs) {
  Personen(1);
  Huwtab haar{0, 88};
  ASSERT_TRUE(Werk().SchrijfHuwtab(2, haar));
  Antwoord(Antwoord::Nee);
  EXPECT_EQ(Werk().ZoekRelatie(0, 2), 0);
  EXPECT_EQ(Boxen(), (R{"! stop \"Fout bij het lezen van Relatie 88\"", Vraag("Nee").front()}));
}

TEST_F(ZoekRelatieToets, EenVaderWiensVervolgNietTeLezenIs) {
  Personen(2);
  set_.bouw.WijzigPersoon(2, {{"Relatie3", "-50"}});
  EXPECT_EQ(Werk().ZoekRelatie(2, 3), 0);
  EXPECT_EQ(Boxen(), R{"! stop \"Fout bij het lezen van Persoon 2\""});
}

TEST_F(ZoekRelatieToets, DeManHeeftErAlVijf) {
  Personen(2);
  GeefRelaties(2, 5);
  Antwoord(Antwoord::Ja);
  EXPECT_EQ(Werk().ZoekRelatie(2, 3), 0);
  EXPECT_EQ(Boxen(), (R{Vraag("Ja").front(), "! uitroep \"De Man heeft al 5 Relaties\""}));
  EXPECT_EQ(Relaties().size(), 5U);
}

TEST_F(ZoekRelatieToets, DeVrouwHeeftErAlVijf) {
  Personen(2);
  GeefRelaties(3, 5);
  Antwoord(Antwoord::Ja);
  EXPECT_EQ(Werk().ZoekRelatie(2, 3), 0);
  EXPECT_EQ(Boxen(), (R{Vraag("Ja").front(), "! uitroep \"De Vrouw heeft al 5 Relaties\""}));
}

// A man who is record 1, or whose record continues another, has no list of his own.
TEST_F(ZoekRelatieToets, EenOnmogelijkeManKrijgtGeenLijst) {
  Personen(2);
  set_.bouw.Relatie(0, 2);
  set_.bouw.WijzigRelatie(2, {{"ManNr", "1"}});
  Antwoord(Antwoord::Ja);
  EXPECT_EQ(Werk().ZoekRelatie(0, 2), 3);
  EXPECT_EQ(Relaties().back(), "3 V2:");
  GeefRelaties(3, 4);
  set_.bouw.WijzigRelatie(3, {{"ManNr", "4"}});
  Boxen();
  Antwoord(Antwoord::Ja);
  EXPECT_EQ(Werk().ZoekRelatie(0, 2), 8);
  EXPECT_EQ(Relaties().back(), "8 V2:");
  EXPECT_EQ(Huwelijken().back(), "4 Z: 6 7");
}

}  // namespace
}  // namespace lb77
