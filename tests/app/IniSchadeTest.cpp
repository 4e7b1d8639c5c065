#include <gtest/gtest.h>

#include "app/IniSchade.h"
#include "app/IniWerk.h"

namespace lb77 {
namespace {

TEST(IniSchade, LeegIsWatGeenTekensHeeft) {
  EXPECT_TRUE(IsLeegIni(""));
  EXPECT_TRUE(IsLeegIni(std::string(100, '\0') + " \t\r\n"));
  EXPECT_FALSE(IsLeegIni("x"));
}

TEST(IniSchade, HeelIsWatMetDeLaatsteRegelEindigt) {
  const std::string heel = HeelIni("x");
  EXPECT_TRUE(IsHeelIni(heel));
  EXPECT_TRUE(IsHeelIni("\n[ZOEK]\nResultaat=[ZOEK]\n"));
  for (std::size_t lengte = 0; lengte < heel.size(); ++lengte) {
    ASSERT_FALSE(IsHeelIni(heel.substr(0, lengte))) << lengte;
  }
}

TEST(IniSchade, ElkBeginVanHetBestandIsEenBegin) {
  const std::string heel = HeelIni("x");
  for (std::size_t lengte = 0; lengte <= heel.size(); ++lengte) {
    ASSERT_TRUE(IsBeginVanIni(heel.substr(0, lengte))) << lengte;
  }
}

TEST(IniSchade, LijstenMogenRegelsHebben) {
  const std::string vol = IniRegels([](SleutelPlaats) { return std::string("x"); });
  ASSERT_NE(vol.find("\r\nSet99=x\r\n"), std::string::npos);
  EXPECT_TRUE(IsBeginVanIni(vol));
}

TEST(IniSchade, EenAndereVolgordeIsGeenBegin) {
  EXPECT_FALSE(IsBeginVanIni("[Systeem]\n"));
  EXPECT_FALSE(IsBeginVanIni("Versie=2.1\n"));
  EXPECT_FALSE(IsBeginVanIni("[Lijnboom]\nCopyright=x\n"));
  EXPECT_FALSE(IsBeginVanIni("[Lijnboom]\nVersie=2.1\n\n[Systeem]\n"));
  EXPECT_FALSE(IsBeginVanIni("[Lijnboom]\nVersie=2.1\nVersie=2.1\n"));
  EXPECT_FALSE(IsBeginVanIni(HeelIni("x") + "[Meer]\n"));
}

}  // namespace
}  // namespace lb77
