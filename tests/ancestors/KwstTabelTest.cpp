#include <gtest/gtest.h>

#include "ancestors/KwstTabel.h"
#include "steun/ProefSet.h"

namespace lb77 {
namespace {

class KwstTabelToets : public ::testing::Test {
 protected:
  Uitslag Bouw() {
    const Verloop verloop{
        [this] { return stopBij_ > 0 && --stopBij_ == 0; },
        [this](int persoon, int kwartieren) { getoond_.emplace_back(persoon, kwartieren); }};
    return BouwKwst(tabel_, opties_, set_.Persoon, set_.Relatie, set_.volgers, verloop);
  }
  Uitslag Bouw(std::int16_t proband) {
    opties_.KwProbandNr = proband;
    return Bouw();
  }
  // All entries: the column KwPersoon.
  std::vector<int> Personen() const {
    std::vector<int> uit;
    for (int i = 0; i < tabel_.KwstAantal(); ++i) uit.push_back(tabel_.KwPersoon(i));
    return uit;
  }
  std::vector<std::string> Nummers() const {
    std::vector<std::string> uit;
    for (int i = 0; i < tabel_.KwstAantal(); ++i) uit.push_back(tabel_.KwNummer(i).Tekst());
    return uit;
  }
  // A cousin marriage: `kind_` has the same grandparents on both sides.
  void BouwNichtenhuwelijk() {
    const auto opa = set_.bouw.Man("Opa", "Jansen");
    const auto oma = set_.bouw.Vrouw("Oma", "Pietersen");
    const auto vader = set_.bouw.Man("Vader", "Jansen");
    const auto moeder = set_.bouw.Vrouw("Moeder", "Jansen");
    overgroot_ = set_.bouw.Man("Overgrootvader", "Jansen");
    set_.bouw.Relatie(overgroot_, 0, {opa});
    set_.bouw.Relatie(opa, oma, {vader, moeder});
    kind_ = set_.bouw.Man("Kind", "Jansen");
    set_.bouw.Relatie(vader, moeder, {kind_});
  }

