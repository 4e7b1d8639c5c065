#include <gtest/gtest.h>
#ifndef _WIN32
#include <sys/stat.h>
#endif

#include <array>
#include <cstdlib>
#include <string>
#include <utility>

#include "steun/Bestandsstelsel.h"
#include "steun/TijdelijkeMap.h"
#include "store/Platform.h"

using namespace lb77;

namespace {

struct PlatformTest : ::testing::Test {
  TijdelijkeMap map;
  Bestandsgreep greep;
  std::array<char, 8> doel{};
};

#ifndef _WIN32
// Sets a variable of the environment, and puts it back.
class Omgeving {
 public:
  Omgeving(const char* naam, const char* waarde) : naam_(naam) {
    if (const char* oud = std::getenv(naam)) oud_ = oud;
    waarde != nullptr ? ::setenv(naam, waarde, 1) : ::unsetenv(naam);
  }
  ~Omgeving() { oud_.empty() ? ::unsetenv(naam_) : ::setenv(naam_, oud_.c_str(), 1); }
  Omgeving(const Omgeving&) = delete;
  Omgeving& operator=(const Omgeving&) = delete;

 private:
  const char* naam_;
  std::string oud_;
};
#endif

}  // namespace

TEST_F(PlatformTest, EenAfwezigBestandWordtLeegGemaakt) {
  EXPECT_FALSE(greep.Open(map / "nieuw"));
  EXPECT_TRUE(greep.IsOpen());
  EXPECT_TRUE(std::filesystem::exists(map / "nieuw"));
  EXPECT_EQ(greep.Lengte(), 0U);
}

TEST_F(PlatformTest, EenBestaandBestandBlijftZoalsHetIs) {
  SchrijfBytes(map / "oud", "inhoud");
  EXPECT_FALSE(greep.Open(map / "oud"));
  EXPECT_EQ(greep.Lengte(), 6U);
  EXPECT_EQ(greep.Lees(2, doel).gelezen, 4U);
  EXPECT_EQ(std::string(doel.data(), 4), "houd");
}

TEST_F(PlatformTest, EenDirectoryDieErNietIsWordtNietGemaakt) {
  const SysteemFout fout = greep.Open(map / "weg" / "nieuw");
  EXPECT_EQ(fout.nummer, kBestandNietGevonden);
  EXPECT_EQ(fout.tekst, "Bestand niet gevonden");
  EXPECT_FALSE(greep.IsOpen());
}

TEST_F(PlatformTest, EenTeLangeNaamWordtZoGenoemd) {
  EXPECT_EQ(greep.Open(map / std::string(300, 'x')).tekst, "Bestandsnaam te lang");
  EXPECT_FALSE(greep.IsOpen());
}

TEST_F(PlatformTest, EenDirectoryIsGeenBestand) {
  EXPECT_EQ(greep.Open(map.Pad()).tekst, "Pad is een directory");
}

TEST_F(PlatformTest, EenBestandDatAlleenTeLezenIsGaatNietOpen) {
  SchrijfBytes(map / "vast", "x");
  std::filesystem::permissions(map / "vast", std::filesystem::perms::owner_read);
  const SysteemFout fout = greep.Open(map / "vast");
  if (!fout) GTEST_SKIP() << "deze gebruiker mag alles";
  EXPECT_EQ(fout.nummer, kGeenToegang);
}

TEST_F(PlatformTest, EenProgrammaDatDraaitGaatNietOpenOmTeSchrijven) {
  const SysteemFout fout =
      greep.Open(ProgrammaMap() / (std::string("lb77-store-tests") + kProgrammaEind));
  EXPECT_EQ(fout.nummer, kGeenToegang);
  EXPECT_EQ(fout.tekst, "Bestand is in gebruik");
}

TEST_F(PlatformTest, SchrijvenVoorbijHetEindeLaatEenGat) {
  ASSERT_FALSE(greep.Open(map / "gat"));
  EXPECT_FALSE(greep.Schrijf(3, std::string_view("ab")));
  EXPECT_EQ(LeesBytes(map / "gat"), std::string("\0\0\0ab", 5));
  EXPECT_EQ(greep.Lengte(), 5U);
}

TEST_F(PlatformTest, LezenVoorbijHetEindeGeeftNietsEnGeenFout) {
  ASSERT_FALSE(greep.Open(map / "kort"));
  ASSERT_FALSE(greep.Schrijf(0, std::string_view("abc")));
  const Leesuitslag deels = greep.Lees(1, doel);
  EXPECT_EQ(deels.gelezen, 2U);
  EXPECT_FALSE(deels.fout);
  EXPECT_EQ(greep.Lees(100, doel).gelezen, 0U);
}

TEST_F(PlatformTest, WatGeschrevenIsZietEenAndereGreepMeteen) {
  ASSERT_FALSE(greep.Open(map / "samen"));
  Bestandsgreep ander;
  ASSERT_FALSE(ander.Open(map / "samen"));
  ASSERT_FALSE(greep.Schrijf(0, std::string_view("nu")));
  EXPECT_EQ(ander.Lees(0, doel).gelezen, 2U);
  EXPECT_FALSE(greep.Veiligstellen());
}

