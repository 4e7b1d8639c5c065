#include <gtest/gtest.h>

#include "descendants/GenRegels.h"
#include "steun/ProefSet.h"

namespace lb77 {
namespace {

constexpr int kGrens = 15;

TEST(OuderDan, TeltHeleJaren) {
  EXPECT_TRUE(OuderDan(18000601, 0, 18160101, 0, kGrens));
  EXPECT_FALSE(OuderDan(18000101, 0, 18141231, 0, kGrens));
}

TEST(OuderDan, EenDoopEnEenBegrafenisKunnenDeJarenGeven) {
  EXPECT_FALSE(OuderDan(0, 18000101, 18100101, 0, kGrens));
  EXPECT_FALSE(OuderDan(18000101, 0, 0, 18100101, kGrens));
  EXPECT_TRUE(OuderDan(0, 18000101, 0, 18500101, kGrens));
  // The events themselves go before.
  EXPECT_FALSE(OuderDan(18000101, 17000101, 18100101, 18500101, kGrens));
}

TEST(OuderDan, ZonderBekendeJarenWordtIemandGevolgd) {
  EXPECT_TRUE(OuderDan(0, 0, 18100101, 0, kGrens));
  EXPECT_TRUE(OuderDan(18000101, 0, 0, 0, kGrens));
  EXPECT_TRUE(OuderDan(0, 0, 0, 0, kGrens));
  // A day and a month without a year are a date, and no year.
  EXPECT_TRUE(OuderDan(1231, 18000101, 18100101, 0, kGrens));
}

TEST(OuderDan, BijEvenveelJarenBeslissenDeMaanden) {
  EXPECT_TRUE(OuderDan(18000601, 0, 18150701, 0, kGrens));
  EXPECT_FALSE(OuderDan(18000601, 0, 18150530, 0, kGrens));
}

TEST(OuderDan, InDezelfdeMaandTellenDeDagenNiet) {
  EXPECT_FALSE(OuderDan(18000601, 0, 18150630, 0, kGrens));
  EXPECT_FALSE(OuderDan(18600601, 0, 18750630, 0, kGrens));
  EXPECT_FALSE(OuderDan(18900601, 0, 19050630, 0, kGrens));
  EXPECT_TRUE(OuderDan(18400630, 0, 18550601, 0, kGrens));
}

TEST(OuderDan, HetMiddenVanEenEeuwHoortBijDeEersteHelft) {
  EXPECT_FALSE(OuderDan(18350000, 0, 18500000, 0, kGrens));
  EXPECT_TRUE(OuderDan(18350000, 0, 18500001, 0, kGrens));
}

class VolgKindToets : public ::testing::Test {
 protected:
  bool Volgt(std::int16_t kind, GenZonen zonen, GenDochters dochters) {
    opties_.GenVolgZonen = zonen;
    opties_.GenVolgDochters = dochters;
    return VolgKind(kind, opties_, set_.Persoon, set_.Relatie);
  }
  bool VolgtZoon(std::int16_t kind, GenZonen zonen) {
    return Volgt(kind, zonen, GenDochters::Geen);
  }
  bool VolgtDochter(std::int16_t kind, GenDochters dochters) {
    return Volgt(kind, GenZonen::Geen, dochters);
  }

