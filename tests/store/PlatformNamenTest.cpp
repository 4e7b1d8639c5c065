// What a name on the disk is, and its removal and renaming.
#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <string>
#include <system_error>
#include <thread>

#include "steun/Bestandsstelsel.h"
#include "steun/TijdelijkeMap.h"
#include "store/PlatformNamen.h"
#include "store/SysteemFout.h"

using namespace lb77;

namespace {

namespace fs = std::filesystem;

struct PlatformNamenTest : ::testing::Test {
  // As it comes from a CD.
  void MaakVast(const fs::path& pad) const {
    SchrijfBytes(pad, "x");
    fs::permissions(pad, fs::perms::owner_read);
  }

  TijdelijkeMap map;
  std::error_code code = std::make_error_code(std::errc::io_error);
};

}  // namespace

TEST_F(PlatformNamenTest, VerwijderenZegtWatHetTegenhoudt) {
  std::error_code code;
  EXPECT_FALSE(VerwijderVanSchijf(map / "weg", code));
  EXPECT_FALSE(code);
  SchrijfBytes(map / "vol/bestand", "x");
  EXPECT_FALSE(VerwijderVanSchijf(map / "vol", code));
  EXPECT_EQ(FoutVan(code).tekst, "Directory is niet leeg");
  EXPECT_TRUE(VerwijderVanSchijf(map / "vol/bestand", code));
  EXPECT_TRUE(VerwijderVanSchijf(map / "vol", code));
  EXPECT_FALSE(std::filesystem::exists(map / "vol"));
}

TEST_F(PlatformNamenTest, EenBestandDatEvenOpenIsWordtTochVervangen) {
  SchrijfBytes(map / "oud", "oud");
  SchrijfBytes(map / "nieuw", "nieuw");
  std::ifstream lezer(map / "oud");
  std::thread gaat([&lezer] {
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    lezer.close();
  });
  std::error_code code;
  HernoemOpSchijf(map / "nieuw", map / "oud", code);
  gaat.join();
  EXPECT_FALSE(code) << code.message();
  EXPECT_EQ(LeesBytes(map / "oud"), "nieuw");
  std::filesystem::create_directory(map / "map");
  HernoemOpSchijf(map / "oud", map / "map", code);
  EXPECT_EQ(FoutVan(code).tekst, "Pad is een directory");
  HernoemOpSchijf(map / "weg", map / "oud", code);
  EXPECT_EQ(FoutVan(code).nummer, kBestandNietGevonden);
}

TEST_F(PlatformNamenTest, EenBestandDatAlleenTeLezenIsWordtOokVerwijderd) {
  MaakVast(map / "vast");
  EXPECT_TRUE(VerwijderVanSchijf(map / "vast", code));
  EXPECT_FALSE(code) << code.message();
  EXPECT_FALSE(fs::exists(map / "vast"));
}

TEST_F(PlatformNamenTest, EenMapGaatMetAllesWatErinLigt) {
  SchrijfBytes(map / "weg/diep/dieper/bestand", "x");
  MaakVast(map / "weg/diep/vast");
  fs::create_directory(map / "weg/leeg");
  VerwijderMapVanSchijf(map / "weg", code);
  EXPECT_FALSE(code) << code.message();
  EXPECT_FALSE(fs::exists(map / "weg"));
  VerwijderMapVanSchijf(map / "weg", code);
  EXPECT_FALSE(code) << code.message();
  EXPECT_TRUE(fs::exists(map.Pad()));
}

TEST_F(PlatformNamenTest, VanEenMapGaatEenKoppelingEnNietWaarZijHeenWijst) {
  if (!kKoppelingen) GTEST_SKIP() << kZonderKoppelingen;
  SchrijfBytes(map / "elders/bestand", "x");
  fs::create_directory(map / "weg");
  fs::create_directory_symlink(map / "elders", map / "weg/koppeling");
  VerwijderMapVanSchijf(map / "weg", code);
  EXPECT_FALSE(code);
  EXPECT_FALSE(fs::exists(map / "weg"));
  EXPECT_EQ(LeesBytes(map / "elders/bestand"), "x");
}

TEST_F(PlatformNamenTest, EenKoppelingIsHaarDoelNiet) {
  SchrijfBytes(map / "elders/bestand", "x");
  EXPECT_FALSE(IsKoppeling(map / "elders"));
  EXPECT_FALSE(IsKoppeling(map / "elders/bestand"));
  EXPECT_FALSE(IsKoppeling(map / "weg"));
  if (!kKoppelingen) GTEST_SKIP() << kZonderKoppelingen;
  fs::create_directory_symlink(map / "elders", map / "koppeling");
  fs::create_symlink(map / "nergens", map / "nergensheen");
  EXPECT_TRUE(IsKoppeling(map / "koppeling"));
  EXPECT_TRUE(IsKoppeling(map / "nergensheen"));
}

// Whether such a file is there or not.
TEST_F(PlatformNamenTest, NamenZijnGelijkZoalsHetSysteemZeLeest) {
  EXPECT_TRUE(IsZelfdeNaam(map / "een", map / "een"));
  EXPECT_FALSE(IsZelfdeNaam(map / "een", map / "eend"));
  EXPECT_FALSE(IsZelfdeNaam(map / "een", map / "twee/een"));
  EXPECT_EQ(IsZelfdeNaam(map / "Een", map / "eEN"), !kKastTelt);
  EXPECT_EQ(IsZelfdeNaam(map / u8"Zoë", map / u8"ZOË"), !kKastTelt);
  EXPECT_EQ(IsZelfdeNaam(map / "een", map / "een."), !kKastTelt);
}

TEST_F(PlatformNamenTest, EenApparaatIsGeenBestandEnGeenMap) {
#ifdef _WIN32
  for (const char* naam : {"NUL", "nul", "CON", "LPT1"}) EXPECT_TRUE(IsApparaat(naam)) << naam;
#else
  EXPECT_TRUE(IsApparaat("/dev/null"));
#endif
  EXPECT_FALSE(IsApparaat(map.Pad()));
  EXPECT_FALSE(IsApparaat(map / "weg"));
  SchrijfBytes(map / "CONS", "x");
  EXPECT_FALSE(IsApparaat(map / "CONS"));
}
