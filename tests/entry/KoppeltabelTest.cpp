#include <gtest/gtest.h>

#include <vector>

#include "entry/Koppeltabel.h"
#include "steun/ProefSet.h"

namespace lb77 {
namespace {

using Nummers = std::vector<std::int16_t>;

TEST(Koppeltabel, VanGelijkeNummersBlijftHetEerste) {
  Nummers tab{5, 3, 5, 0, 3, 5};
  Ontdubbel(tab);
  EXPECT_EQ(tab, (Nummers{5, 3, 0, 0, 0, 0}));
}

TEST(Koppeltabel, VerdichtenHoudtDeVolgorde) {
  Nummers tab{0, 7, 0, 0, 2, 9};
  Verdicht(tab);
  EXPECT_EQ(tab, (Nummers{7, 2, 9, 0, 0, 0}));
}

TEST(Koppeltabel, VerdichtenVerliestOokEenNegatiefNummerNiet) {
  Nummers tab{0, -7, 4};
  Verdicht(tab);
  EXPECT_EQ(tab, (Nummers{-7, 4, 0}));
}

TEST(Koppeltabel, TeltTotHetEersteGat) {
  Nummers metGat{4, 5, 0, 6};
  Nummers vol{4, 5};
  Nummers leeg;
  EXPECT_EQ(AantalBezet(metGat), 2);
  EXPECT_EQ(AantalBezet(vol), 2);
  EXPECT_EQ(AantalBezet(leeg), 0);
}

TEST(Koppeltabel, EenPlaatsTeltVanafEen) {
  Nummers tab{4, 5, 6};
  EXPECT_EQ(PlaatsVan(tab, 4), 1);
  EXPECT_EQ(PlaatsVan(tab, 6), 3);
  EXPECT_EQ(PlaatsVan(tab, 7), 0);
}

TEST(Koppeltabel, WatErachterStaatSchuiftOp) {
  Nummers tab{4, 5, 6};
  HaalUit(tab, 1);
  EXPECT_EQ(tab, (Nummers{5, 6, 0}));
  HaalUit(tab, 2);
  EXPECT_EQ(tab, (Nummers{5, 0, 0}));
}

TEST(Koppeltabel, VerzettenNaarVorenNaarAchterenEnOpDeplaats) {
  Nummers tab{1, 2, 3, 4, 0};
  Verzet(tab, 3, 1);
  EXPECT_EQ(tab, (Nummers{3, 1, 2, 4, 0}));
  Verzet(tab, 1, 3);
  EXPECT_EQ(tab, (Nummers{1, 2, 3, 4, 0}));
  Verzet(tab, 2, 2);
  EXPECT_EQ(tab, (Nummers{1, 2, 3, 4, 0}));
}

TEST(Koppeltabel, EenPlaatsVoorbijHetAantalIsDeLaatste) {
  Nummers tab{1, 2, 3, 0, 0};
  Verzet(tab, 1, 29);
  EXPECT_EQ(tab, (Nummers{2, 3, 1, 0, 0}));
}

TEST(WijzigHuwtab, VoegtInHetEersteGat) {
  Huwtab tab{0, 7, 0, 8, 0, 0};
  EXPECT_TRUE(WijzigHuwtab(9, tab, TabelActie::Voeg));
  EXPECT_EQ(tab, (Huwtab{0, 7, 9, 8, 0, 0}));
}

TEST(WijzigHuwtab, EenVolleTabelBlijft) {
  Huwtab tab{0, 1, 2, 3, 4, 5};
  EXPECT_FALSE(WijzigHuwtab(9, tab, TabelActie::Voeg));
  EXPECT_EQ(tab, (Huwtab{0, 1, 2, 3, 4, 5}));
}

TEST(WijzigHuwtab, VerwijdertEnSchuiftOp) {
  Huwtab tab{0, 1, 2, 3, 4, 5};
  EXPECT_TRUE(WijzigHuwtab(2, tab, TabelActie::Verwijder));
  EXPECT_EQ(tab, (Huwtab{0, 1, 3, 4, 5, 0}));
}

TEST(WijzigHuwtab, WatErNietInStaatWordtNietVerwijderd) {
  Huwtab tab{0, 1, 2, 0, 0, 0};
  EXPECT_FALSE(WijzigHuwtab(9, tab, TabelActie::Verwijder));
  EXPECT_EQ(tab, (Huwtab{0, 1, 2, 0, 0, 0}));
}

TEST(WijzigHuwtab, EenAndereActieDoetNiets) {
  Huwtab tab{0, 1, 0, 0, 0, 0};
  EXPECT_FALSE(WijzigHuwtab(1, tab, TabelActie::Geen));
  EXPECT_EQ(tab, (Huwtab{0, 1, 0, 0, 0, 0}));
}

class SorteerToets : public ::testing::Test {
 protected:
  std::int16_t Kind(std::string_view geboren, std::string_view gedoopt = "") {
    return set_.bouw.Man("K", "Kind", {{"GebDatum", geboren}, {"DoopDatum", gedoopt}});
  }
  std::int16_t Band(VeldWaarden velden) { return set_.bouw.Relatie(0, 0, {}, velden); }

