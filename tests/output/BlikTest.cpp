// Persons and families as values.
#include <gtest/gtest.h>

#include "output/Blik.h"
#include "steun/ProefSet.h"

namespace lb77 {
namespace {

class BlikToets : public ::testing::Test {
 protected:
  std::vector<GezinBlik> Gezinnen(std::int16_t nr) {
    const auto gezinnen = LeesGezinnen(set_.Persoon, set_.Relatie, nr);
    EXPECT_TRUE(gezinnen.has_value());
    return gezinnen ? gezinnen->lijst : std::vector<GezinBlik>{};
  }

  ProefSet set_;
  BouwFamilie& bouw_ = set_.bouw;
};

TEST_F(BlikToets, EenPersoonBlijftDezelfdeNaDeVolgendeLezing) {
  const auto jan = bouw_.Man("Jan", "Bos",
                             {{"GebDatum", "12-05-1850"},
                              {"GebPlaats", "2"},
                              {"GebCorr", "C"},
                              {"DoopDatum", "13-05-1850"},
                              {"DoopPlaats", "3"},
                              {"DoopReligie", "NH"},
                              {"Beroep", "smid"},
                              {"OvlDatum", "01-02-1920"},
                              {"OvlPlaats", "4"},
                              {"OvlCorr", "V"},
                              {"BegrDatum", "00-00-1920"},
                              {"BegrPlaats", "5"},
                              {"BegrCrem", "1"},
                              {"Ouders", "7"}});
  const auto piet = bouw_.Vrouw("Pietje", "Vos");
  const auto blik = LeesPersoonBlik(set_.Persoon, jan);
  ASSERT_TRUE(blik);
  ASSERT_TRUE(set_.Persoon.Lees(piet));
  EXPECT_EQ(blik->nr, jan);
  EXPECT_EQ(blik->voornaam, "Jan");
  EXPECT_EQ(blik->achternaam, "Bos");
  EXPECT_EQ(blik->geslacht, "M");
  EXPECT_TRUE(blik->IsMan());
  EXPECT_EQ(blik->beroep, "smid");
  EXPECT_EQ(blik->relNrOuders, 7);
  EXPECT_EQ(
      blik->leven,
      (Levensloop{
          {2, 1205, 1850}, {3, 1305, 1850}, {4, 102, 1920}, {5, 0, 1920}, "C", "V", "NH", true}));
  EXPECT_FALSE(BlikVan(set_.Persoon, piet).IsMan());
}

TEST_F(BlikToets, EenPersoonVertelWaarZijnOpmerkingenStaan) {
  const auto jan = bouw_.Man("Jan", "Bos");
  bouw_.OpmerkingBijPersoon(jan, 2048, {"Beroep."});
  const auto blik = LeesPersoonBlik(set_.Persoon, jan);
  ASSERT_TRUE(blik);
  EXPECT_EQ(blik->opmRecord, 2);
  EXPECT_EQ(blik->opmCode, 2048);
}

TEST_F(BlikToets, EenPersoonDieErNietIsGeeftNiets) {
  EXPECT_FALSE(LeesPersoonBlik(set_.Persoon, 99));
  EXPECT_FALSE(LeesGezinnen(set_.Persoon, set_.Relatie, 99));
}

TEST_F(BlikToets, EenGezinWordtVanuitDePersoonGezien) {
  const auto jan = bouw_.Man("Jan", "Bos");
  const auto an = bouw_.Vrouw("An", "Vos");
  const auto eva = bouw_.Vrouw("Eva", "Wolf");
  bouw_.Relatie(jan, an);
  const auto tweede = bouw_.Relatie(jan, eva);
  const auto vanJan = Gezinnen(jan);
  ASSERT_EQ(vanJan.size(), 2U);
  EXPECT_EQ(vanJan[0].partner, an);
  EXPECT_FALSE(vanJan[0].PartnerIsMan());
  EXPECT_EQ(vanJan[1].relNr, tweede);
  EXPECT_EQ(vanJan[1].volgNr, 2);
  EXPECT_EQ(vanJan[1].man, jan);
  EXPECT_EQ(vanJan[1].vrouw, eva);
  const auto vanEva = Gezinnen(eva);
  ASSERT_EQ(vanEva.size(), 1U);
  EXPECT_EQ(vanEva[0].volgNr, 1);
  EXPECT_EQ(vanEva[0].partner, jan);
  EXPECT_TRUE(vanEva[0].PartnerIsMan());
}

TEST_F(BlikToets, EenOnleesbareRelatieIsEenAndereDanEenZonderPartner) {
  const auto jan = bouw_.Man("Jan", "Bos");
  bouw_.Relatie(jan, 0);
  bouw_.WijzigPersoon(jan, {{"Relatie2", "99"}});
  const auto gezinnen = Gezinnen(jan);
  ASSERT_EQ(gezinnen.size(), 2U);
  EXPECT_TRUE(gezinnen[0].gelezen);
  EXPECT_EQ(gezinnen[0].partner, 0);
  EXPECT_FALSE(gezinnen[1].gelezen);
  EXPECT_EQ(gezinnen[1].relNr, 99);
  EXPECT_EQ(gezinnen[1].volgNr, 2);
}

TEST_F(BlikToets, EenVerbintenisHeeftHaarGebeurtenissenBijNaam) {
  const auto jan = bouw_.Man("Jan", "Bos");
  bouw_.Relatie(jan, 0, {},
                {{"OtrDatum", "01-04-1778"},
                 {"OtrPlaats", "2"},
                 {"WHuwDatum", "20-04-1778"},
                 {"WHuwPlaats", "3"},
                 {"KHuwDatum", "21-04-1779"},
                 {"KHuwPlaats", "4"},
                 {"HuwCorr", "C"},
                 {"HuwSwPs", "1"}});
  const auto gezinnen = Gezinnen(jan);
  ASSERT_EQ(gezinnen.size(), 1U);
  const Verbintenis& bond = gezinnen[0].verbintenis;
  EXPECT_EQ(bond.ondertrouw, (Gebeurtenis{2, 104, 1778}));
  EXPECT_EQ(bond.wettig, (Gebeurtenis{3, 2004, 1778}));
  EXPECT_EQ(bond.kerk, (Gebeurtenis{4, 2104, 1779}));
  EXPECT_EQ(bond.corr, "C");
  EXPECT_EQ(bond.bond, "S");
  EXPECT_FALSE(bond.scheiding);
  EXPECT_TRUE(bond.HeeftGegevens());
}

TEST_F(BlikToets, KinderenStaanOpHunPlaats) {
  const auto jan = bouw_.Man("Jan", "Bos");
  const auto een = bouw_.Man("Een", "Bos");
  const auto twee = bouw_.Man("Twee", "Bos");
  const auto relatie = bouw_.Relatie(jan, 0, {een, twee});
  bouw_.WijzigRelatie(relatie, {{"Kind1", "0"}});
  const KinderenBlik kinderen = LeesKinderen(set_.Relatie, relatie);
  EXPECT_TRUE(kinderen.heel);
  EXPECT_EQ(kinderen.plaatsen[1], 0);
  EXPECT_EQ(kinderen.plaatsen[2], twee);
  EXPECT_EQ(kinderen.Lijst(), (std::vector<std::int16_t>{twee}));
  EXPECT_FALSE(LeesKinderen(set_.Relatie, 99).heel);
}

TEST(Gebeurtenis, IsBekendMetEenPlaatsOfEenDeelVanEenDatum) {
  EXPECT_FALSE(Gebeurtenis{}.Bekend());
  EXPECT_TRUE((Gebeurtenis{2, 0, 0}).Bekend());
  EXPECT_FALSE((Gebeurtenis{2, 0, 0}).DatumBekend());
  EXPECT_TRUE((Gebeurtenis{0, 5, 0}).DatumBekend());
  EXPECT_TRUE((Gebeurtenis{0, 0, 1850}).DatumBekend());
}

}  // namespace
}  // namespace lb77
