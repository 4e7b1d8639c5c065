// The search for kinship: whom it reaches, in which order, and by which chain.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <vector>

#include "reports/Verwanten.h"
#include "steun/ProefSet.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

class VerwantenTest : public ::testing::Test {
 protected:
  void Zoek(std::int16_t begin) {
    EXPECT_EQ(ZoekVerwanten(rij_, begin, set_.Persoon, set_.Relatie, verloop_), Einde::Klaar);
  }
  [[nodiscard]] std::vector<std::int16_t> Bereikt() const {
    std::vector<std::int16_t> uit;
    for (std::size_t i = 0; i < rij_.Aantal(); ++i) uit.push_back(rij_[i].persoon);
    return uit;
  }
  [[nodiscard]] std::vector<std::int16_t> Keten(std::int16_t doel) const {
    std::vector<std::int16_t> uit;
    for (const VerwantEntry& entry : rij_.Keten(doel)) uit.push_back(entry.persoon);
    return uit;
  }

  using Nrs = std::vector<std::int16_t>;
  ProefSet set_;
  BouwFamilie& bouw_ = set_.bouw;
  VerwantRij rij_;
  std::vector<int> getoond_;
  Verloop verloop_{[] { return false; }, [this](int, int aantal) { getoond_.push_back(aantal); }};
};

TEST_F(VerwantenTest, GaatEerstNaarDeOudersDanNaarPartnerEnKinderen) {
  const auto jan = bouw_.Man("Jan", "Smit");
  const auto kee = bouw_.Vrouw("Kee", "Smit");
  const auto kind = bouw_.Man("Kind", "Smit");
  const auto els = bouw_.Vrouw("Els", "Vos");
  const auto vader = bouw_.Man("Vader", "Smit");
  const auto moeder = bouw_.Vrouw("Moeder", "Mos");
  bouw_.Relatie(jan, els, {kind, kee});
  bouw_.Relatie(vader, moeder, {jan});
  Zoek(jan);
  EXPECT_EQ(Bereikt(), (Nrs{jan, vader, moeder, els, kind, kee}));
  EXPECT_EQ(rij_[0], (VerwantEntry{jan, 0, VerwantSoort::Begin}));
  EXPECT_EQ(rij_[2], (VerwantEntry{moeder, 0, VerwantSoort::Ouder}));
  EXPECT_EQ(rij_[3], (VerwantEntry{els, 0, VerwantSoort::Partner}));
  EXPECT_EQ(rij_[4], (VerwantEntry{kind, 0, VerwantSoort::Kind}));
  EXPECT_EQ(getoond_, (std::vector<int>{0, 1, 2, 3, 4, 5}));
}

TEST_F(VerwantenTest, VanEenVrouwIsDeManDePartner) {
  const auto jan = bouw_.Man("Jan", "Smit");
  const auto els = bouw_.Vrouw("Els", "Vos");
  bouw_.Relatie(jan, els);
  Zoek(els);
  EXPECT_EQ(Bereikt(), (Nrs{els, jan}));
  EXPECT_EQ(rij_[1].soort, VerwantSoort::Partner);
}

TEST_F(VerwantenTest, WieNietVerbondenIsHeeftGeenKeten) {
  const auto jan = bouw_.Man("Jan", "Smit");
  const auto piet = bouw_.Man("Piet", "Vos");
  Zoek(jan);
  EXPECT_EQ(Bereikt(), (Nrs{jan}));
  EXPECT_EQ(Keten(piet), Nrs{});
  EXPECT_EQ(Keten(0), Nrs{});
  EXPECT_EQ(Keten(-5), Nrs{});
}

// Damaged on purpose: one step away by two roads.
TEST_F(VerwantenTest, OudersGaanVoorPartnersEnDieVoorKinderen) {
  const auto jan = bouw_.Man("Jan", "Smit");
  const auto els = bouw_.Vrouw("Els", "Vos");
  bouw_.Relatie(jan, els, {jan});  // she is his mother too
  Zoek(jan);
  EXPECT_EQ(rij_[1], (VerwantEntry{els, 0, VerwantSoort::Ouder}));
  const auto kee = bouw_.Vrouw("Kee", "Mos");
  const auto piet = bouw_.Man("Piet", "Mos");
  bouw_.Relatie(piet, kee, {kee});  // his wife is his daughter
  Zoek(piet);
  EXPECT_EQ(rij_[1], (VerwantEntry{kee, 0, VerwantSoort::Partner}));
}