TEST_F(PlatformTest, EenGeslotenGreepMisluktInAlles) {
  EXPECT_EQ(greep.Lees(0, doel).fout.tekst, "Bestand is niet open");
  EXPECT_TRUE(greep.Schrijf(0, doel));
  EXPECT_TRUE(greep.Veiligstellen());
  EXPECT_EQ(greep.Lengte(), 0U);
  greep.Sluit();
  EXPECT_FALSE(greep.IsOpen());
}

TEST_F(PlatformTest, EenGreepVerhuist) {
  ASSERT_FALSE(greep.Open(map / "een"));
  Bestandsgreep ander(std::move(greep));
  EXPECT_TRUE(ander.IsOpen());
  Bestandsgreep derde;
  ASSERT_FALSE(derde.Open(map / "twee"));
  derde = std::move(ander);
  ASSERT_FALSE(derde.Schrijf(0, std::string_view("e")));
  EXPECT_EQ(LeesBytes(map / "een"), "e");
  EXPECT_EQ(LeesBytes(map / "twee"), "");
}

TEST_F(PlatformTest, EenVolleSchijfIsEenFout) {
  if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "geen /dev/full";
  ASSERT_FALSE(greep.Open("/dev/full"));
  const SysteemFout fout = greep.Schrijf(0, doel);
  EXPECT_EQ(fout.nummer, kSchijfVol);
  EXPECT_EQ(fout.tekst, "Schijf vol");
}

TEST_F(PlatformTest, EenNieuwBestandMagErNogNietZijn) {
  EXPECT_FALSE(greep.Open(map / "nieuw", Openwijze::Nieuw));
  EXPECT_FALSE(greep.Schrijf(0, std::string_view("nu")));
  EXPECT_EQ(greep.Open(map / "nieuw", Openwijze::Nieuw).nummer, kBestandBestaatAl);
  EXPECT_FALSE(greep.IsOpen());
  EXPECT_EQ(LeesBytes(map / "nieuw"), "nu");
  if (!kKoppelingen) return;
  std::filesystem::create_symlink(map / "nergens", map / "koppeling");
  EXPECT_EQ(greep.Open(map / "koppeling", Openwijze::Nieuw).tekst, "Bestand bestaat al");
}

TEST_F(PlatformTest, AlleenLezenMaaktNietsEnSchrijftNiets) {
  EXPECT_EQ(greep.Open(map / "weg", Openwijze::AlleenLezen).nummer, kBestandNietGevonden);
  EXPECT_FALSE(std::filesystem::exists(map / "weg"));
  SchrijfBytes(map / "oud", "inhoud");
  EXPECT_FALSE(greep.Open(map / "oud", Openwijze::AlleenLezen));
  EXPECT_EQ(greep.Lees(0, doel).gelezen, 6U);
  EXPECT_TRUE(greep.Schrijf(0, std::string_view("x")));
}

#ifndef _WIN32
TEST_F(PlatformTest, AlleenLezenVanIetsAndersDanEenBestandMisluktMeteen) {
  EXPECT_EQ(greep.Open(map.Pad(), Openwijze::AlleenLezen).tekst, "Pad is een directory");
  ASSERT_EQ(::mkfifo((map / "pijp").c_str(), 0600), 0);
  EXPECT_EQ(greep.Open(map / "pijp", Openwijze::AlleenLezen).tekst, "Pad is geen gewoon bestand");
  EXPECT_EQ(greep.Open("/dev/null", Openwijze::AlleenLezen).nummer, 75);
  EXPECT_FALSE(greep.IsOpen());
}
#endif

TEST_F(PlatformTest, DeNamenInEenDirectoryGaanNaarDeSchijf) {
  EXPECT_FALSE(MapVeiligstellen(map.Pad()));
  EXPECT_EQ(MapVeiligstellen(map / "weg").nummer, kBestandNietGevonden);
}

TEST_F(PlatformTest, DeProgrammamapIsDieVanHetProgramma) {
  EXPECT_TRUE(
      std::filesystem::exists(ProgrammaMap() / (std::string("lb77-store-tests") + kProgrammaEind)));
}

#ifndef _WIN32
TEST_F(PlatformTest, DeGebruikersmapVolgtDeOmgeving) {
  {
    const Omgeving xdg("XDG_DATA_HOME", "/ergens/data");
    EXPECT_EQ(GebruikersDataMap(), "/ergens/data/lb77");
  }
  const Omgeving relatief("XDG_DATA_HOME", "data");
  const Omgeving thuis("HOME", "/home/jan");
  EXPECT_EQ(GebruikersDataMap(), "/home/jan/.local/share/lb77");
}

TEST_F(PlatformTest, ZonderThuismapIsDeGebruikersmapDieVanHetProgramma) {
  const Omgeving xdg("XDG_DATA_HOME", nullptr);
  const Omgeving thuis("HOME", nullptr);
  EXPECT_EQ(GebruikersDataMap(), ProgrammaMap());
}
#endif
