// The wording of a relation, row by row, in both forms at once.
#include <gtest/gtest.h>

#include "output/Verteller.h"
#include "output/ZinToets.h"
#include "output/Zinnen.h"
#include "output/Zinsbouw.h"

namespace lb77 {
namespace {

class RelatieZinTest : public ZinToets {
 protected:
  // The relation as a string, after a check that the report says the same.
  std::string Zin(VeldWaarden velden, std::string_view toonTrouw = "2", int volgNr = 1,
                  bool ookNrs = false) {
    const std::int16_t nr = Huwelijk(velden);
    ZinOpties opties;
    opties.toonTrouw = toonTrouw;
    opties.ookNrs = ookNrs;
    opties.ookOpm = true;
    const std::string zin = Zinnen(bronnen_, opties).RelatieZin(nr, volgNr, volgNr == 1);
    EXPECT_EQ(VerteldeRelatie(nr, opties, volgNr), zin);
    return zin;
  }
  // Banns in 1801, civil marriage in 1802, church marriage in 1803, with this OpmCode.
  std::string Drie(std::string_view opmCode, std::string_view toonTrouw, int volgNr = 1,
                   std::string_view huwCorr = "") {
    return Zin({{"OtrDatum", "00-00-1801"},
                {"WHuwDatum", "00-00-1802"},
                {"HuwCorr", huwCorr},
                {"KHuwDatum", "00-00-1803"},
                {"OpmCode", opmCode}},
               toonTrouw, volgNr);
  }

