#include <gtest/gtest.h>

#include "ancestors/KwstBlad.h"
#include "ancestors/KwstStamboom.h"
#include "steun/ProefSet.h"

namespace lb77 {
namespace {

class KwstBladToets : public ::testing::Test {
 protected:
  void Bereken(std::int16_t proband) {
    opties_.KwProbandNr = proband;
    opties_.KwVolgHerh = true;
    EXPECT_EQ(BouwKwst(tabel_, opties_, set_.Persoon, set_.Relatie, set_.volgers, verloop_),
              Einde::Klaar);
  }
  [[nodiscard]] KwstBlad Blad(int wortel = 0) const { return KwstBlad(tabel_, wortel); }

  ProefSet set_;
  KwstOpties opties_;
  KwstTabel tabel_;
  Verloop verloop_{[] { return false; }, [](int, int) {}};
};

TEST_F(KwstBladToets, DeOudersStaanOpHunPlaatsen) {
  Bereken(BouwVolleBoom(set_.bouw, 4));
  const KwstBlad blad = Blad();
  for (int p = 1; p <= kBladPlaatsen; ++p) {
    EXPECT_TRUE(blad.Plaats(p).bezet) << p;
    EXPECT_EQ(blad.Plaats(p).KW_Index, p - 1);
    EXPECT_EQ(blad.Plaats(p).KW_Nr.Tekst(), GetalTekst(p));
    EXPECT_EQ(tabel_.Persoon(blad.Plaats(p).KW_Index), p + 1);
    EXPECT_FALSE(blad.Plaats(p).Kwartier_A) << p;
  }
}

TEST_F(KwstBladToets, EenAndereWortelHeeftZijnEigenNummers) {
  Bereken(BouwVolleBoom(set_.bouw, 5));
  const KwstBlad blad = Blad(2);  // number 3
  EXPECT_EQ(blad.Plaats(1).KW_Nr.Tekst(), "3");
  EXPECT_EQ(blad.Plaats(2).KW_Nr.Tekst(), "6");
  EXPECT_EQ(blad.Plaats(15).KW_Nr.Tekst(), "31");
  EXPECT_EQ(tabel_.Persoon(blad.Plaats(15).KW_Index), 32);
}

TEST_F(KwstBladToets, WieVoorouersOpEenVolgendBladHeeftIsGemerkt) {
  Bereken(BouwVolleBoom(set_.bouw, 5));
  for (int p = 1; p <= kBladPlaatsen; ++p) {
    EXPECT_EQ(Blad().Plaats(p).Kwartier_A, p >= kBladLaatste) << p;
    EXPECT_FALSE(Blad(1).Plaats(p).Kwartier_A) << p;
  }
}

TEST_F(KwstBladToets, EenMoederAlleenIsGenoegVoorEenVolgendBlad) {
  const auto boom = BouwKwstStamboom(set_.bouw);
  Bereken(boom.persoon[1]);
  EXPECT_TRUE(Blad().Plaats(13).Kwartier_A);
  EXPECT_FALSE(Blad().Plaats(12).Kwartier_A);
  EXPECT_FALSE(Blad().Plaats(15).Kwartier_A);
}

TEST_F(KwstBladToets, EenWortelZonderOudersHeeftVeertienLegePlaatsen) {
  Bereken(set_.bouw.Man("Jan", "Jansen"));
  const KwstBlad blad = Blad();
  EXPECT_TRUE(blad.Plaats(1).bezet);
  for (int p = 2; p <= kBladPlaatsen; ++p) {
    EXPECT_FALSE(blad.Plaats(p).bezet) << p;
    EXPECT_EQ(blad.Plaats(p).KW_Index, 0) << p;
    EXPECT_EQ(blad.Plaats(p).KW_Nr.Tekst(), GetalTekst(p)) << p;
  }
}

// Entry 0 is the proband: its parents must not appear under a place that has none.
TEST_F(KwstBladToets, OnderEenLegePlaatsIsAllesLeeg) {
  const auto vader = set_.bouw.Man("Vader", "A");
  const auto kind = set_.bouw.Man("Kind", "A");
  set_.bouw.Relatie(vader, 0, {kind});
  Bereken(kind);
  const KwstBlad blad = Blad();
  EXPECT_TRUE(blad.Plaats(2).bezet);
  for (const int p : {3, 6, 7, 12, 13, 14, 15}) EXPECT_FALSE(blad.Plaats(p).bezet) << p;
}

TEST_F(KwstBladToets, EenHerhalingIsDePersoonMetHetNummerVanDezePlaats) {
  const auto overgrootvader = set_.bouw.Man("Over", "A");
  const auto opa = set_.bouw.Man("Opa", "A");
  const auto vader = set_.bouw.Man("Vader", "A");
  const auto moeder = set_.bouw.Vrouw("Moeder", "A");
  const auto kind = set_.bouw.Man("Kind", "A");
  set_.bouw.Relatie(overgrootvader, 0, {opa});
  set_.bouw.Relatie(opa, 0, {vader, moeder});
  set_.bouw.Relatie(vader, moeder, {kind});
  Bereken(kind);
  const KwstBlad blad = Blad();
  EXPECT_EQ(tabel_.Persoon(blad.Plaats(6).KW_Index), opa);
  EXPECT_TRUE(tabel_.IsHerhaling(blad.Plaats(6).KW_Index));
  EXPECT_EQ(blad.Plaats(6).KW_Nr.Tekst(), "6");
  EXPECT_EQ(tabel_.Persoon(blad.Plaats(12).KW_Index), overgrootvader);
}

// As many look-ups as entries must not cost their square.
TEST_F(KwstBladToets, VindtInEenVolleTabelElkeOuder) {
  const auto kind = set_.bouw.Man("Kring", "Loop");
  const auto relatie = set_.bouw.Relatie(kind, 0, {kind});
  set_.bouw.WijzigRelatie(relatie, {{"VrouwNr", GetalTekst(kind)}});
  opties_.KwProbandNr = kind;
  opties_.KwVolgHerh = true;
  EXPECT_EQ(BouwKwst(tabel_, opties_, set_.Persoon, set_.Relatie, set_.volgers, verloop_),
            Einde::Vol);
  for (int i = 0; i < kMaxKwartieren; ++i) {
    for (const bool moeder : {false, true}) {
      const int verwacht = 2 * i + (moeder ? 2 : 1);
      ASSERT_EQ(index_ouder(tabel_, i, moeder), verwacht < kMaxKwartieren ? verwacht : 0) << i;
    }
  }
}

}  // namespace
}  // namespace lb77
