#include "descendants/GenLabel.h"
#include "descendants/GenTabel.h"
#include "descendants/GenToets.h"

namespace lb77 {
namespace {

using Getallen = std::vector<int>;
using Teksten = std::vector<std::string>;

class GenTabelToets : public GenToets {
 protected:
  // The stamouder has a son and a daughter; the son's son marries the daughter's daughter.
  void BouwNichtenhuwelijk() {
    opa_ = bouw_.Man("Opa", "A");
    zoon_ = bouw_.Man("Zoon", "A");
    dochter_ = bouw_.Vrouw("Dochter", "A");
    bouw_.Relatie(opa_, 0, {zoon_, dochter_});
    kleinzoon_ = bouw_.Man("Kleinzoon", "A");
    kleindochter_ = bouw_.Vrouw("Kleindochter", "B");
    bouw_.Relatie(zoon_, 0, {kleinzoon_});
    bouw_.Relatie(0, dochter_, {kleindochter_});
    kind_ = bouw_.Man("Kind", "A");
    bouw_.Relatie(kleinzoon_, kleindochter_, {kind_});
    kleinkind_ = bouw_.Man("Kleinkind", "A");
    bouw_.Relatie(kind_, 0, {kleinkind_});
  }
  [[nodiscard]] Getallen Tak() const {
    Getallen uit;
    for (int i = 0; uit.empty() || i > 0; i = tabel_.VolgendeInTak(i)) uit.push_back(i);
    return uit;
  }