  std::string edam_ = std::to_string(bouw_.Plaats("Edam"));
  std::string hoorn_ = std::to_string(bouw_.Plaats("Hoorn"));
};

TEST_F(RelatieZinTest, ZonderGebeurtenissenStaatAlleenDeBondEr) {
  EXPECT_EQ(Zin({}), ", tr.");
  EXPECT_EQ(Zin({{"HuwSwPs", "1"}}), ", samenwonend");
  EXPECT_EQ(Zin({{"HuwSwPs", "2"}}), ", partnerschap");
  EXPECT_EQ(Zin({{"HuwSoort", "NH"}}), ", tr.") << "no kind without an event";
}

TEST_F(RelatieZinTest, HetVoorvoegselZegtWelkeRelatieHetIs) {
  EXPECT_EQ(Zin({}, "2", 2), ", tr.(2)");
  EXPECT_EQ(Zin({}, "2", 1, true), ", tr. [3]");
  EXPECT_EQ(Zin({}, "2", 3, true), ", tr.(3) [4]");
}

TEST_F(RelatieZinTest, EenGebeurtenisWordtVerteld) {
  EXPECT_EQ(Zin({{"OtrPlaats", edam_}, {"OtrDatum", "01-02-1801"}}), ", ondertr. Edam 1-2-1801");
  EXPECT_EQ(Zin({{"WHuwPlaats", edam_}, {"WHuwDatum", "01-02-1802"}}), ", tr. Edam 1-2-1802");
  EXPECT_EQ(Zin({{"KHuwPlaats", edam_}, {"KHuwDatum", "01-02-1803"}}), ", tr.kerk Edam 1-2-1803");
}

TEST_F(RelatieZinTest, SamenwonenMetEenWettigeDatumStaatErMee) {
  EXPECT_EQ(Zin({{"HuwSwPs", "1"}, {"WHuwDatum", "01-02-1990"}}), ", samenwonend 1-2-1990");
}

TEST_F(RelatieZinTest, EenScheidingStaatBijHetKerkelijkHuwelijk) {
  EXPECT_EQ(Zin({{"KHuwSch", "1"}, {"KHuwDatum", "01-02-1990"}}), ", sch. 1-2-1990");
}

TEST_F(RelatieZinTest, LabelsDragenDeSoortEnDeGezindte) {
  EXPECT_EQ(Zin({{"WHuwDatum", "00-00-1802"},
                 {"HuwSoort", "BS"},
                 {"KHuwPlaats", edam_},
                 {"Religie", "NH"}}),
            ", tr.BS 1802, tr.kerkNed.Herv. Edam");
}

TEST_F(RelatieZinTest, EenWettigeDatumDraagtZijnCorrectie) {
  EXPECT_EQ(Zin({{"WHuwPlaats", edam_}, {"WHuwDatum", "00-00-1802"}, {"HuwCorr", "C"}}),
            ", tr. Edam ca. 1802");
}

TEST_F(RelatieZinTest, OndertrouwEnKerkGaanSamen) {
  EXPECT_EQ(Zin({{"OtrDatum", "01-02-1801"}, {"KHuwDatum", "03-02-1801"}}, "2", 2),
            ", ondertr./tr.kerk(2) 1/3-2-1801");
  for (const std::string bit : {"-1", "-2", "-32", "-64"}) {
    EXPECT_EQ(Zin({{"OtrDatum", "01-02-1801"}, {"KHuwDatum", "03-02-1801"}, {"OpmCode", bit}}),
              ", ondertr. 1-2-1801, tr.kerk 3-2-1801");
  }
}

TEST_F(RelatieZinTest, OndertrouwEnWettigGaanSamen) {
  EXPECT_EQ(Zin({{"OtrDatum", "01-02-1801"}, {"WHuwDatum", "03-03-1801"}}),
            ", ondertr./tr. 1-2/3-3-1801");
  for (const std::string bit : {"-1", "-2", "-4", "-8"}) {
    EXPECT_EQ(Zin({{"OtrDatum", "01-02-1801"}, {"WHuwDatum", "03-03-1801"}, {"OpmCode", bit}}),
              ", ondertr. 1-2-1801, tr. 3-3-1801");
  }
}

TEST_F(RelatieZinTest, EenSamenvoegingMetOndertrouwNoemtGeenCorrectie) {
  EXPECT_EQ(Zin({{"OtrDatum", "01-02-1801"}, {"WHuwDatum", "03-03-1801"}, {"HuwCorr", "C"}}),
            ", ondertr./tr. 1-2/3-3-1801");
}

TEST_F(RelatieZinTest, WettigEnKerkGaanSamenMetDeCorrectie) {
  EXPECT_EQ(Zin({{"WHuwDatum", "03-03-1801"}, {"KHuwDatum", "03-03-1801"}}),
            ", tr. en tr.kerk 3-3-1801");
  EXPECT_EQ(Zin({{"WHuwDatum", "03-03-1801"}, {"KHuwDatum", "03-03-1801"}, {"HuwCorr", "C"}}),
            ", tr. ca. 3-3-1801, tr.kerk 3-3-1801");
  for (const std::string bit : {"-4", "-8", "-32", "-64"}) {
    EXPECT_EQ(Zin({{"WHuwDatum", "03-03-1801"}, {"KHuwDatum", "03-03-1801"}, {"OpmCode", bit}}),
              ", tr. 3-3-1801, tr.kerk 3-3-1801");
  }
}

TEST_F(RelatieZinTest, AlleDrieMetInstellingNulLatenDeKerkWeg) {
  EXPECT_EQ(Drie("0", "0"), ", ondertr./tr. 1801/1802");
  EXPECT_EQ(Drie("-16", "0"), ", ondertr. 1801, tr. 1802");
}

TEST_F(RelatieZinTest, AlleDrieMetInstellingEenLatenDeOndertrouwWeg) {
  EXPECT_EQ(Drie("0", "1"), ", tr./tr.kerk 1802/1803");
  EXPECT_EQ(Drie("-64", "1"), ", tr. 1802, tr.kerk 1803");
}

TEST_F(RelatieZinTest, AlleDrieMetEenAndereInstellingStaanErAlleDrie) {
  EXPECT_EQ(Drie("0", "2"), ", ondertr. 1801, tr./tr.kerk 1802/1803");
  EXPECT_EQ(Drie("-1", "2"), ", ondertr. 1801, tr./tr.kerk 1802/1803");
  EXPECT_EQ(Drie("-64", "2"), ", tr.kerk 1803, ondertr./tr. 1801/1802");
  EXPECT_EQ(Drie("-8", "2"), ", ondertr. 1801, tr. 1802, tr.kerk 1803");
  EXPECT_EQ(Drie("0", ""), Drie("0", "2")) << "an empty setting";
}

TEST_F(RelatieZinTest, HetVoorvoegselGaatMetHetEersteMee) {
  EXPECT_EQ(Drie("0", "2", 2), ", ondertr.(2) 1801, tr./tr.kerk 1802/1803");
  EXPECT_EQ(Drie("-8", "2", 2), ", ondertr.(2) 1801, tr. 1802, tr.kerk 1803");
  EXPECT_EQ(Drie("-64", "1", 2), ", tr.(2) 1802, tr.kerk 1803");
}

TEST_F(RelatieZinTest, EenKerkelijkHuwelijkVooropNeemtHetVoorvoegselNietWeg) {
  EXPECT_EQ(Drie("-64", "2", 2), ", tr.kerk(2) 1803, ondertr./tr.(2) 1801/1802");
}

TEST_F(RelatieZinTest, EenHuwelijkTussenTweeDatumsNoemtBeide) {
  EXPECT_EQ(Zin({{"WHuwPlaats", edam_},
                 {"WHuwDatum", "00-00-1801"},
                 {"HuwCorr", "T"},
                 {"KHuwPlaats", hoorn_},
                 {"KHuwDatum", "00-00-1803"}}),
            ", tr. Edam tussen 1801 en Hoorn 1803");
}

TEST_F(RelatieZinTest, EenHuwelijkTussenTweeDatumsKomtAchterDeOndertrouw) {
  EXPECT_EQ(Drie("0", "0", 1, "T"), ", ondertr. 1801, tr. tussen 1802 en 1803");
  EXPECT_EQ(Drie("0", "0", 2, "T"), ", ondertr.(2) 1801, tr.(2) tussen 1802 en 1803");
}

TEST_F(RelatieZinTest, EenBereikZonderGrensIsGeenBereik) {
  EXPECT_EQ(Zin({{"WHuwDatum", "00-00-1801"}, {"HuwCorr", "T"}}), ", tr. 1801");
  EXPECT_EQ(Zin({{"WHuwDatum", "00-00-1801"}, {"HuwCorr", "T"}, {"KHuwPlaats", hoorn_}}),
            ", tr. 1801, tr.kerk Hoorn");
}

TEST_F(RelatieZinTest, EenOpmerkingAlleenMaaktEenGebeurtenisDieVerteldWordt) {
  EXPECT_EQ(Zin({{"OpmCode", "-1"}}), ", ondertr.");
  EXPECT_EQ(Zin({{"OpmCode", "-16"}}), ", tr.");
  EXPECT_EQ(Zin({{"OpmCode", "-32"}}), ", tr.kerk");
  EXPECT_EQ(Zin({{"OpmCode", "-128"}}), ", tr.");
}

TEST_F(RelatieZinTest, EenOnleesbareRelatieEindigtHetVerslag) {
  EXPECT_EQ(VerteldeRelatie(99), "<afgebroken>");
}

TEST_F(RelatieZinTest, EenGebeurtenisOfAndereBondDanHuwelijkIsIetsOmTeVertellen) {
  const auto heeft = [this](VeldWaarden velden) {
    EXPECT_TRUE(set_.Relatie.Lees(Huwelijk(velden)));
    return VerbintenisVan(set_.Relatie).HeeftGegevens();
  };
  EXPECT_FALSE(heeft({}));
  EXPECT_FALSE(heeft({{"OpmCode", "-1"}, {"HuwSoort", "BS"}}));
  EXPECT_TRUE(heeft({{"HuwSwPs", "1"}}));
  EXPECT_TRUE(heeft({{"OtrPlaats", edam_}}));
  EXPECT_TRUE(heeft({{"OtrDatum", "00-01-0000"}}));
  EXPECT_TRUE(heeft({{"OtrDatum", "00-00-1801"}}));
  EXPECT_TRUE(heeft({{"WHuwPlaats", edam_}}));
  EXPECT_TRUE(heeft({{"WHuwDatum", "00-00-1801"}}));
  EXPECT_TRUE(heeft({{"KHuwPlaats", edam_}}));
  EXPECT_TRUE(heeft({{"KHuwDatum", "00-00-1801"}}));
}

}  // namespace
}  // namespace lb77
