// What the operating system is asked, and what its answers come to.
#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <string>
#include <string_view>
#include <vector>

#include "steun/Systeemroepen.h"
#include "steun/TijdelijkeMap.h"
#include "store/JournaalMap.h"
#include "store/Platform.h"
#include "store/SchijfBestand.h"

using namespace lb77;

namespace {

using Paden = std::vector<std::filesystem::path>;

struct PlatformRoepTest : ::testing::Test {
  PlatformRoepTest() { EXPECT_FALSE(greep.Open(pad)); }

  TijdelijkeMap map;
  std::filesystem::path pad = map / "r";
  Bestandsgreep greep;
  std::array<char, 8> doel{};
  Systeemroepen roepen;
};

}  // namespace

TEST_F(PlatformRoepTest, WatHetSysteemOnderbreektWordtHerhaald) {
  roepen.Faal(Roep::Schrijf, 1, EINTR);
  EXPECT_FALSE(greep.Schrijf(0, std::string_view("abcd")));
  EXPECT_TRUE(roepen.Geweest());
  roepen.Faal(Roep::Kap, 1, EINTR);
  EXPECT_FALSE(greep.Kap(3));
  EXPECT_TRUE(roepen.Geweest());
  roepen.Faal(Roep::Lees, 1, EINTR);
  EXPECT_EQ(greep.Lees(0, doel).gelezen, 3U);
  EXPECT_TRUE(roepen.Geweest());
  EXPECT_EQ(LeesBytes(pad), "abc");
}

TEST_F(PlatformRoepTest, WatHetSysteemWeigertIsEenFout) {
  roepen.Faal(Roep::Schrijf, 1, EDQUOT);
  EXPECT_EQ(greep.Schrijf(0, std::string_view("abcd")).nummer, kSchijfVol);
  roepen.Faal(Roep::Kap, 1, EIO);
  EXPECT_TRUE(greep.Kap(3));
  roepen.Faal(Roep::Lees, 1, EIO);
  EXPECT_TRUE(greep.Lees(0, doel).fout);
  EXPECT_EQ(LeesBytes(pad), "");
}

TEST_F(PlatformRoepTest, WatNietNaarDeSchijfGaatIsEenFout) {
  roepen.Faal(Roep::NaarSchijf, 1, EIO);
  EXPECT_TRUE(greep.Veiligstellen());
  roepen.Faal(Roep::NaarSchijf, 1, EIO);
  EXPECT_TRUE(MapVeiligstellen(map.Pad()));
  // A file system that has nothing to bring to a disk.
  for (const int fout : {EINVAL, ENOSYS}) {
    roepen.Faal(Roep::NaarSchijf, 1, fout);
    EXPECT_FALSE(greep.Veiligstellen());
  }
}

TEST_F(PlatformRoepTest, OokWatGekaptIsGaatNaarDeSchijfEnMaarEenmaal) {
  SchijfBestand bestand(4);
  ASSERT_FALSE(bestand.Open(pad));
  ASSERT_FALSE(bestand.Veiligstellen());
  EXPECT_EQ(roepen.NeemNaarSchijf(), Paden{pad});
  ASSERT_FALSE(bestand.Kap(8));
  ASSERT_FALSE(bestand.Veiligstellen());
  ASSERT_FALSE(bestand.Veiligstellen());
  EXPECT_EQ(roepen.NeemNaarSchijf(), Paden{pad});
}

TEST_F(PlatformRoepTest, DeNaamVanEenNieuweJournaalmapGaatMeeNaarDeSchijf) {
  const std::filesystem::path plek = map / "JOURNAAL";
  SchijfJournaalMap journaal(plek);
  ASSERT_FALSE(journaal.Maak("00000001.BEZ"));
  // The names in it, and its own: the second fails.
  roepen.Faal(Roep::NaarSchijf, 2, EIO);
  EXPECT_TRUE(journaal.StelNamenVeilig());
  EXPECT_EQ(roepen.NeemNaarSchijf(), (Paden{map.Pad(), plek}));
  EXPECT_FALSE(journaal.StelNamenVeilig());
  EXPECT_EQ(roepen.NeemNaarSchijf(), (Paden{map.Pad(), plek}));
  EXPECT_FALSE(journaal.StelNamenVeilig());
  EXPECT_EQ(roepen.NeemNaarSchijf(), Paden{plek});
}

TEST_F(PlatformRoepTest, EenJournaalDatNietTeLezenIsIsGeenKortJournaal) {
  SchrijfBytes(map / "00000001.HND", std::string(100, 'x'));
  SchijfJournaalMap journaal(map.Pad());
  std::string bytes;
  roepen.Faal(Roep::Lees, 1, EIO);
  EXPECT_TRUE(journaal.Lees("00000001.HND", bytes));
  EXPECT_FALSE(journaal.Lees("00000001.HND", bytes));
  EXPECT_EQ(bytes.size(), 100U);
}