  std::int16_t opa_ = 0;
  std::int16_t zoon_ = 0;
  std::int16_t dochter_ = 0;
  std::int16_t kleinzoon_ = 0;
  std::int16_t kleindochter_ = 0;
  std::int16_t kind_ = 0;
  std::int16_t kleinkind_ = 0;
};

TEST_F(GenTabelToets, EenStamouderZonderKinderenIsEenHoofdpersoon) {
  const auto nr = bouw_.Man("Jan", "Jansen");
  EXPECT_EQ(Bouw(nr), Einde::Klaar);
  EXPECT_EQ(Personen(), Getallen{nr});
  EXPECT_EQ(tabel_.GenOuderIndex(0), -1);
  EXPECT_EQ(tabel_.GenGenSoort(0), 1 + GenTabel::kGenMan);
  EXPECT_EQ(tabel_.GenVolgNr(0), 0);
  EXPECT_EQ(tabel_.Label(0), "I");
  EXPECT_EQ(tabel_.GenPersoon(1), 0);
  EXPECT_EQ(tabel_.LaatsteGeneratie(), 1);
  EXPECT_EQ(Tak(), Getallen{0});
}

TEST_F(GenTabelToets, HetGeslachtStaatNaastDeGeneratie) {
  const auto moeder = bouw_.Vrouw("Moeder", "A");
  const auto zoon = bouw_.Man("Zoon", "A");
  const auto kind = bouw_.Persoon('?', "Kind", "A");
  bouw_.Relatie(0, moeder, {zoon, kind});
  EXPECT_EQ(Bouw(moeder), Einde::Klaar);
  EXPECT_EQ(tabel_.GenGenSoort(0), 1 + GenTabel::kGenVrouw);
  EXPECT_TRUE(tabel_.IsVrouw(0) && !tabel_.IsMan(0));
  EXPECT_EQ(tabel_.GenGenSoort(1), 2 + GenTabel::kGenMan);
  EXPECT_EQ(tabel_.GenGenSoort(2), 2);
  EXPECT_EQ(tabel_.Generatie(1), 2);
}

TEST_F(GenTabelToets, DeLettersLopenDoorOverAlleGezinnenVanEenGeneratie) {
  const auto vader = bouw_.Man("Vader", "A");
  const auto een = bouw_.Man("Een", "A");
  const auto twee = bouw_.Vrouw("Twee", "A");
  const auto drie = bouw_.Man("Drie", "A");
  bouw_.Relatie(vader, 0, {een, twee});
  bouw_.Relatie(vader, 0, {drie});
  const auto vanEen = bouw_.Man("Vier", "A");
  const auto vanDrie = bouw_.Man("Vijf", "A");
  bouw_.Relatie(drie, 0, {vanDrie});
  bouw_.Relatie(een, 0, {vanEen});
  EXPECT_EQ(Bouw(vader), Einde::Klaar);
  EXPECT_EQ(Personen(), (Getallen{vader, een, twee, drie, vanEen, vanDrie}));
  EXPECT_EQ(Labels(), (Teksten{"I", "IIa", "IIb", "IIc", "IIIa", "IIIb"}));
  EXPECT_EQ(tabel_.GenOuderIndex(3), 0);
  EXPECT_EQ(tabel_.GenOuderIndex(4), 1);
  EXPECT_EQ(tabel_.GenOuderIndex(5), 3);
  EXPECT_EQ(Tak(), (Getallen{0, 1, 4, 2, 3, 5}));
}

TEST_F(GenTabelToets, WieNietGevolgdWordtHeeftGeenPlaats) {
  BouwNichtenhuwelijk();
  opties_.GenVolgDochters = GenDochters::Geen;
  EXPECT_EQ(Bouw(opa_), Einde::Klaar);
  EXPECT_EQ(Personen(), (Getallen{opa_, zoon_, kleinzoon_, kind_, kleinkind_}));
}

TEST_F(GenTabelToets, EenHerhalingWordtZonderVolgenEenBlad) {
  BouwNichtenhuwelijk();
  EXPECT_EQ(Bouw(opa_), Einde::Klaar);
  EXPECT_EQ(Personen(),
            (Getallen{opa_, zoon_, dochter_, kleinzoon_, kleindochter_, kind_, -5, kleinkind_}));
  EXPECT_EQ(Labels(), (Teksten{"I", "IIa", "IIb", "IIIa", "IIIb", "IVa", "IVb", "Va"}));
  EXPECT_EQ(tabel_.Persoon(6), kind_);
  EXPECT_TRUE(tabel_.IsHerhaling(6));
  EXPECT_EQ(tabel_.GenOuderIndex(6), 4);
  EXPECT_EQ(tabel_.EersteKind(6), 0);
  EXPECT_EQ(Tak(), (Getallen{0, 1, 3, 5, 7, 2, 4, 6}));
}

TEST_F(GenTabelToets, EenHerhalingWordtMetVolgenNogEensUitgeschreven) {
  BouwNichtenhuwelijk();
  opties_.GenVolgHerh = true;
  EXPECT_EQ(Bouw(opa_), Einde::Klaar);
  EXPECT_EQ(Personen(), (Getallen{opa_, zoon_, dochter_, kleinzoon_, kleindochter_, kind_, -5,
                                  kleinkind_, -7}));
  EXPECT_EQ(tabel_.GenOuderIndex(8), 6);
  EXPECT_EQ(tabel_.Persoon(8), kleinkind_);
}

TEST_F(GenTabelToets, IemandUitTweeRelatiesVanEenOuderStaatErTweemaal) {
  const auto vader = bouw_.Man("Vader", "A");
  const auto kind = bouw_.Man("Kind", "A");
  bouw_.Relatie(vader, 0, {kind});
  bouw_.Relatie(vader, 0, {kind});
  EXPECT_EQ(Bouw(vader), Einde::Klaar);
  EXPECT_EQ(Personen(), (Getallen{vader, kind, -1}));
}

TEST_F(GenTabelToets, EenUitgeslotePersoonStaatErZonderZijnKinderen) {
  BouwNichtenhuwelijk();
  opties_.GenVolgNiet[14] = zoon_;
  EXPECT_EQ(Bouw(opa_), Einde::Klaar);
  EXPECT_EQ(Personen(), (Getallen{opa_, zoon_, dochter_, kleindochter_, kind_, kleinkind_}));
}

TEST_F(GenTabelToets, EenUitgeslotenStamouderStaatErAlleen) {
  BouwNichtenhuwelijk();
  opties_.GenVolgNiet[0] = opa_;
  EXPECT_EQ(Bouw(opa_), Einde::Klaar);
  EXPECT_EQ(tabel_.GenAantal(), 1);
}

TEST_F(GenTabelToets, DeLaatsteGeneratieIsDieWaarNaarGevraagdIs) {
  BouwNichtenhuwelijk();
  opties_.GenMaxGen = 1;
  EXPECT_EQ(Bouw(opa_), Einde::Klaar);
  EXPECT_EQ(Personen(), Getallen{opa_});
  opties_.GenMaxGen = 3;
  EXPECT_EQ(Bouw(opa_), Einde::Klaar);
  EXPECT_EQ(tabel_.GenAantal(), 5);
  EXPECT_EQ(tabel_.LaatsteGeneratie(), 3);
}

TEST_F(GenTabelToets, EenPersoonWordtGevondenBijZijnEersteKeer) {
  BouwNichtenhuwelijk();
  EXPECT_EQ(Bouw(opa_), Einde::Klaar);
  EXPECT_EQ(tabel_.Vind(kind_), 5);
  EXPECT_EQ(tabel_.Vind(opa_), 0);
  EXPECT_EQ(tabel_.Vind(999), -1);
  EXPECT_EQ(tabel_.Vind(0), -1);
  EXPECT_EQ(GenTabel().Vind(opa_), -1);
}

TEST_F(GenTabelToets, WieZijnEigenNakomelingIsStaatErTweemaalVoluit) {
  const auto kring = bouw_.Man("Kring", "A");
  const auto zoon = bouw_.Man("Zoon", "A");
  bouw_.Relatie(kring, 0, {zoon});
  bouw_.Relatie(zoon, 0, {kring});
  EXPECT_EQ(Bouw(kring), Einde::Klaar);
  EXPECT_EQ(Personen(), (Getallen{kring, zoon, kring, -1}));
  EXPECT_EQ(tabel_.Vind(kring), 2);
}

TEST_F(GenTabelToets, EenKringEindigtBijTachtigGeneraties) {
  const auto kring = bouw_.Man("Kring", "A");
  bouw_.Relatie(kring, 0, {kring});
  opties_.GenVolgHerh = true;
  EXPECT_EQ(Bouw(kring), Einde::Klaar);
  EXPECT_EQ(tabel_.GenAantal(), 80);
  EXPECT_EQ(tabel_.LaatsteGeneratie(), 80);
  EXPECT_TRUE(tabel_.IsMan(79));
  EXPECT_EQ(tabel_.Label(79), "LXXXa");
  EXPECT_EQ(Tak().size(), 80U);
}

TEST_F(GenTabelToets, EenKringVanTweeKinderenVultDeTabel) {
  const auto kring = bouw_.Man("Kring", "A");
  bouw_.Relatie(kring, 0, {kring, kring});
  opties_.GenVolgHerh = true;
  EXPECT_EQ(Bouw(kring), Einde::Vol);
  EXPECT_EQ(tabel_.GenAantal(), kMaxHoofdpersonen);
  EXPECT_EQ(tabel_.GenPersoon(kMaxHoofdpersonen), 0);
  EXPECT_EQ(Tak().size(), 2000U);
}

TEST_F(GenTabelToets, EenVolleTabelHoudtWatErHetEerstWas) {
  const auto vader = bouw_.Man("Vader", "A");
  std::vector<std::int16_t> generatie{vader};
  // 1 + 29 + 841 entries, then 1129 more of 24389.
  for (const int gezinnen : {1, 29, 40}) {
    std::vector<std::int16_t> volgende;
    for (int i = 0; i < gezinnen; ++i) {
      std::vector<std::int16_t> kinderen;
      for (int k = 0; k < 29; ++k) kinderen.push_back(bouw_.Man("Kind", "A"));
      bouw_.Relatie(generatie[static_cast<std::size_t>(i)], 0, kinderen);
      volgende.insert(volgende.end(), kinderen.begin(), kinderen.end());
    }
    generatie = volgende;
  }
  EXPECT_EQ(Bouw(vader), Einde::Vol);
  EXPECT_EQ(tabel_.GenAantal(), 2000);
  EXPECT_EQ(tabel_.Label(1999), GenLabel(4, 1129, false));
  EXPECT_EQ(tabel_.GenPersoon(1999), generatie[1128]);
  EXPECT_EQ(tabel_.Vind(generatie[1129]), -1);
}

// Whoever stands behind the last entry is read all the same.
TEST_F(GenTabelToets, EenOnleesbaarKindEindigtOokDeOpbouwVanEenVolleTabel) {
  const auto vader = bouw_.Man("Vader", "A");
  std::vector<std::int16_t> generatie{vader};
  std::int16_t gezin = 0;
  // 1 + 15 + 225 entries, then 117 families and four children of the next.
  for (const std::size_t gezinnen : {1U, 15U, 118U}) {
    std::vector<std::int16_t> volgende;
    for (std::size_t i = 0; i < gezinnen; ++i) {
      std::vector<std::int16_t> kinderen;
      for (int k = 0; k < 15; ++k) kinderen.push_back(bouw_.Man("Kind", "A"));
      gezin = bouw_.Relatie(generatie[i], 0, kinderen);
      volgende.insert(volgende.end(), kinderen.begin(), kinderen.end());
    }
    generatie = volgende;
  }
  EXPECT_EQ(Bouw(vader), Einde::Vol);
  EXPECT_EQ(tabel_.GenPersoon(1999), generatie[117U * 15U + 3U]);
  bouw_.WijzigRelatie(gezin, {{"Kind15", "9000"}});
  const Uitslag uitslag = Bouw(vader);
  EXPECT_EQ(uitslag, Einde::Leesfout);
  EXPECT_EQ(uitslag.fout, (Leesfout{BestandSoort::Personen, 9000}));
}

TEST_F(GenTabelToets, DeTellersVolgenPersonenEnHoofdpersonen) {
  const auto vader = bouw_.Man("Vader", "A");
  const auto zoon = bouw_.Man("Zoon", "A");
  bouw_.Relatie(vader, 0, {zoon});
  std::vector<std::pair<int, int>> getoond;
  verloop_.toon = [&](int persoon, int aantal) { getoond.emplace_back(persoon, aantal); };
  EXPECT_EQ(Bouw(vader), Einde::Klaar);
  EXPECT_EQ(getoond, (std::vector<std::pair<int, int>>{{0, 1}, {vader, 1}, {vader, 2}, {zoon, 2}}));
}

TEST_F(GenTabelToets, EenStopWordtPerHoofdpersoonEenmaalGevraagd) {
  BouwNichtenhuwelijk();
  int test = 0;
  verloop_.afbreken = [&test] { return ++test == 3; };
  EXPECT_EQ(Bouw(opa_), Einde::Afgebroken);
  EXPECT_EQ(set_.volgers.HuidigPersoonNr, -1);
  EXPECT_EQ(tabel_.GenAantal(), 4);
}

TEST_F(GenTabelToets, EenOnleesbareStamouderIsEenLeesfout) {
  EXPECT_EQ(Bouw(12), Einde::Leesfout);
  EXPECT_EQ(Bouw(1), Einde::Leesfout);
  EXPECT_EQ(Bouw(0), Einde::Leesfout);
  EXPECT_EQ(set_.volgers.HuidigPersoonNr, -1);
}

TEST_F(GenTabelToets, EenOnleesbaarKindEindigtDeOpbouw) {
  const auto vader = bouw_.Man("Vader", "A");
  const auto relatie = bouw_.Relatie(vader, 0, {bouw_.Man("Kind", "A")});
  bouw_.WijzigRelatie(relatie, {{"Kind2", "77"}});
  const Uitslag uitslag = Bouw(vader);
  EXPECT_EQ(uitslag, Einde::Leesfout);
  EXPECT_EQ(uitslag.fout, (Leesfout{BestandSoort::Personen, 77}));
  EXPECT_EQ(set_.volgers.HuidigPersoonNr, -1);
}

TEST_F(GenTabelToets, EenOnleesbareRelatieEindigtDeOpbouw) {
  const auto vader = bouw_.Man("Vader", "A", {{"Relatie1", "99"}});
  const Uitslag uitslag = Bouw(vader);
  EXPECT_EQ(uitslag, Einde::Leesfout);
  EXPECT_EQ(uitslag.fout, (Leesfout{BestandSoort::Relaties, 99}));
}

TEST_F(GenTabelToets, EenBeschadigdePlaatsIsGeenRelatieEnGeenKind) {
  const auto vader = bouw_.Man("Vader", "A");
  const auto kind = bouw_.Man("Kind", "A");
  const auto relatie = bouw_.Relatie(vader, 0, {kind});
  bouw_.WijzigRelatie(relatie, {{"Kind2", "-7"}});
  bouw_.WijzigPersoon(vader, {{"Relatie2", "-7"}});
  EXPECT_EQ(Bouw(vader), Einde::Klaar);
  EXPECT_EQ(Personen(), (Getallen{vader, kind}));
}

TEST_F(GenTabelToets, EenLegePlaatsInDeKinderenWordtOvergeslagen) {
  const auto vader = bouw_.Man("Vader", "A");
  const auto een = bouw_.Man("Een", "A");
  const auto drie = bouw_.Man("Drie", "A");
  const auto relatie = bouw_.Relatie(vader, 0, {een, drie});
  bouw_.WijzigRelatie(relatie, {{"Kind2", "0"}, {"Kind3", std::to_string(drie)}});
  EXPECT_EQ(Bouw(vader), Einde::Klaar);
  EXPECT_EQ(Personen(), (Getallen{vader, een, drie}));
}

}  // namespace
}  // namespace lb77