TEST_F(VerwantenTest, OokTweeStappenVerGaanOudersVoorPartnersEnDieVoorKinderen) {
  const auto jan = bouw_.Man("Jan", "Smit");
  const auto els = bouw_.Vrouw("Els", "Vos");
  const auto vader = bouw_.Man("Vader", "Smit");
  const auto kee = bouw_.Vrouw("Kee", "Vos");
  bouw_.Relatie(jan, els);
  bouw_.Relatie(0, kee, {els});
  bouw_.Relatie(vader, 0, {jan});
  bouw_.Relatie(vader, kee);  // his mother-in-law
  Zoek(jan);
  EXPECT_EQ(Keten(kee), (Nrs{kee, vader, jan}));
  const auto kind = bouw_.Man("Kind", "Mos");
  const auto piet = bouw_.Man("Piet", "Mos");
  const auto ans = bouw_.Vrouw("Ans", "Bos");
  const auto oma = bouw_.Vrouw("Oma", "Bos");
  bouw_.Relatie(kind, oma);
  bouw_.Relatie(piet, ans, {kind});
  bouw_.Relatie(0, oma, {ans});
  Zoek(piet);
  EXPECT_EQ(Keten(oma), (Nrs{oma, ans, piet}));
}

TEST_F(VerwantenTest, DeKetenGaatTerugVanHetDoel) {
  const auto jan = bouw_.Man("Jan", "Smit");
  const auto vader = bouw_.Man("Vader", "Smit");
  const auto moeder = bouw_.Vrouw("Moeder", "Mos");
  const auto oom = bouw_.Man("Oom", "Smit");
  const auto opa = bouw_.Man("Opa", "Smit");
  bouw_.Relatie(vader, moeder, {jan});
  bouw_.Relatie(opa, 0, {vader, oom});
  Zoek(jan);
  EXPECT_EQ(Keten(oom), (Nrs{oom, opa, vader, jan}));
  EXPECT_EQ(Keten(jan), (Nrs{jan}));
}

TEST_F(VerwantenTest, VolgtMeerDanDrieRelatiesEnVijftienKinderen) {
  const auto jan = bouw_.Man("Jan", "Smit");
  Nrs kinderen;
  for (int n = 0; n < 20; ++n) kinderen.push_back(bouw_.Man("Kind", "Smit"));
  bouw_.Relatie(jan, 0, kinderen);
  Nrs vrouwen;
  for (int n = 0; n < 4; ++n) {
    vrouwen.push_back(bouw_.Vrouw("Vrouw", "Vos"));
    bouw_.Relatie(jan, vrouwen.back());
  }
  Zoek(jan);
  Nrs verwacht{jan};
  verwacht.insert(verwacht.end(), kinderen.begin(), kinderen.end());
  verwacht.insert(verwacht.end(), vrouwen.begin(), vrouwen.end());
  EXPECT_EQ(Bereikt(), verwacht);
}

// Links to the admin record, to what is not there, and round in a circle.
TEST_F(VerwantenTest, SchadeHoudtHetZoekenNietOpEnEenKringEindigt) {
  const auto jan = bouw_.Man("Jan", "Smit");
  const auto els = bouw_.Vrouw("Els", "Vos");
  const auto kind = bouw_.Man("Kind", "Smit");
  const auto gezin = bouw_.Relatie(jan, els, {kind});
  bouw_.WijzigPersoon(jan, {{"Ouders", "77"}, {"Relatie2", "88"}});
  bouw_.WijzigRelatie(gezin, {{"Kind2", "1"}, {"Kind3", "-4"}});
  const auto kring = bouw_.Relatie(kind, 0);
  bouw_.WijzigRelatie(kring, {{"Kind1", "2"}, {"VrouwNr", "1"}});
  Zoek(jan);
  EXPECT_EQ(Bereikt(), (Nrs{jan, els, kind}));
}

// Links without any order, as a set that is damaged all over has them, and what they come to.
class Warboel {
 public:
  static constexpr int kPersonen = 40;
  static constexpr int kRelaties = 25;

  explicit Warboel(BouwFamilie& bouw) : bouw_(bouw) {
    for (int n = 0; n < kPersonen; ++n) bouw.Man("A", "B");
    for (int n = 0; n < kRelaties; ++n) bouw.Relatie(0, 0);
    for (std::int16_t nr = 2; nr < kRelaties + 2; ++nr) {
      relaties_[nr] = {Persoon(), Persoon(), Persoon(), Persoon()};
      const Nrs& leden = relaties_[nr];
      bouw_.WijzigRelatie(nr, {{"ManNr", GetalTekst(leden[0])},
                               {"VrouwNr", GetalTekst(leden[1])},
                               {"Kind1", GetalTekst(leden[2])},
                               {"Kind4", GetalTekst(leden[3])}});
    }
    for (std::int16_t nr = 2; nr < kPersonen + 2; ++nr) MaakPersoon(nr);
  }

