#include <gtest/gtest.h>

#include "exchange/Ged551Datum.h"

namespace lb77 {
namespace {

std::string Dag(std::int16_t dagMaand, std::int16_t jaar) {
  return Ged551Dag({dagMaand, jaar}).value_or("-");
}

// The four texts and the loss, with "|" between.
std::string Regels(const OpslagDatum& datum, const OpslagDatum& tot, std::string_view corr) {
  const Ged551DatumRegels regels = Ged551Datum(datum, tot, corr);
  return regels.waarde + "|" + regels.corr + "|" + regels.rauw + "|" + regels.rauwTot + "|" +
         std::to_string(regels.verlies);
}

TEST(Ged551Dag, GeeftDagMaandEnJaar) {
  EXPECT_EQ(Dag(1203, 1890), "12 MAR 1890");
  EXPECT_EQ(Dag(112, 1890), "1 DEC 1890");
  EXPECT_EQ(Dag(3, 1890), "MAR 1890");
  EXPECT_EQ(Dag(0, 1890), "1890");
  EXPECT_EQ(Dag(101, 45), "1 JAN 0045");
  EXPECT_EQ(Dag(101, 1), "1 JAN 0001");
  EXPECT_EQ(Dag(3112, 9999), "31 DEC 9999");
}

TEST(Ged551Dag, KentGeenDagZonderMaandOfJaar) {
  EXPECT_EQ(Dag(1200, 1890), "-");
  EXPECT_EQ(Dag(1203, 0), "-");
  EXPECT_EQ(Dag(0, 0), "-");
}

TEST(Ged551Dag, KentAlleenDagenVanDeKalender) {
  EXPECT_EQ(Dag(3104, 1890), "-");
  EXPECT_EQ(Dag(3004, 1890), "30 APR 1890");
  EXPECT_EQ(Dag(2802, 1890), "28 FEB 1890");
  EXPECT_EQ(Dag(2903, 1890), "29 MAR 1890");
  EXPECT_EQ(Dag(2902, 1892), "29 FEB 1892");
  EXPECT_EQ(Dag(2902, 1890), "-");
  EXPECT_EQ(Dag(2902, 1700), "29 FEB 1700");
  EXPECT_EQ(Dag(3002, 1892), "-");
  EXPECT_EQ(Dag(113, 1890), "-");
  EXPECT_EQ(Dag(-1, 1890), "-");
  EXPECT_EQ(Dag(0, -1), "-");
  EXPECT_EQ(Dag(0, 10000), "-");
}

TEST(Ged551Datum, EenCodeIsHetWoordVanDeStandaard) {
  EXPECT_EQ(Regels({1203, 1890}, {}, ""), "12 MAR 1890||||0");
  EXPECT_EQ(Regels({0, 1890}, {}, "C"), "ABT 1890||||0");
  EXPECT_EQ(Regels({0, 1890}, {}, "N"), "AFT 1890||||0");
  EXPECT_EQ(Regels({0, 1890}, {}, "V"), "BEF 1890||||0");
  EXPECT_EQ(Regels({0, 1890}, {3112, 1895}, "T"), "BET 1890 AND 31 DEC 1895||||0");
}

TEST(Ged551Datum, EenOnbekendeCodeStaatInEenEigenTag) {
  EXPECT_EQ(Regels({0, 1890}, {}, "X"), "1890|X|||0");
  EXPECT_EQ(Regels({}, {}, "C"), "|C|||0");
  EXPECT_EQ(Regels({}, {}, ""), "||||0");
}

TEST(Ged551Datum, WatDeStandaardNietKentStaatErAlsZinEnInEenEigenTag) {
  EXPECT_EQ(Regels({1200, 1890}, {}, ""), "(12-?-1890)||12-00-1890||0");
  EXPECT_EQ(Regels({1203, 0}, {}, "C"), "(circa 12-3-?)|C|12-03-0000||0");
  EXPECT_EQ(Regels({1203, 0}, {}, "N"), "(na 12-3-?)|N|12-03-0000||0");
  EXPECT_EQ(Regels({1203, 0}, {}, "V"), "(voor 12-3-?)|V|12-03-0000||0");
  EXPECT_EQ(Regels({1200, 1890}, {0, 1895}, "T"),
            "(tussen 12-?-1890 en ?-?-1895)|T|12-00-1890|00-00-1895|0");
  EXPECT_EQ(Regels({0, 1890}, {}, "T"), "(tussen ?-?-1890 en ?-?-?)|T|00-00-1890||0");
  EXPECT_EQ(Regels({}, {0, 1895}, "T"), "(tussen ?-?-? en ?-?-1895)|T|00-00-0000|00-00-1895|0");
  EXPECT_EQ(Regels({}, {}, "T"), "|T|||0");
}

TEST(Ged551Datum, GetallenDieGeenDatumZijnGaanVerloren) {
  EXPECT_EQ(Regels({-5, 1890}, {}, ""), "||||1");
  EXPECT_EQ(Regels({10000, 1890}, {}, ""), "||||1");
  EXPECT_EQ(Regels({0, 10000}, {}, "C"), "|C|||1");
  EXPECT_EQ(Regels({0, -1}, {0, -1}, "T"), "|T|||2");
  EXPECT_EQ(Regels({0, 1890}, {0, -1}, "T"), "(tussen ?-?-1890 en ?-?-?)|T|00-00-1890||1");
  EXPECT_EQ(Regels({9999, 9999}, {}, ""), "(99-99-9999)||99-99-9999||0");
}

}  // namespace
}  // namespace lb77
