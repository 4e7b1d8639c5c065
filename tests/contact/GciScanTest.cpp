// The scan: which events of whom count for which series.
#include <gtest/gtest.h>

#include <algorithm>

#include "contact/GciScan.h"
#include "steun/ProefSet.h"
#include "text/Getallen.h"

namespace lb77 {
namespace {

using Regels = std::vector<std::string>;

class GciScanTest : public ::testing::Test {
 protected:
  GciScanTest() {
    set_.bouw.Plaats("Delft", "ZH");
    set_.bouw.Plaats("Breda", "NB");
  }

  Uitslag Voer(bool kinderen = false, std::size_t hoogstens = kMeesteReeksen) {
    GciReeksen reeksen(hoogstens);
    GciScan scan(set_.Persoon, set_.Relatie, reeksen, kinderen, [this](const std::string& naam) {
      if (naam == weg_) return NaamOordeel::Overslaan;
      return naam == einde_ ? NaamOordeel::Afbreken : NaamOordeel::Goed;
    });
    const Verloop verloop{[this] { return ++tests_ == stopBij_; },
                          [this](int personen, int) { getoond_.push_back(personen); }};
    const Uitslag uitslag = scan.Voer(verloop);
    gevonden_ = reeksen.Neem();
    return uitslag;
  }
  // "name place year x persons" of each series.
  Regels Reeksen(bool kinderen = false) {
    EXPECT_TRUE(Voer(kinderen) == Einde::Klaar);
    Regels uit;
    for (const GciReeks& reeks : gevonden_) {
      uit.push_back(reeks.naam + " " + GetalTekst(reeks.plaats) + " " + GetalTekst(reeks.van) +
                    (reeks.aantal > 1 ? " x" + GetalTekst(reeks.aantal) : ""));
    }
    return uit;
  }

