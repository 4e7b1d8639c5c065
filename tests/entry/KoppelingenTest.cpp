#include "entry/KoppelingenToets.h"

namespace lb77 {
namespace {

using SchrijfKindtabToets = KoppelingenToets;
using SchrijfHuwtabToets = KoppelingenToets;
using VerplaatsKindToets = KoppelingenToets;
using R = std::vector<std::string>;

constexpr std::string_view kKort =
    "! stop \"De lijst van kinderen van relatie 2 kan niet "
    "helemaal worden gelezen.\\nDe lijst is niet gewijzigd.\"";

TEST_F(SchrijfKindtabToets, DubbelenEnGatenVerdwijnen) {
  RelatieMet(0);
  Kindtab tab{0, 5, 0, 6, 5, 0, 7};
  EXPECT_TRUE(Werk().SchrijfKindtab(2, tab));
  EXPECT_EQ(Relaties(), (R{"2: 5 6 7"}));
  EXPECT_EQ(tab, (Kindtab{0, 5, 6, 7}));
}

TEST_F(SchrijfKindtabToets, VijftienKinderenPassenInEenRecord) {
  RelatieMet(15);
  EXPECT_EQ(Relaties(), (R{"2: 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16"}));
}

TEST_F(SchrijfKindtabToets, HetZestiendeMaaktEenVervolgrecord) {
  RelatieMet(16);
  EXPECT_EQ(Relaties(), (R{"2: 2 3 4 5 6 7 8 9 10 11 12 13 14 15 -3", "3 Z: 16 17"}));
  EXPECT_EQ(set_.volgers.HuidigRelatieNr, 2);
}

TEST_F(SchrijfKindtabToets, NegenentwintigVullenBeide) {
  RelatieMet(29);
  EXPECT_EQ(Relaties(), (R{"2: 2 3 4 5 6 7 8 9 10 11 12 13 14 15 -3",
                           "3 Z: 16 17 18 19 20 21 22 23 24 25 26 27 28 29 30"}));
}

TEST_F(SchrijfKindtabToets, EenVervolgrecordDatOverIsBlijftStaan) {
  RelatieMet(16);
  Kindtab tab{0, 2, 3};
  EXPECT_TRUE(Werk().SchrijfKindtab(2, tab));
  EXPECT_EQ(Relaties(), (R{"2: 2 3", "3 Z: 16 17"}));
}

TEST_F(SchrijfKindtabToets, DaarnaMaaktEenZestiendeEenNieuwVervolgrecord) {
  RelatieMet(16);
  Kindtab kort{0, 2, 3};
  EXPECT_TRUE(Werk().SchrijfKindtab(2, kort));
  Kindtab lang{0, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17};
  EXPECT_TRUE(Werk().SchrijfKindtab(2, lang));
  EXPECT_EQ(Relaties(), (R{"2: 2 3 4 5 6 7 8 9 10 11 12 13 14 15 -4", "3 Z: 16 17", "4 Z: 16 17"}));
}

TEST_F(SchrijfKindtabToets, EenVervolgrecordDatErIsWordtHergebruikt) {
  RelatieMet(17);
  Kindtab tab{0, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 40, 41};
  EXPECT_TRUE(Werk().SchrijfKindtab(2, tab));
  EXPECT_EQ(Relaties(), (R{"2: 2 3 4 5 6 7 8 9 10 11 12 13 14 15 -3", "3 Z: 40 41"}));
}

TEST_F(SchrijfKindtabToets, ZonderLeesbaarVervolgBlijftDeLijst) {
  RelatieMet(16);
  set_.bouw.WijzigRelatie(2, {{"Kind15", "-99"}});
  Kindtab tab{0, 2};
  EXPECT_FALSE(Werk().SchrijfKindtab(2, tab));
  EXPECT_EQ(Boxen(), R{std::string(kKort)});
  EXPECT_EQ(Relaties().front(), "2: 2 3 4 5 6 7 8 9 10 11 12 13 14 15 -99");
}

TEST_F(SchrijfKindtabToets, EenVervolgDatGewoonIsBlijftZoalsHetIs) {
  RelatieMet(16);
  set_.bouw.WijzigRelatie(3, {{"HuwCorr", ""}});
  Kindtab tab{0, 2};
  EXPECT_FALSE(Werk().SchrijfKindtab(2, tab));
  EXPECT_EQ(Boxen(), R{std::string(kKort)});
  EXPECT_EQ(Relaties().back(), "3: 16 17");
}

TEST_F(SchrijfKindtabToets, EenVervolgrecordKrijgtZelfGeenLijst) {
  RelatieMet(16);
  Kindtab tab{0, 2};
  EXPECT_FALSE(Werk().SchrijfKindtab(3, tab));
  EXPECT_EQ(Boxen().size(), 1U);
  EXPECT_EQ(Relaties().back(), "3 Z: 16 17");
}

TEST_F(SchrijfKindtabToets, EenRelatieDieErNietIsMislukt) {
  Kindtab tab{0, 2};
  EXPECT_FALSE(Werk().SchrijfKindtab(9, tab));
  EXPECT_EQ(set_.volgers.HuidigRelatieNr, 9);
  EXPECT_EQ(Boxen(), R{});
}

TEST_F(SchrijfHuwtabToets, DrieRelatiesPassenInEenRecord) {
  Personen(1);
  GeefRelaties(2, 3);
  EXPECT_EQ(Huwelijken(), (R{"2: 2 3 4"}));
}

TEST_F(SchrijfHuwtabToets, DeVierdeEnVijfdeKomenInEenVervolgrecord) {
  Personen(2);
  GeefRelaties(2, 4);
  EXPECT_EQ(Huwelijken(), (R{"2: 2 3 -4", "4 Z: 4 5"}));
  Huwtab tab{0, 2, 3, 4, 5, 9};
  EXPECT_TRUE(Werk().SchrijfHuwtab(2, tab));
  EXPECT_EQ(Huwelijken(), (R{"2: 2 3 -4", "4 Z: 4 5 9"}));
  EXPECT_EQ(set_.volgers.HuidigPersoonNr, 2);
}

TEST_F(SchrijfHuwtabToets, VanVierNaarDrieBlijftHetVervolgStaan) {
  Personen(1);
  GeefRelaties(2, 4);
  Huwtab tab{0, 2, 0, 4, 5, 0};
  EXPECT_TRUE(Werk().SchrijfHuwtab(2, tab));
  EXPECT_EQ(Huwelijken(), (R{"2: 2 4 5", "3 Z: 4 5"}));
}

TEST_F(SchrijfHuwtabToets, ZonderLeesbaarVervolgBlijftDeLijst) {
  Personen(1);
  GeefRelaties(2, 4);
  set_.bouw.WijzigPersoon(2, {{"Relatie3", "-77"}});
  Huwtab tab{0, 2};
  EXPECT_FALSE(Werk().SchrijfHuwtab(2, tab));
  EXPECT_EQ(Boxen(), R{"! stop \"De lijst van relaties van persoon 2 kan niet helemaal worden "
                       "gelezen.\\nDe lijst is niet gewijzigd.\""});
  EXPECT_EQ(Huwelijken().front(), "2: 2 3 -77");
}

TEST_F(SchrijfHuwtabToets, EenRelatieGaatNaarDeEersteVrijePlaats) {
  Personen(1);
  GeefRelaties(2, 2);
  EXPECT_TRUE(Werk().VoegRelatieToe(2, 9));
  EXPECT_EQ(Huwelijken(), (R{"2: 2 3 9"}));
  EXPECT_TRUE(Werk().VoegRelatieToe(2, 10));
  EXPECT_TRUE(Werk().VoegRelatieToe(2, 11));
  EXPECT_FALSE(Werk().VoegRelatieToe(2, 12));
  EXPECT_EQ(Huwelijken(), (R{"2: 2 3 -3", "3 Z: 9 10 11"}));
  EXPECT_EQ(Boxen(), R{});
}

TEST_F(SchrijfHuwtabToets, EenRelatieGaatUitDeLijst) {
  Personen(2);
  GeefRelaties(2, 3);
  EXPECT_TRUE(Werk().HaalRelatieUit(2, 3));
  EXPECT_EQ(Huwelijken(), (R{"2: 2 4"}));
  EXPECT_TRUE(Werk().HaalRelatieUit(2, 99));
  EXPECT_FALSE(Werk().HaalRelatieUit(3, 2));
  EXPECT_FALSE(Werk().HaalRelatieUit(9, 2));
  EXPECT_EQ(Huwelijken(), (R{"2: 2 4"}));
  EXPECT_EQ(Boxen(), R{});
}

TEST_F(SchrijfHuwtabToets, EenLijstDieNietHeelTeLezenIsBlijft) {
  Personen(1);
  GeefRelaties(2, 4);
  set_.bouw.WijzigPersoon(2, {{"Relatie3", "-77"}});
  EXPECT_FALSE(Werk().VoegRelatieToe(2, 9));
  EXPECT_EQ(Boxen().size(), 1U);
  EXPECT_FALSE(Werk().HaalRelatieUit(2, 2));
  EXPECT_EQ(Huwelijken(), (R{"2: 2 3 -77", "3 Z: 4 5"}));
}

TEST_F(SchrijfHuwtabToets, EenPersoonDieZichzelfAlsVervolgNoemtBlijft) {
  Personen(1);
  set_.bouw.WijzigPersoon(2, {{"Relatie1", "5"}, {"Relatie3", "-2"}});
  Huwtab tab{0, 5};
  EXPECT_FALSE(Werk().SchrijfHuwtab(2, tab));
  EXPECT_EQ(Boxen().size(), 1U);
  EXPECT_EQ(Huwelijken(), (R{"2: 5 0 -2"}));
}

TEST_F(VerplaatsKindToets, VanDeEneNaarDeAndere) {
  RelatieMet(3, 2);
  RelatieMet(1, 9);
  EXPECT_TRUE(Werk().VerplaatsKind(3, 2, 3));
  EXPECT_EQ(Relaties(), (R{"2: 2 4", "3: 9 3"}));
  EXPECT_EQ(Boxen(), R{});
}

TEST_F(VerplaatsKindToets, AlleenLosmakenEnAlleenToevoegen) {
  RelatieMet(2, 2);
  EXPECT_TRUE(Werk().VerplaatsKind(2, 2, 0));
  EXPECT_EQ(Relaties(), (R{"2: 3"}));
  EXPECT_TRUE(Werk().VerplaatsKind(7, 0, 2));
  EXPECT_EQ(Relaties(), (R{"2: 3 7"}));
}

TEST_F(VerplaatsKindToets, EenKindDatErNietIs) {
  RelatieMet(2, 2);
  RelatieMet(0);
  EXPECT_FALSE(Werk().VerplaatsKind(9, 2, 3));
  EXPECT_EQ(Boxen(), R{"! uitroep \"Het kind ontbreekt in de relatie van de oude ouders\""});
  EXPECT_EQ(Relaties(), (R{"2: 2 3", "3:"}));
}

TEST_F(VerplaatsKindToets, UitEnNaarEenRelatieDieErNietIs) {
  EXPECT_FALSE(Werk().VerplaatsKind(9, 77, 0));
  EXPECT_EQ(Boxen(), R{"! uitroep \"Het kind ontbreekt in de relatie van de oude ouders\""});
  EXPECT_FALSE(Werk().VerplaatsKind(9, 0, 77));
  EXPECT_EQ(Boxen().size(), 1U);
  EXPECT_EQ(Relaties(), R{});
}

TEST_F(VerplaatsKindToets, UitEenLegeRelatie) {
  RelatieMet(0);
  EXPECT_FALSE(Werk().VerplaatsKind(9, 2, 0));
  EXPECT_EQ(Boxen(), R{"! uitroep \"Het kind ontbreekt in de relatie van de oude ouders\""});
}

TEST_F(VerplaatsKindToets, EenKindAchterEenGatWordtGevondenEnGaatNietVerloren) {
  RelatieMet(0);
  set_.bouw.WijzigRelatie(2, {{"Kind1", "5"}, {"Kind3", "6"}, {"Kind7", "7"}});
  EXPECT_TRUE(Werk().VerplaatsKind(7, 2, 0));
  EXPECT_EQ(Relaties(), (R{"2: 5 6"}));
}

TEST_F(VerplaatsKindToets, EenNieuwKindOverschrijftGeenKindAchterEenGat) {
  RelatieMet(0);
  set_.bouw.WijzigRelatie(2, {{"Kind1", "5"}, {"Kind3", "6"}});
  EXPECT_TRUE(Werk().VerplaatsKind(8, 0, 2));
  EXPECT_EQ(Relaties(), (R{"2: 5 6 8"}));
}

TEST_F(VerplaatsKindToets, HetDertigsteWordtGeweigerd) {
  RelatieMet(29);
  const R voor = Relaties();
  EXPECT_FALSE(Werk().VerplaatsKind(99, 0, 2));
  EXPECT_EQ(Boxen(), R{"! uitroep \"Er zijn al 29 kinderen bij de nieuwe ouders\""});
  EXPECT_EQ(Relaties(), voor);
}

TEST_F(VerplaatsKindToets, EenKindDatErAlIs) {
  RelatieMet(3, 2);
  EXPECT_FALSE(Werk().VerplaatsKind(3, 0, 2));
  EXPECT_EQ(Boxen(), R{"! uitroep \"Het kind is al vermeld bij de nieuwe ouders\""});
}

TEST_F(VerplaatsKindToets, HetLaatsteKindNogEensGeeftGeenDubbelEnGeenBox) {
  RelatieMet(3, 2);
  EXPECT_TRUE(Werk().VerplaatsKind(4, 0, 2));
  EXPECT_EQ(Relaties(), (R{"2: 2 3 4"}));
  EXPECT_EQ(Boxen(), R{});
}

TEST_F(VerplaatsKindToets, HetZestiendeVerdwijntWeerUitHetVervolg) {
  RelatieMet(15, 2);
  EXPECT_TRUE(Werk().VerplaatsKind(40, 0, 2));
  EXPECT_EQ(Relaties(), (R{"2: 2 3 4 5 6 7 8 9 10 11 12 13 14 15 -3", "3 Z: 16 40"}));
  EXPECT_TRUE(Werk().VerplaatsKind(2, 2, 0));
  EXPECT_EQ(Relaties(), (R{"2: 3 4 5 6 7 8 9 10 11 12 13 14 15 16 40", "3 Z: 16 40"}));
}

TEST_F(VerplaatsKindToets, EenOudeLijstDieNietHeelIsBlijft) {
  RelatieMet(16);
  RelatieMet(0);
  set_.bouw.WijzigRelatie(2, {{"Kind15", "-99"}});
  const R voor = Relaties();
  EXPECT_FALSE(Werk().VerplaatsKind(3, 2, 4));
  EXPECT_EQ(Boxen(), R{std::string(kKort)});
  EXPECT_EQ(Relaties(), voor);
}

TEST_F(VerplaatsKindToets, EenVerwijderingBlijftAlsHetToevoegenMislukt) {
  RelatieMet(2, 2);
  RelatieMet(29, 10);
  EXPECT_FALSE(Werk().VerplaatsKind(2, 2, 3));
  EXPECT_EQ(Relaties().front(), "2: 3");
}

// Each operation fails in turn: no number is ever in neither record.
TEST_F(VerplaatsKindToets, GeenStoringVerliestEenKind) {
  for (int k = 1;; ++k) {
    Storing storing;
    ProefSet set(FalendeOpener(storing));
    Koppelingen werk(set.Persoon, set.Relatie, set.volgers, set.gesprek);
    set.bouw.Relatie(0, 0);
    Kindtab tab{0, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};
    ASSERT_TRUE(werk.SchrijfKindtab(2, tab));
    storing.teller = 0;
    storing.bij = k;
    const bool gelukt = werk.VerplaatsKind(17, 0, 2);
    const bool geweest = storing.Geweest();
    storing.bij = 0;
    set.Getoond();
    Kindtab na{};
    static_cast<void>(set.Relatie.VulKindtab(2, na));
    for (std::int16_t kind = 2; kind <= 16; ++kind) {
      EXPECT_GT(PlaatsVan(PlaatsenVan(na), kind), 0) << "operatie " << k << ", kind " << kind;
    }
    if (!geweest) {
      EXPECT_TRUE(gelukt);
      break;
    }
  }
}

}  // namespace
}  // namespace lb77