  ProefSet set_;
  BouwFamilie& bouw_ = set_.bouw;
  GenOpties opties_;
  std::int16_t vrijgezel_ =
      bouw_.Man("Vrij", "Gezel", {{"GebDatum", "01-01-1800"}, {"OvlDatum", "01-01-1810"}});
  std::int16_t gehuwde_ =
      bouw_.Man("Ge", "Huwd", {{"GebDatum", "01-01-1800"}, {"OvlDatum", "01-01-1820"}});
  std::int16_t vader_ = bouw_.Man("Va", "Der");
  std::int16_t ongehuwde_ =
      bouw_.Vrouw("On", "Gehuwd", {{"GebDatum", "01-01-1800"}, {"OvlDatum", "01-01-1810"}});
  std::int16_t echtgenote_ =
      bouw_.Vrouw("Echt", "Genote", {{"GebDatum", "01-01-1800"}, {"OvlDatum", "01-01-1820"}});
  std::int16_t moeder_ = bouw_.Vrouw("Moe", "Der");
  std::int16_t ongehuwdeMoeder_ = bouw_.Vrouw("Ongehuwde", "Moeder");
  std::int16_t huwelijk_ = bouw_.Relatie(gehuwde_, echtgenote_);
  std::int16_t gezin_ = bouw_.Relatie(vader_, moeder_, {bouw_.Man("Ki", "Nd")});
  std::int16_t zonderMan_ = bouw_.Relatie(0, ongehuwdeMoeder_, {bouw_.Man("Ki", "Nd")});
};

TEST_F(VolgKindToets, GeenZonenVolgtGeenZoon) {
  EXPECT_FALSE(VolgtZoon(vader_, GenZonen::Geen));
}

TEST_F(VolgKindToets, ZonenMetNageslachtHebbenEenKind) {
  EXPECT_FALSE(VolgtZoon(vrijgezel_, GenZonen::MetNageslacht));
  EXPECT_FALSE(VolgtZoon(gehuwde_, GenZonen::MetNageslacht));
  EXPECT_TRUE(VolgtZoon(vader_, GenZonen::MetNageslacht));
}

TEST_F(VolgKindToets, EenKindUitEenLatereRelatieIsGenoeg) {
  bouw_.Relatie(gehuwde_, 0);
  EXPECT_FALSE(VolgtZoon(gehuwde_, GenZonen::MetNageslacht));
  bouw_.Relatie(gehuwde_, 0, {bouw_.Man("Ki", "Nd")});
  EXPECT_TRUE(VolgtZoon(gehuwde_, GenZonen::MetNageslacht));
}

TEST_F(VolgKindToets, ZonenMetRelatieHebbenErEen) {
  EXPECT_FALSE(VolgtZoon(vrijgezel_, GenZonen::MetRelatie));
  EXPECT_TRUE(VolgtZoon(gehuwde_, GenZonen::MetRelatie));
}

TEST_F(VolgKindToets, ZonenWordenGevolgdNaarHunLeeftijd) {
  EXPECT_FALSE(VolgtZoon(vrijgezel_, GenZonen::OuderDan));
  EXPECT_TRUE(VolgtZoon(gehuwde_, GenZonen::OuderDan));
  EXPECT_TRUE(VolgtZoon(vader_, GenZonen::OuderDan));  // of unknown age
  opties_.GenGrensLeeftijd = 9;
  EXPECT_TRUE(VolgtZoon(vrijgezel_, GenZonen::OuderDan));
}

TEST_F(VolgKindToets, AlleZonenVolgtElkeZoon) {
  EXPECT_TRUE(VolgtZoon(vrijgezel_, GenZonen::Alle));
}

TEST_F(VolgKindToets, GeenDochtersVolgtGeenDochter) {
  EXPECT_FALSE(VolgtDochter(moeder_, GenDochters::Geen));
}

TEST_F(VolgKindToets, DochtersMetNageslachtHebbenEenKind) {
  EXPECT_FALSE(VolgtDochter(ongehuwde_, GenDochters::MetNageslacht));
  EXPECT_FALSE(VolgtDochter(echtgenote_, GenDochters::MetNageslacht));
  EXPECT_TRUE(VolgtDochter(moeder_, GenDochters::MetNageslacht));
  EXPECT_TRUE(VolgtDochter(ongehuwdeMoeder_, GenDochters::MetNageslacht));
}

TEST_F(VolgKindToets, DochtersMetRelatieHebbenErEen) {
  EXPECT_FALSE(VolgtDochter(ongehuwde_, GenDochters::MetRelatie));
  EXPECT_TRUE(VolgtDochter(echtgenote_, GenDochters::MetRelatie));
}

TEST_F(VolgKindToets, OngehuwdeMoedersHebbenEenKindZonderMan) {
  EXPECT_FALSE(VolgtDochter(ongehuwde_, GenDochters::OngehuwdeMoeders));
  EXPECT_FALSE(VolgtDochter(moeder_, GenDochters::OngehuwdeMoeders));
  EXPECT_TRUE(VolgtDochter(ongehuwdeMoeder_, GenDochters::OngehuwdeMoeders));
  bouw_.Relatie(0, ongehuwde_);
  EXPECT_FALSE(VolgtDochter(ongehuwde_, GenDochters::OngehuwdeMoeders));
}

TEST_F(VolgKindToets, EenBeschadigdeManIsGeenOngehuwdeMoeder) {
  bouw_.WijzigRelatie(zonderMan_, {{"ManNr", "-7"}});
  EXPECT_FALSE(VolgtDochter(ongehuwdeMoeder_, GenDochters::OngehuwdeMoeders));
}

TEST_F(VolgKindToets, DochtersWordenGevolgdNaarHunLeeftijd) {
  EXPECT_FALSE(VolgtDochter(ongehuwde_, GenDochters::OuderDan));
  EXPECT_TRUE(VolgtDochter(echtgenote_, GenDochters::OuderDan));
}

TEST_F(VolgKindToets, AlleDochtersVolgtElkeDochter) {
  EXPECT_TRUE(VolgtDochter(ongehuwde_, GenDochters::Alle));
}

TEST_F(VolgKindToets, EenRegelGeldtVoorZijnEigenGeslacht) {
  EXPECT_FALSE(Volgt(vader_, GenZonen::Geen, GenDochters::Alle));
  EXPECT_FALSE(Volgt(moeder_, GenZonen::Alle, GenDochters::Geen));
}

TEST_F(VolgKindToets, IemandVanOnbekendGeslachtWordtGevolgdAlsBeideRegelsHetEensZijn) {
  const auto kind =
      bouw_.Persoon('?', "Jong", "Kind", {{"GebDatum", "01-01-1800"}, {"OvlDatum", "01-01-1801"}});
  const auto oud =
      bouw_.Persoon('?', "Oud", "Kind", {{"GebDatum", "01-01-1800"}, {"OvlDatum", "01-01-1901"}});
  bouw_.Relatie(kind, 0, {oud});
  EXPECT_TRUE(Volgt(kind, GenZonen::Alle, GenDochters::Alle));
  EXPECT_FALSE(Volgt(kind, GenZonen::OuderDan, GenDochters::OuderDan));
  EXPECT_TRUE(Volgt(oud, GenZonen::OuderDan, GenDochters::OuderDan));
  EXPECT_FALSE(Volgt(oud, GenZonen::Alle, GenDochters::OuderDan));
  EXPECT_FALSE(Volgt(oud, GenZonen::OuderDan, GenDochters::Alle));
  EXPECT_FALSE(Volgt(kind, GenZonen::MetNageslacht, GenDochters::MetNageslacht));
  EXPECT_FALSE(Volgt(kind, GenZonen::MetRelatie, GenDochters::MetRelatie));
}

TEST_F(VolgKindToets, EenAndereLetterDanDieVanEenGeslachtWordtNooitGevolgd) {
  const auto kind = bouw_.Persoon('K', "Iemand", "Anders");
  EXPECT_FALSE(Volgt(kind, GenZonen::Alle, GenDochters::Alle));
}

TEST_F(VolgKindToets, WieNietGelezenKanWordenWordtGevolgd) {
  EXPECT_TRUE(Volgt(999, GenZonen::Geen, GenDochters::Geen));
}

TEST_F(VolgKindToets, EenOnleesbareRelatieEindigtHetZoekenNaarKinderen) {
  bouw_.Relatie(gehuwde_, 0, {bouw_.Man("Ki", "Nd")});
  bouw_.WijzigPersoon(gehuwde_, {{"Relatie1", "999"}});
  EXPECT_FALSE(VolgtZoon(gehuwde_, GenZonen::MetNageslacht));
}

}  // namespace
}  // namespace lb77
