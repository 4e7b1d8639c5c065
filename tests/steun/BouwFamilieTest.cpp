#include <gtest/gtest.h>

#include "steun/BouwFamilie.h"
#include "steun/ProefSet.h"

using namespace lb77;

namespace {

struct BouwFamilieTest : ::testing::Test {
  ~BouwFamilieTest() override { EXPECT_EQ(set.Getoond(), std::vector<std::string>{}); }
  ProefSet set;
};

}  // namespace

TEST_F(BouwFamilieTest, EenNieuweSetIsLeegEnStaatNergensOp) {
  EXPECT_EQ(set.Persoon.AantalRecords(), 1);
  EXPECT_EQ(set.Relatie.AantalRecords(), 1);
  EXPECT_EQ(set.Plaats.AantalRecords(), 1);
  EXPECT_EQ(set.Opmerking.AantalRecords(), 1);
  EXPECT_EQ(set.volgers.HuidigPersoonNr, -1);
}

TEST_F(BouwFamilieTest, PersonenHebbenHunVelden) {
  EXPECT_EQ(set.bouw.Man("Jan", "Jansen", {{"GebDatum", "03-05-1850"}, {"Beroep", "smid"}}), 2);
  EXPECT_EQ(set.bouw.Vrouw("Griet", "Pieters"), 3);
  EXPECT_EQ(set.bouw.Persoon('?', "Kind", ""), 4);
  ASSERT_TRUE(set.Persoon.Lees(2));
  EXPECT_EQ(set.Persoon.NaamVoluit(), "Jan Jansen");
  EXPECT_EQ(set.Persoon.GebDatum(), 18500503);
  EXPECT_EQ(set.Persoon.beroep(), "smid");
  EXPECT_EQ(set.Persoon.IsMan(3), 0);
  EXPECT_EQ(set.Persoon.IsMan(4), -1);
}

TEST_F(BouwFamilieTest, EenRelatieStaatAanBeideKanten) {
  const auto man = set.bouw.Man("Jan", "Jansen");
  const auto vrouw = set.bouw.Vrouw("Griet", "Pieters");
  const auto kind = set.bouw.Man("Piet", "Jansen");
  const auto relatie = set.bouw.Relatie(man, vrouw, {kind}, {{"WHuwDatum", "01-02-1875"}});
  ASSERT_TRUE(set.Relatie.Lees(relatie));
  EXPECT_EQ(set.Relatie.ManNr(), man);
  EXPECT_EQ(set.Relatie.VrouwNr(), vrouw);
  EXPECT_EQ(set.Relatie.KindNr(1), kind);
  EXPECT_EQ(set.Relatie.WHuwDatum(), 18750201);
  ASSERT_TRUE(set.Persoon.Lees(kind));
  EXPECT_EQ(set.Persoon.RelNrOuders(), relatie);
  ASSERT_TRUE(set.Persoon.Lees(vrouw));
  EXPECT_EQ(set.Persoon.relatie1(), relatie);
}

TEST_F(BouwFamilieTest, DeVierdeEnVijfdeRelatieStaanInEenVervolgrecord) {
  const auto man = set.bouw.Man("Jan", "Jansen");
  for (int i = 0; i < 5; ++i) set.bouw.Relatie(man, 0);
  Huwtab tab{};
  EXPECT_EQ(set.Persoon.VulHuwtab(man, tab).aantal, 5);
  EXPECT_EQ(tab, (Huwtab{0, 2, 3, 4, 5, 6}));
  ASSERT_TRUE(set.Persoon.Lees(3));
  EXPECT_TRUE(set.Persoon.IsVolgRecord());
}

TEST_F(BouwFamilieTest, EenRelatieVultDeEersteVrijePlaats) {
  const auto man = set.bouw.Man("Jan", "Jansen", {{"Relatie1", "50"}, {"Relatie3", "60"}});
  const auto relatie = set.bouw.Relatie(man, 0);
  Huwtab tab{};
  EXPECT_EQ(set.Persoon.VulHuwtab(man, tab).aantal, 3);
  EXPECT_EQ(tab, (Huwtab{0, 50, relatie, 60, 0, 0}));
}

TEST_F(BouwFamilieTest, HetZestiendeKindStaatInEenVervolgrecord) {
  std::vector<std::int16_t> kinderen;
  for (int i = 0; i < 17; ++i) kinderen.push_back(set.bouw.Man("Kind", ""));
  const auto relatie = set.bouw.Relatie(0, 0, kinderen);
  Kindtab tab{};
  EXPECT_EQ(set.Relatie.VulKindtab(relatie, tab).aantal, 17);
  EXPECT_EQ(std::vector<std::int16_t>(tab.begin() + 1, tab.begin() + 18), kinderen);
  ASSERT_TRUE(set.Relatie.Lees(3));
  EXPECT_TRUE(set.Relatie.IsVolgRecord());
}

TEST_F(BouwFamilieTest, PlaatsenEnOpmerkingenHangenErbij) {
  const auto plaats = set.bouw.Plaats("Delft", "ZH");
  const auto man = set.bouw.Man("Jan", "Jansen", {{"GebPlaats", std::to_string(plaats)}});
  const auto relatie = set.bouw.Relatie(man, 0);
  set.bouw.OpmerkingBijPersoon(man, 4096, {"een", "twee"});
  set.bouw.OpmerkingBijRelatie(relatie, -256, {"drie"});
  ASSERT_TRUE(set.Persoon.Lees(man));
  EXPECT_EQ(set.Plaats.Naam(set.Persoon.GebPlaatsNr()), "Delft");
  EXPECT_EQ(
      set.Opmerking.OpmerkingTekst(set.Persoon.OpmCode(), set.Persoon.OpmRecord(), 4096, 2, false),
      "twee");
  ASSERT_TRUE(set.Relatie.Lees(relatie));
  EXPECT_EQ(set.Relatie.OpmCode(), -256);
}

TEST_F(BouwFamilieTest, WijzigenVerandertAlleenDatVeld) {
  const auto man = set.bouw.Man("Jan", "Jansen");
  set.bouw.WijzigPersoon(man, {{"Voornaam", "Johannes"}});
  ASSERT_TRUE(set.Persoon.Lees(man));
  EXPECT_EQ(set.Persoon.NaamVoluit(), "Johannes Jansen");
  const auto relatie = set.bouw.Relatie(man, 0);
  set.bouw.WijzigRelatie(relatie, {{"HuwSoort", "RK"}});
  ASSERT_TRUE(set.Relatie.Lees(relatie));
  EXPECT_EQ(set.Relatie.HuwSoort(), "RK");
  EXPECT_EQ(set.Relatie.ManNr(), man);
}
