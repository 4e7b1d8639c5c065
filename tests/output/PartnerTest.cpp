// A relation told with its partner.
#include <gtest/gtest.h>

#include "output/ZinToets.h"

namespace lb77 {
namespace {

class PartnerToets : public ZinToets {
 protected:
  // What is told of the first relation of `nr`.
  std::string Partner(std::int16_t nr, bool metOuders) {
    const auto gezinnen = LeesGezinnen(set_.Persoon, set_.Relatie, nr);
    return Rapport({}, [&](Verteller& verteller) {
      uitslag_ = verteller.SchrijfPartner(gezinnen->lijst.at(0), metOuders);
      fout_ = verteller.Fout();
    });
  }

  PartnerVerteld uitslag_ = PartnerVerteld::Geen;
  Leesfout fout_;
};

TEST_F(PartnerToets, DeRelatieGaatVoorDePartnerEnZijnOuders) {
  const auto jan = Man({});
  const auto an = bouw_.Vrouw("An", "Vos");
  const auto vader = bouw_.Man("Vader", "Vos");
  bouw_.Relatie(vader, 0, {an});
  bouw_.Relatie(jan, an, {}, {{"WHuwDatum", "00-00-1850"}});
  EXPECT_EQ(Partner(jan, true), ", tr. 1850 An Vos, dr. van Vader Vos");
  EXPECT_EQ(uitslag_, PartnerVerteld::Geschreven);
  EXPECT_EQ(Partner(jan, false), ", tr. 1850 An Vos");
  EXPECT_EQ(uitslag_, PartnerVerteld::Geschreven);
}

TEST_F(PartnerToets, EenManIsEenZoon) {
  const auto jan = Man({});
  const auto an = bouw_.Vrouw("An", "Vos");
  bouw_.Relatie(bouw_.Man("Vader", "Bos"), 0, {jan});
  bouw_.Relatie(jan, an);
  EXPECT_EQ(Partner(an, true), ", tr. Jan Bos, zn. van Vader Bos");
}

TEST_F(PartnerToets, ZonderPartnerWordtNietsVerteld) {
  const auto jan = Man({});
  bouw_.Relatie(jan, 0);
  EXPECT_EQ(Partner(jan, true), "");
  EXPECT_EQ(uitslag_, PartnerVerteld::Geen);
}

TEST_F(PartnerToets, EenOnleesbaarRecordIsWatAndersEnWordtGenoemd) {
  const auto jan = Man({});
  const auto relatie = bouw_.Relatie(jan, 0);
  bouw_.WijzigRelatie(relatie, {{"VrouwNr", "500"}});
  static_cast<void>(Partner(jan, true));
  EXPECT_EQ(uitslag_, PartnerVerteld::Onleesbaar);
  EXPECT_EQ(fout_, (Leesfout{BestandSoort::Personen, 500}));
  bouw_.WijzigPersoon(jan, {{"Relatie1", "99"}});
  EXPECT_EQ(Partner(jan, true), "");
  EXPECT_EQ(uitslag_, PartnerVerteld::Onleesbaar);
  EXPECT_EQ(fout_, (Leesfout{BestandSoort::Relaties, 99}));
}

}  // namespace
}  // namespace lb77