  ProefSet set_;
  KwstTabel tabel_;
  KwstOpties opties_;
  int stopBij_ = 0;
  std::int16_t kind_ = 0;
  std::int16_t overgroot_ = 0;
  std::vector<std::pair<int, int>> getoond_;
};

TEST_F(KwstTabelToets, EenProbandZonderOudersIsEenKwartier) {
  EXPECT_EQ(Bouw(set_.bouw.Man("Jan", "Jansen")), Einde::Klaar);
  EXPECT_EQ(tabel_.KwstAantal(), 1);
  EXPECT_EQ(tabel_.KwKindIndex(0), 0);
  EXPECT_EQ(tabel_.KwGenSoort(0), 0);
  EXPECT_EQ(tabel_.KwPersoon(1), 0);
}

TEST_F(KwstTabelToets, EenProbandDieGeenManIsHeeftDeMoederbit) {
  EXPECT_EQ(Bouw(set_.bouw.Vrouw("Jane", "Jansen")), Einde::Klaar);
  EXPECT_EQ(tabel_.KwGenSoort(0), 128);
  EXPECT_EQ(Bouw(set_.bouw.Persoon('?', "Jo", "Jansen")), Einde::Klaar);
  EXPECT_EQ(tabel_.KwGenSoort(0), 128);
}

TEST_F(KwstTabelToets, EenVaderAlleenKrijgtEenKwartierEnZijnLijnHoudtZijnNummers) {
  const auto grootmoeder = set_.bouw.Vrouw("Grootmoeder", "A");
  const auto vader = set_.bouw.Man("Vader", "A");
  const auto kind = set_.bouw.Man("Kind", "A");
  set_.bouw.Relatie(0, grootmoeder, {vader});
  set_.bouw.Relatie(vader, 0, {kind});
  EXPECT_EQ(Bouw(kind), Einde::Klaar);
  EXPECT_EQ(Personen(), (std::vector<int>{kind, vader, grootmoeder}));
  EXPECT_EQ(Nummers(), (std::vector<std::string>{"1", "2", "5"}));
  EXPECT_EQ(tabel_.KwGenSoort(1), 1);
  EXPECT_EQ(tabel_.KwGenSoort(2), 2 + 128);
  EXPECT_EQ(tabel_.KwKindIndex(2), 2);
}

TEST_F(KwstTabelToets, ParenVolgenOpElkaar) {
  BouwNichtenhuwelijk();
  EXPECT_EQ(Bouw(kind_), Einde::Klaar);
  EXPECT_EQ(tabel_.Paar(1), (KwstPaar{1, 2, 3}));
  EXPECT_EQ(tabel_.Paar(5), (KwstPaar{5, 6, 7}));
  EXPECT_EQ(tabel_.Paar(7), (KwstPaar{7, 0, 8}));
  const auto moeder = set_.bouw.Vrouw("Moeder", "A");
  const auto kind = set_.bouw.Man("Kind", "A");
  set_.bouw.Relatie(0, moeder, {kind});
  EXPECT_EQ(Bouw(kind), Einde::Klaar);
  EXPECT_EQ(tabel_.Paar(1), (KwstPaar{0, 1, 2}));
}

TEST_F(KwstTabelToets, EenNichtenhuwelijkVerwijstTerugEnStoptDaar) {
  BouwNichtenhuwelijk();
  EXPECT_EQ(Bouw(kind_), Einde::Klaar);
  // 1 kind, 2 vader, 3 moeder, 4 opa, 5 oma, then both once more, then the great-grandfather.
  EXPECT_EQ(Personen(), (std::vector<int>{kind_, 4, 5, 2, 3, -3, -4, overgroot_}));
  EXPECT_EQ(Nummers(), (std::vector<std::string>{"1", "2", "3", "4", "5", "6", "7", "8"}));
  EXPECT_EQ(tabel_.Persoon(5), 2);
}

TEST_F(KwstTabelToets, GevolgdeHerhalingenHebbenOudersDieHerhalingZijn) {
  BouwNichtenhuwelijk();
  opties_.KwVolgHerh = true;
  EXPECT_EQ(Bouw(kind_), Einde::Klaar);
  EXPECT_EQ(Personen(), (std::vector<int>{kind_, 4, 5, 2, 3, -3, -4, overgroot_, -7}));
  EXPECT_EQ(tabel_.KwNummer(8).Tekst(), "12");
}

TEST_F(KwstTabelToets, HetNummerVanDeProbandGeeftDeEersteGeneratie) {
  BouwNichtenhuwelijk();
  opties_.KwBeginNr = Kwartiernummer("5");
  opties_.KwMaxGen = 4;
  EXPECT_EQ(Bouw(kind_), Einde::Klaar);
  EXPECT_EQ(Nummers(), (std::vector<std::string>{"5", "10", "11"}));
}

TEST_F(KwstTabelToets, EenLaatsteGeneratieDieNietVerderGaatLaatHemAlleen) {
  BouwNichtenhuwelijk();
  opties_.KwBeginNr = Kwartiernummer("5");
  opties_.KwMaxGen = 3;
  EXPECT_EQ(Bouw(kind_), Einde::Klaar);
  EXPECT_EQ(tabel_.KwstAantal(), 1);
}

TEST_F(KwstTabelToets, VaderEnMoederVanEenRecordZijnKwartierEnVerwijzing) {
  const auto ouder = set_.bouw.Man("Ouder", "A");
  const auto kind = set_.bouw.Man("Kind", "A");
  const auto relatie = set_.bouw.Relatie(ouder, 0, {kind});
  set_.bouw.WijzigRelatie(relatie, {{"VrouwNr", "2"}});
  EXPECT_EQ(Bouw(kind), Einde::Klaar);
  EXPECT_EQ(Personen(), (std::vector<int>{kind, ouder, -1}));
}

TEST_F(KwstTabelToets, WieZijnEigenOuderIsEindigtBijDeEersteHerhaling) {
  const auto kind = set_.bouw.Man("Kind", "A");
  set_.bouw.Relatie(kind, 0, {kind});
  EXPECT_EQ(Bouw(kind), Einde::Klaar);
  EXPECT_EQ(Personen(), (std::vector<int>{kind, kind, -1}));
}

TEST_F(KwstTabelToets, EenGevolgdeKringEindigtBijDeLaatsteGeneratie) {
  const auto kind = set_.bouw.Man("Kind", "A");
  set_.bouw.Relatie(kind, 0, {kind});
  opties_.KwVolgHerh = true;
  EXPECT_EQ(Bouw(kind), Einde::Klaar);
  EXPECT_EQ(tabel_.KwstAantal(), 80);
  EXPECT_EQ(tabel_.KwNummer(79).Generatie(), 80);
}

TEST_F(KwstTabelToets, EenTabelIsVolBijTienduizendKwartieren) {
  const auto kind = set_.bouw.Man("Kind", "A");
  const auto relatie = set_.bouw.Relatie(kind, 0, {kind});
  set_.bouw.WijzigRelatie(relatie, {{"VrouwNr", "2"}});
  opties_.KwVolgHerh = true;
  EXPECT_EQ(Bouw(kind), Einde::Vol);
  EXPECT_EQ(tabel_.KwstAantal(), 10000);
  EXPECT_EQ(set_.volgers.HuidigPersoonNr, kind);
}

TEST_F(KwstTabelToets, EenOnleesbareProbandIsEenLeesfout) {
  EXPECT_EQ(Bouw(12), Einde::Leesfout);
  EXPECT_EQ(set_.volgers.HuidigPersoonNr, -1);
}

TEST_F(KwstTabelToets, HetRecordOverHetBestandIsGeenProband) {
  EXPECT_EQ(Bouw(1), Einde::Leesfout);
  EXPECT_EQ(Bouw(0), Einde::Leesfout);
  EXPECT_EQ(set_.volgers.HuidigPersoonNr, -1);
}

TEST_F(KwstTabelToets, EenOnleesbareOuderEindigtDeOpbouw) {
  const auto kind = set_.bouw.Man("Kind", "A");
  const auto relatie = set_.bouw.Relatie(0, 0, {kind});
  set_.bouw.WijzigRelatie(relatie, {{"ManNr", "77"}});
  EXPECT_EQ(Bouw(kind), Einde::Leesfout);
  EXPECT_EQ(set_.volgers.HuidigPersoonNr, -1);
  EXPECT_EQ(tabel_.KwstAantal(), 2);
}

TEST_F(KwstTabelToets, EenOnleesbareRelatieVanDeOudersEindigtDeOpbouw) {
  const auto kind = set_.bouw.Man("Kind", "A", {{"Ouders", "99"}});
  EXPECT_EQ(Bouw(kind), Einde::Leesfout);
}

TEST_F(KwstTabelToets, EenStopWordtPerKwartierEenmaalGevraagd) {
  BouwNichtenhuwelijk();
  stopBij_ = 3;
  EXPECT_EQ(Bouw(kind_), Einde::Afgebroken);
  EXPECT_EQ(set_.volgers.HuidigPersoonNr, -1);
  EXPECT_EQ(tabel_.KwstAantal(), 5);
}

TEST_F(KwstTabelToets, DeTellersBeginnenLeegBijEenEnVolgenElkKwartier) {
  const auto vader = set_.bouw.Man("Vader", "A");
  const auto kind = set_.bouw.Man("Kind", "A");
  set_.bouw.Relatie(vader, 0, {kind});
  EXPECT_EQ(Bouw(kind), Einde::Klaar);
  EXPECT_EQ(getoond_, (std::vector<std::pair<int, int>>{{0, 1}, {kind, 1}, {kind, 2}, {vader, 2}}));
  EXPECT_EQ(set_.volgers.HuidigPersoonNr, vader);
}

}  // namespace
}  // namespace lb77
