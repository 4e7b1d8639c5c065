// Remarks in reports: which are taken, and where they stand.
#include <gtest/gtest.h>

#include "output/Verteller.h"
#include "output/ZinToets.h"

namespace lb77 {
namespace {

constexpr std::int16_t kTekstKwst = 1;
constexpr std::int16_t kAndereUitvoer = 2;
constexpr std::int16_t kAlleenHTML = 64;

ZinOpties MetOpm(bool html = false) {
  ZinOpties opties;
  opties.ookOpm = true;
  opties.inHTML = html;
  return opties;
}

class RubriekOpmTest : public ZinToets {
 protected:
  // What the report's own call writes of person `nr` behind "x".
  std::string Algemeen(std::int16_t nr, const ZinOpties& opties = MetOpm()) {
    return Rapport(opties, [&](Verteller& verteller) {
      ASSERT_TRUE(set_.Persoon.Lees(nr));
      verteller.SchrijfRubriekOpm(set_.Persoon.OpmRecord(), set_.Persoon.OpmCode(), kRubriekPersoon,
                                  true);
    });
  }
  // A person with a remark on each rubric of its table, "[rubric]".
  std::int16_t Volledig(VeldWaarden velden) {
    const std::int16_t nr = Man(velden);
    for (std::int16_t rubriek = 1; rubriek <= 2048;
         rubriek = static_cast<std::int16_t>(rubriek * 2)) {
      bouw_.OpmerkingBijPersoon(nr, rubriek, {"[" + std::to_string(rubriek) + "]"});
    }
    return nr;
  }

