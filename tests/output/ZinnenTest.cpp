#include <gtest/gtest.h>

#include "output/ZinToets.h"
#include "output/Zinnen.h"

namespace lb77 {
namespace {

class ZinnenTest : public ZinToets {
 protected:
  std::string Zin(std::int16_t nr) { return Zinnen(bronnen_).PersoonZin(nr); }
  // The sentence behind "Jan Bos(2)".
  std::string Leven(VeldWaarden velden) {
    const std::string zin = Zin(Man(velden));
    return zin.substr(zin.find(')') + 1);
  }

  std::string edam_ = std::to_string(bouw_.Plaats("Edam"));
  std::string hoorn_ = std::to_string(bouw_.Plaats("Hoorn"));
};

TEST_F(ZinnenTest, EenPersoonZonderGebeurtenissenIsNaamEnNummerZonderKomma) {
  EXPECT_EQ(Zin(Man({})), "Jan Bos(2)");
  EXPECT_EQ(set_.volgers.HuidigPersoonNr, 2);
}

TEST_F(ZinnenTest, EenOnleesbarePersoonZegtHet) {
  EXPECT_EQ(Zin(99), "<< Geen gegevens gevonden >>");
  EXPECT_EQ(set_.volgers.HuidigPersoonNr, 99);
}

TEST_F(ZinnenTest, GeboorteEnDoopGaanZonderOpmerkingenSamen) {
  EXPECT_EQ(Leven({{"GebPlaats", edam_},
                   {"GebDatum", "12-05-1850"},
                   {"DoopPlaats", edam_},
                   {"DoopDatum", "14-05-1850"},
                   {"DoopReligie", "NH"}}),
            ", geb./ged.Ned.Herv. Edam 12/14-5-1850");
}

TEST_F(ZinnenTest, EenGezindteZonderNaamIsHaarCode) {
  EXPECT_EQ(Leven({{"DoopDatum", "14-05-1850"}, {"DoopReligie", "XX"}}), ", ged.XX 14-5-1850");
}

TEST_F(ZinnenTest, EenGeboortebereikGaatSamen) {
  EXPECT_EQ(Leven({{"GebPlaats", edam_},
                   {"GebDatum", "00-00-1850"},
                   {"GebCorr", "T"},
                   {"DoopPlaats", hoorn_},
                   {"DoopDatum", "00-00-1852"}}),
            ", geb. Edam tussen 1850 en 1852");
}

TEST_F(ZinnenTest, EenOpmerkingHoudtGeboorteEnDoopUiteen) {
  for (const std::string bit : {"4", "8", "16", "32"}) {
    EXPECT_EQ(Leven({{"GebPlaats", edam_},
                     {"GebDatum", "00-00-1850"},
                     {"GebCorr", "C"},
                     {"DoopDatum", "14-05-1850"},
                     {"DoopReligie", "NH"},
                     {"OpmCode", bit}}),
              ", geb. Edam ca. 1850, ged.Ned.Herv. 14-5-1850");
  }
}

TEST_F(ZinnenTest, OpmerkingenBijAndereVeldenHoudenZeSamen) {
  for (const std::string bit : {"1", "2", "64", "128", "2048", "4096"}) {
    EXPECT_EQ(Leven({{"GebDatum", "14-05-1850"}, {"DoopDatum", "14-05-1850"}, {"OpmCode", bit}}),
              ", geb. en ged. 14-5-1850");
  }
}

TEST_F(ZinnenTest, EenOnbekendeGebeurtenisWordtNietOmZijnOpmerkingVerteld) {
  EXPECT_EQ(Leven({{"GebDatum", "14-05-1850"}, {"OpmCode", "16"}}), ", geb. 14-5-1850");
  EXPECT_EQ(Leven({{"OpmCode", "4"}}), "");
}

TEST_F(ZinnenTest, EenGeboortebereikNoemtBeidePlaatsenAlsEenOpmerkingHetScheidt) {
  EXPECT_EQ(Leven({{"GebPlaats", edam_},
                   {"GebDatum", "01-02-1850"},
                   {"GebCorr", "T"},
                   {"DoopPlaats", hoorn_},
                   {"DoopDatum", "00-00-1852"},
                   {"OpmCode", "8"}}),
            ", geb. Edam tussen 1-2-1850 en Hoorn 1852");
}

TEST_F(ZinnenTest, EenGescheidenBereikZonderGrensVerliestZijnCode) {
  EXPECT_EQ(
      Leven(
          {{"GebPlaats", edam_}, {"GebCorr", "T"}, {"DoopDatum", "00-00-1852"}, {"OpmCode", "8"}}),
      ", geb. Edam, ged. 1852");
  EXPECT_EQ(Leven({{"GebDatum", "00-00-1850"}, {"GebCorr", "T"}, {"OpmCode", "8"}}), ", geb. 1850");
}

TEST_F(ZinnenTest, HetBeroepStaatTussenDoopEnOverlijden) {
  EXPECT_EQ(Leven({{"GebDatum", "00-00-1850"}, {"Beroep", "smid"}, {"OvlDatum", "00-00-1900"}}),
            ", geb. 1850, smid, overl. 1900");
}

TEST_F(ZinnenTest, OverlijdenEnBegravenGaanSamenEnUiteenAlsGeboorte) {
  EXPECT_EQ(Leven({{"OvlDatum", "01-02-1900"}, {"BegrDatum", "04-02-1900"}}),
            ", overl./begr. 1/4-2-1900");
  for (const std::string bit : {"128", "256", "512", "1024"}) {
    EXPECT_EQ(Leven({{"OvlPlaats", edam_},
                     {"OvlDatum", "01-02-1900"},
                     {"OvlCorr", "N"},
                     {"BegrPlaats", hoorn_},
                     {"OpmCode", bit}}),
              ", overl. Edam na 1-2-1900, begr. Hoorn");
  }
  EXPECT_EQ(Leven({{"OvlDatum", "00-00-1900"},
                   {"OvlCorr", "T"},
                   {"BegrDatum", "00-00-1901"},
                   {"OpmCode", "128"}}),
            ", overl. tussen 1900 en 1901");
}

TEST_F(ZinnenTest, EenCrematieLeestAlsBegravenTenzijEenOpmerkingScheidt) {
  EXPECT_EQ(Leven({{"BegrDatum", "04-02-1900"}, {"BegrCrem", "1"}}), ", begr. 4-2-1900");
  EXPECT_EQ(Leven({{"BegrDatum", "04-02-1900"}, {"BegrCrem", "1"}, {"OpmCode", "1024"}}),
            ", crematie 4-2-1900");
}

TEST_F(ZinnenTest, EenOnleesbareRelatieGeeftNiets) {
  EXPECT_EQ(Zinnen(bronnen_).RelatieZin(99, 1, true), "");
}

TEST_F(ZinnenTest, PartnersStaanErRelatieNaRelatie) {
  const std::int16_t jan = bouw_.Man("Jan", "Bos");
  const std::int16_t anna = bouw_.Vrouw("Anna", "Dam");
  const std::int16_t bep = bouw_.Vrouw("Bep", "Eik", {{"GebDatum", "00-00-1850"}});
  bouw_.Relatie(jan, anna, {}, {{"WHuwDatum", "00-00-1870"}});
  bouw_.Relatie(jan, bep, {}, {{"WHuwDatum", "00-00-1880"}});
  EXPECT_EQ(Zinnen(bronnen_).PartnersZin(jan, false),
            ", tr. 1870 Anna Dam(3) , tr.(2) 1880 Bep Eik(4), geb. 1850 ");
  EXPECT_EQ(Zinnen(bronnen_).PersoonInfoTekst(bep), "Bep Eik(4), geb. 1850, tr. 1880 Jan Bos(2) ");
  EXPECT_EQ(set_.volgers.HuidigPersoonNr, bep);
}

TEST_F(ZinnenTest, EenRelatieZonderPartnerWordtOvergeslagen) {
  const std::int16_t jan = bouw_.Man("Jan", "Bos");
  bouw_.Relatie(jan, 0);
  EXPECT_EQ(Zinnen(bronnen_).PartnersZin(jan, false), "");
}

TEST_F(ZinnenTest, VerwijzingenNaarRecordEenOfNergensWordenOvergeslagen) {
  const std::int16_t jan = Man({{"Relatie1", "1"}, {"Relatie2", "77"}});
  EXPECT_EQ(Zinnen(bronnen_).PartnersZin(jan, false), "");
}

TEST_F(ZinnenTest, VanEenOnleesbareLijstStaatErWatErIs) {
  const std::int16_t jan = bouw_.Man("Jan", "Bos");
  const std::int16_t relatie = bouw_.Relatie(jan, bouw_.Vrouw("Anna", "Eik"));
  bouw_.WijzigPersoon(jan, {{"Relatie3", "-99"}});
  ASSERT_EQ(relatie, 2);
  EXPECT_EQ(Zinnen(bronnen_).PersoonInfoTekst(jan), "Jan Bos(2), tr. Anna Eik(3) ");
}

TEST_F(ZinnenTest, EenOnleesbarePartnerZegtHet) {
  const std::int16_t jan = bouw_.Man("Jan", "Bos");
  const std::int16_t relatie = bouw_.Relatie(jan, 0, {});
  bouw_.WijzigRelatie(relatie, {{"VrouwNr", "99"}});
  EXPECT_EQ(Zinnen(bronnen_).PartnersZin(jan, false), ", tr. <<Geen partnergegevens gevonden>>");
}

TEST_F(ZinnenTest, InEenPaarVanEenGeslachtIsDeAnderDePartner) {
  const std::int16_t jan = bouw_.Man("Jan", "Bos");
  const std::int16_t piet = bouw_.Man("Piet", "Dam");
  bouw_.Relatie(jan, piet);
  EXPECT_EQ(Zinnen(bronnen_).PartnersZin(jan, false), ", tr. Piet Dam(3) ");
  EXPECT_EQ(Zinnen(bronnen_).PartnersZin(piet, false), ", tr. Jan Bos(2) ");
}

TEST_F(ZinnenTest, EenPersoonVanOnbekendGeslachtHeeftDeAnderAlsPartner) {
  const std::int16_t kind = bouw_.Persoon('?', "Kim", "Bos");
  const std::int16_t piet = bouw_.Man("Piet", "Dam");
  bouw_.Relatie(kind, piet);
  EXPECT_EQ(Zinnen(bronnen_).PersoonInfoTekst(kind), "Kim Bos(2), tr. Piet Dam(3) ");
}

TEST_F(ZinnenTest, InEenRelatieVanAnderenIsDePartnerDieVanHetAndereGeslacht) {
  const std::int16_t piet = bouw_.Man("Piet", "Dam");
  const std::int16_t anna = bouw_.Vrouw("Anna", "Eik");
  const std::string relatie = std::to_string(bouw_.Relatie(piet, anna));
  const std::int16_t jan = Man({{"Relatie1", relatie}});
  EXPECT_EQ(Zinnen(bronnen_).PersoonInfoTekst(jan), "Jan Bos(4), tr. Anna Eik(3) ");
  const std::int16_t bep = bouw_.Vrouw("Bep", "Fok", {{"Relatie1", relatie}});
  EXPECT_EQ(Zinnen(bronnen_).PersoonInfoTekst(bep), "Bep Fok(5), tr. Piet Dam(2) ");
}

TEST_F(ZinnenTest, EenOnleesbarePersoonHeeftGeenPartners) {
  EXPECT_EQ(Zinnen(bronnen_).PartnersZin(99, false), "");
  EXPECT_EQ(Zinnen(bronnen_).PersoonInfoTekst(99), "<< Geen gegevens gevonden >>");
  EXPECT_EQ(set_.volgers.HuidigPersoonNr, 99);
}

TEST_F(ZinnenTest, VijfRelatiesStaanErOverHetVervolgHeen) {
  const std::int16_t jan = bouw_.Man("Jan", "Bos");
  for (const std::string naam : {"A", "B", "C", "D", "E"}) {
    bouw_.Relatie(jan, bouw_.Vrouw(naam, "Dam"));
  }
  const std::string zin = Zinnen(bronnen_).PersoonInfoTekst(jan);
  EXPECT_NE(zin.find(", tr.(5) E Dam("), std::string::npos) << zin;
  EXPECT_EQ(set_.volgers.HuidigPersoonNr, jan);
}

}  // namespace
}  // namespace lb77
