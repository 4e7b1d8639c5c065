#include <gtest/gtest.h>

#include "output/DatumZin.h"
#include "output/ZinToets.h"

namespace lb77 {
namespace {

class DatumZinTest : public ZinToets {
 protected:
  std::string Zin(const DatumZinDelen& delen) { return DatumZin(delen, set_.Plaats, '-'); }
  // "geb." and "ged." with dates as in the records.
  std::string Paar(std::int16_t plaats1, std::int16_t dagMaand1, std::int16_t jaar1,
                   std::string_view corr, std::int16_t plaats2, std::int16_t dagMaand2,
                   std::int16_t jaar2) {
    return Zin({"geb.", "ged.", {}, plaats1, dagMaand1, jaar1, corr, plaats2, dagMaand2, jaar2});
  }

  std::int16_t edam_ = bouw_.Plaats("Edam");
  std::int16_t hoorn_ = bouw_.Plaats("Hoorn");
};

TEST_F(DatumZinTest, NietsBekendGeeftNiets) {
  EXPECT_EQ(Paar(0, 0, 0, " ", 0, 0, 0), "");
  EXPECT_EQ(Paar(0, 0, 0, "T", 0, 0, 0), "");
}

TEST_F(DatumZinTest, DeEersteGebeurtenisAlleen) {
  EXPECT_EQ(Paar(0, 1205, 1850, "", 0, 0, 0), "geb. 12-5-1850");
  EXPECT_EQ(Paar(edam_, 0, 0, " ", 0, 0, 0), "geb. Edam");
  EXPECT_EQ(Paar(edam_, 5, 1850, " ", 0, 0, 0), "geb. Edam 5-1850");
}

TEST_F(DatumZinTest, DeCorrectieStaatAchterDePlaats) {
  EXPECT_EQ(Paar(edam_, 0, 1850, "C", 0, 0, 0), "geb. Edam ca. 1850");
  EXPECT_EQ(Paar(0, 0, 1850, "N", 0, 0, 0), "geb. na 1850");
  EXPECT_EQ(Paar(0, 0, 1850, "V", 0, 0, 0), "geb. voor 1850");
  EXPECT_EQ(Paar(0, 0, 1850, "X", 0, 0, 0), "geb. 1850");
}

TEST_F(DatumZinTest, EenCorrectieZonderDatumStaatAchterDePlaats) {
  EXPECT_EQ(Paar(edam_, 0, 0, "C", 0, 0, 0), "geb. Edam ca.");
}

TEST_F(DatumZinTest, EenBereikHeeftEenPlaats) {
  EXPECT_EQ(Paar(edam_, 0, 1850, "T", hoorn_, 0, 1852), "geb. Edam tussen 1850 en 1852");
  EXPECT_EQ(Paar(0, 101, 1850, "T", 0, 202, 1852), "geb. tussen 1-1-1850 en 2-2-1852");
}

TEST_F(DatumZinTest, EenBereikZonderTweedeDatumIsGeenBereik) {
  EXPECT_EQ(Paar(edam_, 0, 1850, "T", 0, 0, 0), "geb. Edam 1850");
}

TEST_F(DatumZinTest, EenBereikZonderEersteGebeurtenisIsGeenBereik) {
  EXPECT_EQ(Paar(0, 0, 0, "T", hoorn_, 0, 1852), "ged. Hoorn 1852");
}

TEST_F(DatumZinTest, DeTweedeGebeurtenisAlleen) {
  EXPECT_EQ(Paar(0, 0, 0, " ", hoorn_, 1406, 1850), "ged. Hoorn 14-6-1850");
  EXPECT_EQ(Paar(0, 0, 0, "C", 0, 1406, 1850), "ged. 14-6-1850")
      << "the correction was the first's";
}

TEST_F(DatumZinTest, TweeOngelijkeGebeurtenissenVolgenOpElkaar) {
  EXPECT_EQ(Paar(edam_, 1205, 1850, " ", 0, 1406, 1850), "geb. Edam 12-5-1850, ged. 14-6-1850");
  EXPECT_EQ(Paar(0, 1205, 1850, " ", hoorn_, 0, 0), "geb. 12-5-1850, ged. Hoorn");
  EXPECT_EQ(Paar(edam_, 0, 0, " ", hoorn_, 1406, 1850), "geb. Edam, ged. Hoorn 14-6-1850");
}

TEST_F(DatumZinTest, EenCorrectieHoudtEenPaarUiteen) {
  EXPECT_EQ(Paar(edam_, 0, 1850, "C", hoorn_, 1406, 1850),
            "geb. Edam ca. 1850, ged. Hoorn 14-6-1850");
}

TEST_F(DatumZinTest, GelijkeDatumsStaanErEenmaal) {
  EXPECT_EQ(Paar(0, 1205, 1850, " ", 0, 1205, 1850), "geb. en ged. 12-5-1850");
  EXPECT_EQ(Paar(edam_, 1205, 1850, " ", edam_, 1205, 1850), "geb. en ged. Edam 12-5-1850");
  EXPECT_EQ(Paar(edam_, 1205, 1850, " ", hoorn_, 1205, 1850), "geb. en ged. Edam/Hoorn 12-5-1850");
}

TEST_F(DatumZinTest, VerschillendeJarenStaanErBeide) {
  EXPECT_EQ(Paar(0, 1205, 1850, " ", 0, 1405, 1851), "geb./ged. 12-5-1850/14-5-1851");
  EXPECT_EQ(Paar(edam_, 1205, 1850, " ", hoorn_, 1405, 1851),
            "geb./ged. Edam/Hoorn 12-5-1850/14-5-1851");
}

TEST_F(DatumZinTest, EenJaarVanBeideStaatErEenmaal) {
  EXPECT_EQ(Paar(0, 1205, 1850, " ", 0, 1406, 1850), "geb./ged. 12-5/14-6-1850");
}

TEST_F(DatumZinTest, EenMaandVanBeideStaatErEenmaal) {
  EXPECT_EQ(Paar(0, 1205, 1850, " ", 0, 1405, 1850), "geb./ged. 12/14-5-1850");
  EXPECT_EQ(Paar(0, 1211, 1850, " ", 0, 1411, 1850), "geb./ged. 12/14-11-1850");
}

TEST_F(DatumZinTest, DeStaartIsNooitLangerDanDeDatumMetBlanco) {
  EXPECT_EQ(Paar(0, 5, 1850, " ", 0, 1405, 1850), "geb./ged./14-5-1850");
  EXPECT_EQ(Paar(0, 0, 1850, " ", 0, 1405, 1850), "geb./ged./14-5-1850");
  EXPECT_EQ(Paar(0, 0, 1850, " ", 0, 1400, 1850), "geb./ged./14-1850");
}

TEST_F(DatumZinTest, DeScheiderKomtUitDeInstellingen) {
  EXPECT_EQ(DatumZin({"geb.", {}, {}, 0, 1205, 1850, {}, 0, 0, 0}, set_.Plaats, '.'),
            "geb. 12.5.1850");
  EXPECT_EQ(KaleDatum(1205, 1850, "", '.'), "12.5.1850");
}

TEST_F(DatumZinTest, HetWoordStaatZonderBlancoAchterDeOpening) {
  EXPECT_EQ(Zin({"tr.", {}, "(2)", edam_, 0, 1850, {}, 0, 0, 0}), "tr.(2) Edam 1850");
  EXPECT_EQ(Zin({"otr.", "tr.", "(2)", 0, 0, 0, {}, edam_, 0, 1850}), "tr.(2) Edam 1850");
  EXPECT_EQ(Zin({"otr.", "tr.", "(2)", 0, 0, 1850, {}, 0, 0, 1851}), "otr./tr.(2) 1850/1851");
  EXPECT_EQ(Zin({"otr.", "tr.", "(2)", 0, 0, 1850, {}, edam_, 0, 1851}),
            "otr.(2) 1850, tr. Edam 1851");
}

TEST_F(DatumZinTest, GelijkeDatumsLatenHetWoordVallen) {
  EXPECT_EQ(Zin({"otr.", "tr.", "(2)", 0, 0, 1850, {}, 0, 0, 1850}), "otr. en tr. 1850");
}

TEST_F(DatumZinTest, PlaatsenDragenHunToevoeging) {
  EXPECT_EQ(Paar(static_cast<std::int16_t>(10000 + edam_), 0, 0, " ", 0, 0, 0), "geb. verm. Edam");
  EXPECT_EQ(Paar(static_cast<std::int16_t>(20000 + edam_), 0, 0, " ", 0, 0, 0), "geb. Edam(?)");
}

TEST_F(DatumZinTest, EenOnleesbarePlaatsLaatZijnBlanco) {
  EXPECT_EQ(Paar(999, 1205, 1850, " ", 0, 0, 0), "geb.  12-5-1850");
}

TEST_F(DatumZinTest, PlaatsMinEenVraagtAlleenDeDatum) {
  EXPECT_EQ(Zin({{}, {}, {}, kAlleenDatum, 1205, 1850, "C", 0, 0, 0}), "ca. 12-5-1850");
  EXPECT_EQ(Zin({{}, {}, {}, kAlleenDatum, 0, 0, "C", 0, 0, 0}), "");
}

TEST_F(DatumZinTest, EenKaleDatumDraagtZijnCorrectie) {
  EXPECT_EQ(KaleDatum(1205, 1850, "", '-'), "12-5-1850");
  EXPECT_EQ(KaleDatum(0, 1850, "C", '-'), "ca. 1850");
  EXPECT_EQ(KaleDatum(0, 1850, "V", '-'), "voor 1850");
  EXPECT_EQ(KaleDatum(0, 1850, "N", '-'), "na 1850");
  EXPECT_EQ(KaleDatum(0, 1850, "T", '-'), "1850") << "one date is no range";
  EXPECT_EQ(KaleDatum(0, 0, "C", '-'), "");
  EXPECT_EQ(KaleDatum(1205, 0, "", '-'), "12-5-0");
}

}  // namespace
}  // namespace lb77
