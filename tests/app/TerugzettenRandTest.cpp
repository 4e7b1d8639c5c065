// Copies at a disk that fails, and what lies in their way.
#include <cerrno>
#include <string>

#include "app/VeiligToets.h"
#include "app/Veiligheidskopie.h"
#include "steun/Bestandsstelsel.h"
#include "steun/NepGesprek.h"
#include "steun/Systeemroepen.h"

namespace lb77 {
namespace {

class TerugzettenRand : public VeiligToets {
 protected:
  void Doe(const std::function<void(Hoofdmodule&, Veiligheidskopie&)>& doe) {
    Verwacht("", MetMenu([&doe](Hoofdmodule& hoofd, MenuWindow& menu) {
               ASSERT_TRUE(menu.Laad());
               Veiligheidskopie kopie = KopieVan(hoofd);
               doe(hoofd, kopie);
             }),
             "");
  }
  [[nodiscard]] std::string Set() const {
    return Inhoud("DATA/EEN/EEN.PRS") + Inhoud("DATA/EEN/EEN.RLT") + Inhoud("DATA/EEN/EEN.OPM") +
           Inhoud("DATA/EEN/EEN.PLT");
  }
};

TEST_F(TerugzettenRand, OokWatAlleenAangevuldIsGaatTerugNaarDeKopie) {
  Doe([this](Hoofdmodule& hoofd, Veiligheidskopie& kopie) {
    VoegToe(hoofd, "Jan");
    const std::string toen = Set();
    ASSERT_FALSE(kopie.Maak());
    const std::string naam = kopie.Laatste().filename().string();
    VoegToe(hoofd, "Kees");
    ASSERT_NE(Set(), toen);
    ASSERT_FALSE(kopie.ZetTerug(naam).fout);
    EXPECT_EQ(Set(), toen);
  });
}

TEST_F(TerugzettenRand, WaarHetSchrijvenOokMisluktDeSetIsNooitHalfTerug) {
  Doe([this](Hoofdmodule& hoofd, Veiligheidskopie& kopie) {
    VoegToe(hoofd, "Jan");
    const std::string toen = Set();
    ASSERT_FALSE(kopie.Maak());
    const std::string naam = kopie.Laatste().filename().string();
    VoegToe(hoofd, "Kees");
    Hernoem(hoofd, "Piet");
    ASSERT_FALSE(kopie.Maak());
    const std::string voor = Set();
    Journaal& journaal = *hoofd.bestanden.HetJournaal();
    int nietVeilig = 0;
    for (int bij = 1;; ++bij) {
      Systeemroepen roepen;
      roepen.Faal(Roep::Schrijf, bij, EIO);
      const TerugUitslag uitslag = kopie.ZetTerug(naam);
      if (!roepen.Geweest()) break;
      EXPECT_EQ(Set(), uitslag.fout ? voor : toen) << bij;
      if (!uitslag.nietVeilig) continue;
      // All is in its place, and only the end of the action is still to come.
      ++nietVeilig;
      ASSERT_FALSE(journaal.SluitAf());
      ASSERT_TRUE(journaal.MaakOngedaan(journaal.LaatsteTeOngedaan()->nummer)) << bij;
      EXPECT_EQ(Set(), voor) << bij;
    }
    EXPECT_GT(nietVeilig, 0);
  });
}

TEST_F(TerugzettenRand, WaarHetLezenOokMisluktDeTekstenZijnErNog) {
  Schrijf("DATA/EEN/TEKST/a.txt", "oud");
  Doe([this](Hoofdmodule&, Veiligheidskopie& kopie) {
    ASSERT_FALSE(kopie.Maak());
    const std::string naam = kopie.Laatste().filename().string();
    for (int bij = 1; bij <= 40; ++bij) {
      Schrijf("DATA/EEN/TEKST/a.txt", "nieuw");
      Systeemroepen roepen;
      roepen.Faal(Roep::Lees, bij, EIO);
      const TerugUitslag uitslag = kopie.ZetTerug(naam);
      const bool gelukt = !uitslag.fout && !uitslag.tekstFout;
      EXPECT_EQ(Inhoud("DATA/EEN/TEKST/a.txt"), gelukt ? "oud" : "nieuw") << bij;
    }
  });
}

TEST_F(TerugzettenRand, EenSetDieNietTeLezenIsIsGelijkAanGeenEnkeleKopie) {
  Doe([this](Hoofdmodule&, Veiligheidskopie& kopie) {
    Schrijf("KOPIE/EEN/2026-01-01_010101/EEN.PRS", "");
    std::filesystem::remove(map_ / "KOPIE/EEN/2026-01-01_010101/EEN.PRS");
    std::filesystem::remove(map_ / "DATA/EEN/EEN.RLT");
    std::filesystem::remove(map_ / "DATA/EEN/EEN.PRS");
    std::filesystem::remove(map_ / "DATA/EEN/EEN.OPM");
    std::filesystem::remove(map_ / "DATA/EEN/EEN.PLT");
    EXPECT_TRUE(kopie.MaakZonodig());
  });
}

TEST_F(TerugzettenRand, WatEenAfgebrokenKopieLietLiggenStaatNietInDeWeg) {
  Schrijf("KOPIE/EEN/BEZIG/EEN.PRS", "half");
  Schrijf("KOPIE/EEN/BEZIG/TEKST/oud.txt", "oud");
  Doe([this](Hoofdmodule&, Veiligheidskopie& kopie) {
    ASSERT_FALSE(kopie.Maak());
    EXPECT_EQ(LeesBytes(kopie.Laatste() / "EEN.PRS"), Inhoud("DATA/EEN/EEN.PRS"));
    EXPECT_FALSE(std::filesystem::exists(kopie.Laatste() / "TEKST/oud.txt"));
  });
}

TEST_F(TerugzettenRand, EenKoppelingInDeTekstenWordtNietGevolgd) {
  if (!kKoppelingen) GTEST_SKIP() << kZonderKoppelingen;
  Schrijf("DATA/EEN/TEKST/a.txt", "tekst");
  std::filesystem::create_directory_symlink(map_ / "DATA/EEN/TEKST", map_ / "DATA/EEN/TEKST/lus");
  Doe([](Hoofdmodule&, Veiligheidskopie& kopie) {
    ASSERT_FALSE(kopie.Maak());
    EXPECT_EQ(LeesBytes(kopie.Laatste() / "TEKST/a.txt"), "tekst");
    EXPECT_FALSE(std::filesystem::exists(kopie.Laatste() / "TEKST/lus"));
  });
}

TEST_F(TerugzettenRand, EenPlaatsbestandDatNergensHeenWijstIsGeenCentraal) {
  if (!kKoppelingen) GTEST_SKIP() << kZonderKoppelingen;
  std::filesystem::rename(map_ / "DATA/EEN/EEN.PLT", map_ / "DATA/PLAATS.PLT");
  std::filesystem::create_symlink(map_ / "nergens", map_ / "DATA/EEN/EEN.PLT");
  Bestandenset bestanden;
  Volgers eigen;
  NepGesprek gesprek;
  Schrijfwijze schrijfwijze;
  Veiligheidskopie kopie({bestanden, eigen, gesprek, schrijfwijze}, klok_,
                         SetPaden::Van(map_ / "DATA", "EEN"), {{map_ / "KOPIE/EEN"}, {}});
  EXPECT_TRUE(kopie.Maak());
  EXPECT_EQ(kopie.Laatste(), "");
}

TEST_F(TerugzettenRand, VanElfInEenMaandBlijvenErTien) {
  Doe([](Hoofdmodule&, Veiligheidskopie& kopie) {
    for (int i = 0; i < 11; ++i) ASSERT_FALSE(kopie.Maak());
    EXPECT_EQ(kopie.Lijst().size(), 10U);
  });
}

}  // namespace
}  // namespace lb77