  // By person how many steps he is away; who can't be reached is absent.
  [[nodiscard]] std::map<std::int16_t, std::size_t> Afstanden(std::int16_t begin) const {
    std::map<std::int16_t, std::size_t> uit{{begin, 0}};
    Nrs rij{begin};
    for (std::size_t i = 0; i < rij.size(); ++i) {
      for (const std::int16_t naast : naasten_.at(rij[i])) {
        if (naast > 1 && uit.emplace(naast, uit.at(rij[i]) + 1).second) rij.push_back(naast);
      }
    }
    return uit;
  }

 private:
  using Nrs = std::vector<std::int16_t>;

  void MaakPersoon(std::int16_t nr) {
    const std::int16_t ouders = Relatie();
    const std::int16_t een = Relatie();
    const std::int16_t ander = Relatie();
    bouw_.WijzigPersoon(nr, {{"Ouders", GetalTekst(ouders)},
                             {"Relatie1", GetalTekst(een)},
                             {"Relatie2", GetalTekst(ander)}});
    Nrs& naasten = naasten_[nr];
    if (ouders > 0) naasten = {relaties_[ouders][0], relaties_[ouders][1]};
    for (const std::int16_t relNr : {een, ander}) {
      if (relNr == 0) continue;
      const Nrs& leden = relaties_[relNr];
      naasten.push_back(leden[0] == nr ? leden[1] : leden[0]);
      naasten.insert(naasten.end(), {leden[2], leden[3]});
    }
  }
  int Onder(int grens) {
    stand_ = stand_ * 1103515245U + 12345U;
    return static_cast<int>((stand_ >> 16U) % static_cast<unsigned>(grens));
  }
  // Nobody, the admin record, or somebody.
  std::int16_t Persoon() { return static_cast<std::int16_t>(Onder(kPersonen + 2)); }
  std::int16_t Relatie() {
    const int nr = Onder(2 * kRelaties);
    return static_cast<std::int16_t>(nr < kRelaties ? nr + 2 : 0);
  }

  BouwFamilie& bouw_;
  std::map<std::int16_t, Nrs> relaties_;
  std::map<std::int16_t, Nrs> naasten_;
  unsigned stand_ = 77;
};

TEST_F(VerwantenTest, InEenWarboelIsElkeKetenDeKortste) {
  const Warboel warboel(bouw_);
  std::size_t langste = 0;
  for (std::int16_t begin = 2; begin < Warboel::kPersonen + 2; ++begin) {
    const auto afstanden = warboel.Afstanden(begin);
    Zoek(begin);
    EXPECT_EQ(rij_.Aantal(), afstanden.size()) << begin;
    for (const auto& [nr, afstand] : afstanden) {
      EXPECT_EQ(Keten(nr).size(), afstand + 1) << begin << " " << nr;
      langste = std::max(langste, afstand);
    }
  }
  EXPECT_GT(langste, 4U);
}

TEST_F(VerwantenTest, EenOnleesbarePersoonEindigtHetZoeken) {
  const auto jan = bouw_.Man("Jan", "Smit");
  const auto els = bouw_.Vrouw("Els", "Vos");
  const auto vader = bouw_.Man("Vader", "Vos");
  const auto gezin = bouw_.Relatie(jan, els);
  bouw_.Relatie(vader, 0, {els});
  bouw_.WijzigRelatie(gezin, {{"VrouwNr", "999"}, {"Kind1", GetalTekst(els)}});
  Zoek(jan);
  EXPECT_EQ(Bereikt(), (Nrs{jan, 999, els}));
  EXPECT_EQ(Keten(vader), Nrs{});
  EXPECT_EQ(Keten(els), (Nrs{els, jan}));
}

TEST_F(VerwantenTest, EenVerzoekOmTeStoppenEindigtHetZoeken) {
  const auto jan = bouw_.Man("Jan", "Smit");
  bouw_.Relatie(jan, bouw_.Vrouw("Els", "Vos"));
  verloop_.afbreken = [] { return true; };
  EXPECT_EQ(ZoekVerwanten(rij_, jan, set_.Persoon, set_.Relatie, verloop_), Einde::Afgebroken);
  EXPECT_EQ(Bereikt(), (Nrs{jan}));
}

}  // namespace
}  // namespace lb77