  std::string edam_ = std::to_string(bouw_.Plaats("Edam"));
};

TEST_F(RubriekOpmTest, ElkeRubriekVanEenPersoonStaatAchterZijnElement) {
  const std::int16_t nr = Volledig({{"GebPlaats", edam_},
                                    {"GebDatum", "00-00-1850"},
                                    {"DoopReligie", "NH"},
                                    {"DoopPlaats", edam_},
                                    {"DoopDatum", "00-00-1851"},
                                    {"Beroep", "smid"},
                                    {"OvlPlaats", edam_},
                                    {"OvlDatum", "00-00-1900"},
                                    {"BegrPlaats", edam_},
                                    {"BegrDatum", "00-00-1901"}});
  EXPECT_EQ(Verteld(nr, MetOpm()),
            "Jan [2] Bos [1], geb. Edam [4] 1850 [8], ged.Ned.Herv. [64] Edam [16] 1851 [32], "
            "smid [2048], overl. Edam [128] 1900 [256], begr. Edam [512] 1901 [1024]");
}

TEST_F(RubriekOpmTest, InEenBereikHebbenPlaatsenEnDatumsHunOpmerkingen) {
  const std::int16_t nr = Volledig({{"GebPlaats", edam_},
                                    {"GebDatum", "00-00-1850"},
                                    {"GebCorr", "T"},
                                    {"DoopPlaats", edam_},
                                    {"DoopDatum", "00-00-1851"}});
  EXPECT_EQ(Verteld(nr, MetOpm()),
            "Jan [2] Bos [1], geb. Edam [4] tussen 1850 [8] en Edam [16] 1851 [32] [2048]");
}

TEST_F(RubriekOpmTest, EenOnbekendePlaatsHoudtZijnOpmerking) {
  const std::int16_t nr = Man({{"GebDatum", "00-00-1850"}});
  bouw_.OpmerkingBijPersoon(nr, 4, {"(plaats onzeker)"});
  EXPECT_EQ(Verteld(nr, MetOpm()), "Jan Bos, geb. (plaats onzeker) 1850");
}

TEST_F(RubriekOpmTest, ZonderOpmerkingenGaanDeGebeurtenissenSamen) {
  const std::int16_t nr = Volledig({{"GebDatum", "01-01-1850"}, {"DoopDatum", "01-01-1850"}});
  EXPECT_EQ(Verteld(nr), "Jan Bos, geb. en ged. 1-1-1850");
}

TEST_F(RubriekOpmTest, ElkeRubriekVanEenRelatieStaatAchterHaarElement) {
  const std::int16_t nr = Huwelijk({{"OtrPlaats", edam_},
                                    {"OtrDatum", "00-00-1801"},
                                    {"WHuwPlaats", edam_},
                                    {"WHuwDatum", "00-00-1802"},
                                    {"KHuwPlaats", edam_},
                                    {"KHuwDatum", "00-00-1803"}});
  for (std::int16_t rubriek = -1; rubriek >= -64;
       rubriek = static_cast<std::int16_t>(rubriek * 2)) {
    bouw_.OpmerkingBijRelatie(nr, rubriek, {"[" + std::to_string(-rubriek) + "]"});
  }
  EXPECT_EQ(
      VerteldeRelatie(nr, MetOpm()),
      ", ondertr. Edam [1] 1801 [2], tr. [16] Edam [4] 1802 [8], tr.kerk Edam [32] 1803 [64]");
  bouw_.WijzigRelatie(nr, {{"HuwCorr", "T"}});
  EXPECT_EQ(
      VerteldeRelatie(nr, MetOpm()),
      ", ondertr. Edam [1] 1801 [2], tr. [16] Edam [4] tussen 1802 [8] en Edam [32] 1803 [64]");
}

TEST_F(RubriekOpmTest, ZonderOpmerkingenGaanDeHuwelijkenSamen) {
  const std::int16_t nr = Huwelijk({{"OtrDatum", "00-00-1801"}, {"WHuwDatum", "00-00-1802"}});
  bouw_.OpmerkingBijRelatie(nr, -1, {"opm"});
  bouw_.OpmerkingBijRelatie(nr, -32, {"opm"});
  EXPECT_EQ(VerteldeRelatie(nr, MetOpm()), ", ondertr. opm 1801, tr. 1802, tr.kerk opm");
  EXPECT_EQ(VerteldeRelatie(nr), ", ondertr./tr. 1801/1802");
}

TEST_F(RubriekOpmTest, EenSamengevoegdHuwelijkHeeftDeAlgemeneOpmerkingOpDezelfdeRegel) {
  const std::int16_t nr = Huwelijk({{"OtrDatum", "00-00-1801"}, {"WHuwDatum", "00-00-1802"}});
  bouw_.OpmerkingBijRelatie(nr, -256, {"Gezien."});
  EXPECT_EQ(VerteldeRelatie(nr, MetOpm()), ", ondertr./tr. 1801/1802 Gezien.");
}

TEST_F(RubriekOpmTest, HetMaskerVanHetVerslagBeslist) {
  const std::int16_t nr = Man({});
  bouw_.OpmerkingBijPersoon(nr, 1, {"een"}, kTekstKwst);
  bouw_.OpmerkingBijPersoon(nr, 1, {"twee"}, kAndereUitvoer);
  EXPECT_EQ(Verteld(nr, MetOpm()), "Jan Bos een");
  ZinOpties opties = MetOpm();
  opties.opmMasker = kAndereUitvoer;
  EXPECT_EQ(Verteld(nr, opties), "Jan Bos twee");
}

TEST_F(RubriekOpmTest, EenOpmerkingVoorHtmlAlleenStaatNietInTekst) {
  const std::int16_t nr = Man({});
  bouw_.OpmerkingBijPersoon(nr, 1, {"web"}, kTekstKwst | kAlleenHTML);
  EXPECT_EQ(Verteld(nr, MetOpm()), "Jan Bos");
  EXPECT_EQ(Verteld(nr, MetOpm(true)), "<STRONG>Jan</STRONG> <STRONG>Bos</STRONG> web");
}

TEST_F(RubriekOpmTest, EenOpmerkingMetAlleenDeHtmlBitStaatNergens) {
  const std::int16_t nr = Man({});
  bouw_.OpmerkingBijPersoon(nr, 1, {"web"}, kAlleenHTML);
  EXPECT_EQ(Verteld(nr, MetOpm()), "Jan Bos");
  EXPECT_EQ(Verteld(nr, MetOpm(true)), "<STRONG>Jan</STRONG> <STRONG>Bos</STRONG>");
}

TEST_F(RubriekOpmTest, RegelsVolgenOpElkaarEnWordenGecodeerd) {
  const std::int16_t nr = Man({});
  bouw_.OpmerkingBijPersoon(nr, 1, {"a & b", "c"});
  EXPECT_EQ(Verteld(nr, MetOpm()), "Jan Bos a & b c");
  EXPECT_EQ(Verteld(nr, MetOpm(true)), "<STRONG>Jan</STRONG> <STRONG>Bos</STRONG> a &amp; b c");
}

TEST_F(RubriekOpmTest, LegeRegelsWordenOvergeslagen) {
  const std::int16_t nr = Man({});
  bouw_.OpmerkingBijPersoon(nr, 1, {"een", "twee", "drie"});
  WijzigOpm(3, {{"Tekstregel", ""}});
  EXPECT_EQ(Verteld(nr, MetOpm()), "Jan Bos een drie");
}

TEST_F(RubriekOpmTest, DeAlgemeneOpmerkingStaatOpEigenIngesprongenRegels) {
  const std::int16_t nr = Man({});
  bouw_.OpmerkingBijPersoon(nr, 4096, {"Een leven"});
  bouw_.OpmerkingBijPersoon(nr, 4096, {"in twee delen."});
  EXPECT_EQ(Algemeen(nr), "\r\n    Een leven\r\n    in twee delen.");
}

TEST_F(RubriekOpmTest, DeMargeIsTerugAchterDeAlgemeneOpmerking) {
  const std::int16_t nr = Man({});
  bouw_.OpmerkingBijPersoon(nr, 4096, {"Een leven."});
  TekstSchrijver schrijver;
  ASSERT_TRUE(schrijver.Open(set_.map / "marge.txt"));
  Verteller verteller(bronnen_, schrijver, MetOpm());
  ASSERT_TRUE(set_.Persoon.Lees(nr));
  verteller.SchrijfRubriekOpm(set_.Persoon.OpmRecord(), set_.Persoon.OpmCode(), kRubriekPersoon,
                              true);
  EXPECT_EQ(schrijver.LinkerMarge(), 0);
}

TEST_F(RubriekOpmTest, ElkeAndereRubriekBlijftOpDeRegel) {
  const std::int16_t nr = Man({});
  bouw_.OpmerkingBijPersoon(nr, 1, {"naam"});
  const std::string uit = Rapport(MetOpm(), [&](Verteller& verteller) {
    ASSERT_TRUE(set_.Persoon.Lees(nr));
    verteller.SchrijfRubriekOpm(set_.Persoon.OpmRecord(), set_.Persoon.OpmCode(), 1, true);
  });
  EXPECT_EQ(uit, "naam");
}

TEST_F(RubriekOpmTest, InHtmlIsDeAlgemeneOpmerkingEenLijst) {
  const std::int16_t nr = Man({});
  bouw_.OpmerkingBijPersoon(nr, 4096, {"Een leven."});
  const auto schrijf = [&](Verteller& verteller) {
    ASSERT_TRUE(set_.Persoon.Lees(nr));
    verteller.SchrijfAlgemeneOpm(set_.Persoon.OpmRecord(), set_.Persoon.OpmCode(), kRubriekPersoon);
  };
  EXPECT_EQ(Rapport(MetOpm(true), schrijf), "<UL>\r\n    Een leven.</UL>");
  EXPECT_EQ(Rapport(MetOpm(), schrijf), "\r\n    Een leven.");
  ZinOpties zonder = MetOpm(true);
  zonder.ookOpm = false;
  EXPECT_EQ(Rapport(zonder, schrijf), "");
}

TEST_F(RubriekOpmTest, ZonderAlgemeneOpmerkingIsErGeenLijst) {
  const std::int16_t nr = Man({});
  bouw_.OpmerkingBijPersoon(nr, 1, {"naam"});
  const std::string uit = Rapport(MetOpm(true), [&](Verteller& verteller) {
    ASSERT_TRUE(set_.Persoon.Lees(nr));
    verteller.SchrijfAlgemeneOpm(set_.Persoon.OpmRecord(), set_.Persoon.OpmCode(), kRubriekPersoon);
  });
  EXPECT_EQ(uit, "");
}

TEST_F(RubriekOpmTest, EenEersteRecordAchterHetLaatsteIsGeen) {
  const std::int16_t nr = Man({{"OpmRecord", "50"}, {"OpmCode", "1"}});
  EXPECT_EQ(Verteld(nr, MetOpm()), "Jan Bos");
}

TEST_F(RubriekOpmTest, EenNegatiefEersteRecordIsGeen) {
  const std::int16_t nr = Man({{"OpmRecord", "-3"}, {"OpmCode", "1"}});
  EXPECT_EQ(Verteld(nr, MetOpm()), "Jan Bos");
}

TEST_F(RubriekOpmTest, EenFouteVerwijzingEindigtDeOpmerkingenVanDeRubriek) {
  const std::int16_t nr = Man({});
  bouw_.OpmerkingBijPersoon(nr, 1, {"een", "twee"});
  bouw_.OpmerkingBijPersoon(nr, 1, {"drie"});
  WijzigOpm(2, {{"VolgRegel", "99"}});
  EXPECT_EQ(Verteld(nr, MetOpm()), "Jan Bos een") << "a line that can't be read ends the walk";
  WijzigOpm(2, {{"VolgRegel", "0"}, {"BijZelfde", "99"}});
  EXPECT_EQ(Verteld(nr, MetOpm()), "Jan Bos een");
}

TEST_F(RubriekOpmTest, EenKringVanOpmerkingenEindigt) {
  const std::int16_t nr = Man({});
  bouw_.OpmerkingBijPersoon(nr, 1, {"een"});
  WijzigOpm(2, {{"BijZelfde", "2"}});
  EXPECT_EQ(Verteld(nr, MetOpm()), "Jan Bos een een");
}

TEST_F(RubriekOpmTest, EenKringVanRegelsEindigt) {
  const std::int16_t nr = Man({});
  bouw_.OpmerkingBijPersoon(nr, 1, {"een"});
  WijzigOpm(2, {{"VolgRegel", "2"}});
  EXPECT_EQ(Verteld(nr, MetOpm()), "Jan Bos een een");
}

// Three remarks of which each has the next as its line too: told to the end they would grow with
// the square of the file.
TEST_F(RubriekOpmTest, KetensDieSamenlopenEindigenNaZoveelStappenAlsErRecordsZijn) {
  const std::int16_t nr = Man({});
  for (const std::string regel : {"een", "twee", "drie"}) {
    bouw_.OpmerkingBijPersoon(nr, 1, {regel});
  }
  WijzigOpm(2, {{"VolgRegel", "3"}});
  WijzigOpm(3, {{"VolgRegel", "4"}});
  EXPECT_EQ(Verteld(nr, MetOpm()), "Jan Bos een twee drie twee");
}

TEST_F(RubriekOpmTest, EenOpmerkingDieDeEigenaarNietKentWordtNietVerteld) {
  const std::int16_t nr = Man({});
  bouw_.OpmerkingBijPersoon(nr, 1, {"naam"});
  bouw_.WijzigPersoon(nr, {{"OpmCode", "2"}});
  EXPECT_EQ(Verteld(nr, MetOpm()), "Jan Bos");
}

TEST_F(RubriekOpmTest, EenOpmerkingAchterDeGeteldeWordtNietVerteld) {
  const std::int16_t piet = Man({});
  bouw_.OpmerkingBijPersoon(piet, 1, {"een"});
  const std::int16_t jan = Man({});
  bouw_.OpmerkingBijPersoon(jan, 1, {"twee"});
  EXPECT_EQ(Verteld(jan, MetOpm()), "Jan Bos twee");
  ASSERT_TRUE(set_.Opmerking.LeesAdmin());
  ASSERT_TRUE(set_.Opmerking.SchrijfAdm(2, 4, 2));
  EXPECT_EQ(Verteld(jan, MetOpm()), "Jan Bos");
  EXPECT_EQ(Verteld(piet, MetOpm()), "Jan Bos een");
}

TEST_F(RubriekOpmTest, DeAlgemeneOpmerkingStaatVierVerderDanDeTekst) {
  const std::int16_t nr = Man({});
  bouw_.OpmerkingBijPersoon(nr, 4096, {"Een leven."});
  TekstSchrijver schrijver;
  ASSERT_TRUE(schrijver.Open(set_.map / "marge.txt"));
  schrijver.ZetMarge(true, 8);
  schrijver.Vast("x");
  Verteller verteller(bronnen_, schrijver, MetOpm());
  ASSERT_TRUE(set_.Persoon.Lees(nr));
  verteller.SchrijfRubriekOpm(set_.Persoon.OpmRecord(), set_.Persoon.OpmCode(), kRubriekPersoon,
                              true);
  EXPECT_EQ(schrijver.LinkerMarge(), 8);
  schrijver.EindeRegel();
  ASSERT_TRUE(schrijver.Sluit());
  EXPECT_EQ(LeesBytes(set_.map / "marge.txt"), "        x\r\n            Een leven.\r\n");
}

TEST_F(RubriekOpmTest, OpmerkingenKunnenOnderwegUit) {
  const std::int16_t nr = Man({});
  bouw_.OpmerkingBijPersoon(nr, 1, {"opm"});
  EXPECT_EQ(Rapport(MetOpm(),
                    [&](Verteller& verteller) {
                      verteller.ZetOokOpm(false);
                      EXPECT_TRUE(verteller.SchrijfPersoon(nr));
                      verteller.ZetOokOpm(true);
                      EXPECT_TRUE(verteller.SchrijfPersoon(nr));
                    }),
            "Jan Bos"
            "Jan Bos opm")
      << "a first name is joined to what stands before it";
}

}  // namespace
}  // namespace lb77