  ProefSet set_;
};

TEST_F(SorteerToets, KinderenGaanOpGeboorteEnAndersOpDoop) {
  const std::int16_t laat = Kind("01-01-1902");
  const std::int16_t gedoopt = Kind("", "05-06-1901");
  const std::int16_t vroeg = Kind("31-12-1900", "01-01-1999");
  Kindtab tab{0, laat, gedoopt, vroeg};
  EXPECT_TRUE(SorteerKindtab(set_.Persoon, tab, 3));
  EXPECT_EQ(tab, (Kindtab{0, vroeg, gedoopt, laat}));
}

TEST_F(SorteerToets, DagEnMaandTellenMee) {
  const std::int16_t mei = Kind("02-05-1900");
  const std::int16_t april = Kind("30-04-1900");
  const std::int16_t jaar = Kind("00-00-1900");
  Kindtab tab{0, mei, april, jaar};
  EXPECT_TRUE(SorteerKindtab(set_.Persoon, tab, 3));
  EXPECT_EQ(tab, (Kindtab{0, jaar, april, mei}));
}

TEST_F(SorteerToets, ZonderDatumKomtEerst) {
  const std::int16_t datum = Kind("01-01-1900");
  const std::int16_t een = Kind("");
  const std::int16_t twee = Kind("");
  const std::int16_t drie = Kind("");
  Kindtab tab{0, datum, een, twee, drie};
  EXPECT_TRUE(SorteerKindtab(set_.Persoon, tab, 4));
  // The exchanges bring the first of the equal ones forward and the others one by one.
  EXPECT_EQ(tab, (Kindtab{0, een, twee, drie, datum}));
}

TEST_F(SorteerToets, EenWisselMetEenDerdeKeertGelijken) {
  const std::int16_t a = Kind("01-01-1901");
  const std::int16_t b = Kind("01-01-1901");
  const std::int16_t vroeg = Kind("01-01-1900");
  Kindtab tab{0, a, b, vroeg};
  EXPECT_TRUE(SorteerKindtab(set_.Persoon, tab, 3));
  EXPECT_EQ(tab, (Kindtab{0, vroeg, b, a}));
}

TEST_F(SorteerToets, EenKindDatNietTeLezenIsBreektAf) {
  const std::int16_t laat = Kind("01-01-1902");
  const std::int16_t vroeg = Kind("01-01-1900");
  Kindtab tab{0, laat, vroeg, 99};
  EXPECT_FALSE(SorteerKindtab(set_.Persoon, tab, 3));
  EXPECT_EQ(tab, (Kindtab{0, laat, vroeg, 99}));
}

TEST_F(SorteerToets, EenEnkelKindWordtNietGelezen) {
  Kindtab tab{0, 99};
  EXPECT_TRUE(SorteerKindtab(set_.Persoon, tab, 1));
}

TEST_F(SorteerToets, EenGatTeltAlsDatumNul) {
  const std::int16_t kind = Kind("01-01-1900");
  Kindtab tab{0, kind, 0, 0};
  EXPECT_TRUE(SorteerKindtab(set_.Persoon, tab, 2));
  EXPECT_EQ(tab, (Kindtab{0, 0, kind}));
}

TEST_F(SorteerToets, RelatiesGaanOpWetDanKerkDanOndertrouw) {
  const std::int16_t otr = Band({{"OtrDatum", "01-01-1903"}});
  const std::int16_t kerk = Band({{"KHuwDatum", "01-01-1902"}, {"OtrDatum", "01-01-1999"}});
  const std::int16_t wet = Band({{"WHuwDatum", "01-01-1901"}, {"KHuwDatum", "01-01-1999"}});
  Huwtab tab{0, otr, kerk, wet, 0, 0};
  EXPECT_TRUE(SorteerHuwtab(set_.Relatie, tab, 3));
  EXPECT_EQ(tab, (Huwtab{0, wet, kerk, otr, 0, 0}));
}

TEST_F(SorteerToets, EenRelatieDieNietTeLezenIsBreektAf) {
  Huwtab tab{0, Band({}), 99, 0, 0, 0};
  EXPECT_FALSE(SorteerHuwtab(set_.Relatie, tab, 2));
}

}  // namespace
}  // namespace lb77