  ProefSet set_;
  BouwFamilie& bouw_ = set_.bouw;
  std::string weg_;
  std::string einde_;
  int tests_ = 0;
  int stopBij_ = 0;
  std::vector<int> getoond_;
  std::vector<GciReeks> gevonden_;
};

TEST_F(GciScanTest, DeVierGebeurtenissenVanEenPersoonTellen) {
  bouw_.Man("Jan", "Vos",
            {{"GebPlaats", "2"},
             {"GebDatum", "01-02-1801"},
             {"DoopPlaats", "3"},
             {"DoopDatum", "02-02-1802"},
             {"OvlPlaats", "2"},
             {"OvlDatum", "03-04-1870"},
             {"BegrPlaats", "3"},
             {"BegrDatum", "05-04-1871"}});
  EXPECT_EQ(Reeksen(), (Regels{"Vos 2 1801", "Vos 3 1802", "Vos 2 1870", "Vos 3 1871"}));
}

TEST_F(GciScanTest, EenCorrectiecodeSluitBeideDatumsVanDatEindUit) {
  bouw_.Man("Jan", "Vos",
            {{"GebPlaats", "2"},
             {"GebDatum", "01-02-1801"},
             {"GebCorr", "C"},
             {"DoopPlaats", "3"},
             {"DoopDatum", "02-02-1802"},
             {"OvlPlaats", "2"},
             {"OvlDatum", "03-04-1870"},
             {"BegrPlaats", "3"},
             {"BegrDatum", "05-04-1871"}});
  bouw_.Man("Piet", "Bos",
            {{"GebPlaats", "2"},
             {"GebDatum", "01-02-1801"},
             {"DoopPlaats", "3"},
             {"DoopDatum", "02-02-1802"},
             {"OvlPlaats", "2"},
             {"OvlDatum", "03-04-1870"},
             {"OvlCorr", "V"},
             {"BegrPlaats", "3"},
             {"BegrDatum", "05-04-1871"}});
  EXPECT_EQ(Reeksen(), (Regels{"Vos 2 1870", "Vos 3 1871", "Bos 2 1801", "Bos 3 1802"}));
}

TEST_F(GciScanTest, WieInEenPlaatsEnJaarGeborenEnGetrouwdIsTeltEenKeer) {
  const auto man = bouw_.Man("Jan", "Vos", {{"GebPlaats", "2"}, {"GebDatum", "01-02-1801"}});
  bouw_.Relatie(man, 0, {}, {{"WHuwPlaats", "2"}, {"WHuwDatum", "01-03-1801"}});
  EXPECT_EQ(Reeksen(), Regels{"Vos 2 1801"});
}

TEST_F(GciScanTest, DrieDatumsVanEenRelatieTellenVoorBeiden) {
  const auto man = bouw_.Man("Jan", "Vos");
  const auto vrouw = bouw_.Vrouw("Els", "Bos");
  bouw_.Relatie(man, vrouw, {},
                {{"OtrPlaats", "2"},
                 {"OtrDatum", "01-03-1825"},
                 {"WHuwPlaats", "3"},
                 {"WHuwDatum", "01-04-1826"},
                 {"KHuwPlaats", "2"},
                 {"KHuwDatum", "01-04-1827"}});
  EXPECT_EQ(Reeksen(), (Regels{"Vos 2 1825", "Vos 3 1826", "Vos 2 1827", "Bos 2 1825", "Bos 3 1826",
                               "Bos 2 1827"}));
}

TEST_F(GciScanTest, EenCorrectiecodeBijHetHuwelijkLaatDeOndertrouwStaan) {
  const auto man = bouw_.Man("Jan", "Vos");
  bouw_.Relatie(man, 0, {},
                {{"OtrPlaats", "2"},
                 {"OtrDatum", "01-03-1825"},
                 {"WHuwPlaats", "3"},
                 {"WHuwDatum", "01-04-1826"},
                 {"KHuwPlaats", "2"},
                 {"KHuwDatum", "01-04-1827"},
                 {"HuwCorr", "C"}});
  EXPECT_EQ(Reeksen(), Regels{"Vos 2 1825"});
}

TEST_F(GciScanTest, AlleVijfDeRelatiesTellen) {
  const auto man = bouw_.Man("Jan", "Vos");
  for (const char* datum : {"01-01-1801", "01-01-1802", "01-01-1803", "01-01-1804", "01-01-1805"}) {
    bouw_.Relatie(man, 0, {}, {{"OtrPlaats", "2"}, {"OtrDatum", datum}});
  }
  EXPECT_EQ(Reeksen(),
            (Regels{"Vos 2 1801", "Vos 2 1802", "Vos 2 1803", "Vos 2 1804", "Vos 2 1805"}));
}

// A mother, a father and two children, of whom one has an uncertain birth.
void MaakGezin(BouwFamilie& bouw) {
  const auto moeder = bouw.Vrouw("Els", "Bos");
  const auto vader = bouw.Man("Jan", "Vos");
  const auto een = bouw.Man("Piet", "",
                            {{"GebPlaats", "2"},
                             {"GebDatum", "01-02-1831"},
                             {"DoopPlaats", "3"},
                             {"DoopDatum", "02-02-1832"}});
  const auto ander = bouw.Man("Kees", "",
                              {{"GebPlaats", "2"},
                               {"GebDatum", "01-02-1833"},
                               {"DoopPlaats", "3"},
                               {"DoopDatum", "02-02-1834"},
                               {"GebCorr", "N"}});
  bouw.Relatie(vader, moeder, {een, ander});
}

TEST_F(GciScanTest, KinderenTellenVoorDeMoederEnNietVoorDeVader) {
  MaakGezin(bouw_);
  EXPECT_EQ(Reeksen(true), (Regels{"Bos 2 1831", "Bos 3 1832"}));
  EXPECT_EQ(Reeksen(false), Regels{});
}

TEST_F(GciScanTest, DeMoederTeltBijTweeKinderenUitEenJaarEenKeer) {
  const auto moeder = bouw_.Vrouw("Els", "Bos");
  const auto een = bouw_.Man("Piet", "Vos", {{"GebPlaats", "2"}, {"GebDatum", "01-02-1831"}});
  const auto ander = bouw_.Man("Kees", "Vos", {{"GebPlaats", "2"}, {"GebDatum", "01-02-1831"}});
  bouw_.Relatie(0, moeder, {een, ander});
  EXPECT_EQ(Reeksen(true), (Regels{"Bos 2 1831", "Vos 2 1831 x2"}));
}

TEST_F(GciScanTest, OokHetZestiendeKindTelt) {
  const auto moeder = bouw_.Vrouw("Els", "Bos");
  std::vector<std::int16_t> kinderen;
  for (int n = 0; n < 16; ++n) kinderen.push_back(bouw_.Man("Kind", ""));
  bouw_.WijzigPersoon(kinderen.back(), {{"GebPlaats", "2"}, {"GebDatum", "01-02-1850"}});
  bouw_.Relatie(0, moeder, kinderen);
  EXPECT_EQ(Reeksen(true), Regels{"Bos 2 1850"});
}

TEST_F(GciScanTest, OokEenKindVoorDeMoederInHetBestandTelt) {
  const auto kind = bouw_.Man("Piet", "", {{"GebPlaats", "2"}, {"GebDatum", "01-02-1831"}});
  ASSERT_EQ(kind, 2);
  bouw_.Relatie(0, bouw_.Vrouw("Els", "Bos"), {kind});
  EXPECT_EQ(Reeksen(true), Regels{"Bos 2 1831"});
}

TEST_F(GciScanTest, OokDeLaatsteVanEenVolleSetTelt) {
  bouw_.Man("Jan", "Vos");
  RecordBestand& bestand = set_.bestanden.Bestand(BestandSoort::Personen);
  std::string bytes(bestand.RecordLengte(), '\0');
  ASSERT_EQ(bestand.Lees(2, bytes).gelezen, bytes.size());
  for (std::int32_t nr = 3; nr <= 32767; ++nr) ASSERT_FALSE(bestand.Schrijf(nr, bytes));
  bouw_.WijzigPersoon(32767, {{"GebPlaats", "2"}, {"GebDatum", "01-02-1801"}});
  EXPECT_EQ(Reeksen(), Regels{"Vos 2 1801"});
  EXPECT_EQ(getoond_.size(), 32766U);
}

TEST_F(GciScanTest, EenVervolgrecordEnEenNaamlozeTellenNiet) {
  bouw_.Man("Jan", "Vos", {{"OvlPlaats", "2"}, {"OvlDatum", "01-02-1801"}, {"GebCorr", "Z"}});
  bouw_.Man("Piet", "", {{"OvlPlaats", "2"}, {"OvlDatum", "01-02-1802"}});
  bouw_.Man("Kees", "Vos", {{"OvlPlaats", "2"}, {"OvlDatum", "01-02-1803"}});
  einde_ = "niemand";
  EXPECT_EQ(Reeksen(), Regels{"Vos 2 1803"});
  EXPECT_EQ(getoond_, (std::vector<int>{1, 2, 3}));
}

TEST_F(GciScanTest, EenOvergeslagenNaamTeltOokNietBijHuwelijken) {
  const auto man = bouw_.Man("Jan", "V<s", {{"GebPlaats", "2"}, {"GebDatum", "01-02-1801"}});
  const auto vrouw = bouw_.Vrouw("Els", "Bos");
  bouw_.Relatie(man, vrouw, {}, {{"OtrPlaats", "2"}, {"OtrDatum", "01-03-1825"}});
  weg_ = "V<s";
  EXPECT_EQ(Reeksen(), Regels{"Bos 2 1825"});
}

TEST_F(GciScanTest, EenAfgekeurdeNaamKanHetWerkEindigen) {
  bouw_.Man("Jan", "Vos", {{"GebPlaats", "2"}, {"GebDatum", "01-02-1801"}});
  bouw_.Man("Piet", "V<s");
  einde_ = "V<s";
  EXPECT_TRUE(Voer() == Einde::Afgebroken);
}

TEST_F(GciScanTest, StoptAlsDatWordtGevraagd) {
  bouw_.Man("Jan", "Vos");
  bouw_.Man("Piet", "Vos");
  stopBij_ = 2;
  EXPECT_TRUE(Voer() == Einde::Afgebroken);
  EXPECT_EQ(getoond_, std::vector<int>{1});
}

TEST_F(GciScanTest, EenVolleTabelEindigtHetWerk) {
  const VeldWaarden velden{{"GebPlaats", "2"},
                           {"GebDatum", "01-02-1801"},
                           {"OvlPlaats", "2"},
                           {"OvlDatum", "03-04-1870"}};
  bouw_.Man("Jan", "Vos", velden);
  EXPECT_TRUE(Voer(false, 2) == Einde::Klaar);
  EXPECT_TRUE(Voer(false, 1) == Einde::Vol);
}

TEST_F(GciScanTest, OokEenEnkeleGebeurtenisZietDat) {
  constexpr const char* kGebeurtenissen[][2] = {{"GebPlaats", "GebDatum"},
                                                {"DoopPlaats", "DoopDatum"},
                                                {"OvlPlaats", "OvlDatum"},
                                                {"BegrPlaats", "BegrDatum"}};
  const auto man = bouw_.Man("Jan", "Vos");
  for (const auto& [plaats, datum] : kGebeurtenissen) {
    bouw_.WijzigPersoon(man, {{plaats, "2"}, {datum, "01-02-1801"}});
    EXPECT_TRUE(Voer(false, 0) == Einde::Vol) << plaats;
    bouw_.WijzigPersoon(man, {{plaats, "0"}, {datum, "00-00-0000"}});
  }
  EXPECT_TRUE(Voer(false, 0) == Einde::Klaar);
}

TEST_F(GciScanTest, ElkeGebeurtenisZietDatDeTabelVolIs) {
  const auto vrouw = bouw_.Vrouw("Els", "Bos",
                                 {{"GebPlaats", "2"},
                                  {"GebDatum", "01-01-1801"},
                                  {"DoopPlaats", "2"},
                                  {"DoopDatum", "01-01-1802"},
                                  {"OvlPlaats", "2"},
                                  {"OvlDatum", "01-01-1803"},
                                  {"BegrPlaats", "2"},
                                  {"BegrDatum", "01-01-1804"}});
  const auto kind = bouw_.Man("Piet", "",
                              {{"GebPlaats", "2"},
                               {"GebDatum", "01-01-1808"},
                               {"DoopPlaats", "2"},
                               {"DoopDatum", "01-01-1809"}});
  bouw_.Relatie(0, vrouw, {kind},
                {{"OtrPlaats", "2"},
                 {"OtrDatum", "01-01-1805"},
                 {"WHuwPlaats", "2"},
                 {"WHuwDatum", "01-01-1806"},
                 {"KHuwPlaats", "2"},
                 {"KHuwDatum", "01-01-1807"}});
  for (std::size_t ruimte = 0; ruimte < 9; ++ruimte) {
    EXPECT_TRUE(Voer(true, ruimte) == Einde::Vol) << ruimte;
  }
  EXPECT_TRUE(Voer(true, 9) == Einde::Klaar);
  EXPECT_EQ(gevonden_.size(), 9U);
}

TEST_F(GciScanTest, EenSetZonderPersonenHeeftGeenReeksen) {
  EXPECT_EQ(Reeksen(true), Regels{});
}

}  // namespace
}  // namespace lb77
