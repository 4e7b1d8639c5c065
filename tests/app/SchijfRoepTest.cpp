// What must be on the disk itself before it counts, and what can't be read.
#include <cerrno>
#include <string>
#include <vector>

#include "app/HeelBestand.h"
#include "app/IniBestand.h"
#include "app/IniWerk.h"
#include "app/Sleutels.h"
#include "app/VeiligToets.h"
#include "app/Veiligheidskopie.h"
#include "steun/Systeemroepen.h"

namespace lb77 {
namespace {

using Paden = std::vector<std::filesystem::path>;

class SchijfRoep : public VeiligToets {
 protected:
  void Doe(const std::function<void(Hoofdmodule&, Veiligheidskopie&)>& doe) {
    Verwacht("", MetMenu([&doe](Hoofdmodule& hoofd, MenuWindow& menu) {
               ASSERT_TRUE(menu.Laad());
               Veiligheidskopie kopie = KopieVan(hoofd);
               doe(hoofd, kopie);
             }),
             "");
  }
  // The paths in the program's directory.
  Paden In(const std::vector<std::string>& namen) const {
    Paden paden;
    for (const std::string& naam : namen) paden.push_back(map_ / naam);
    return paden;
  }
};

TEST_F(SchijfRoep, EenKopieStaatMetAlHaarNamenOpDeSchijf) {
  Schrijf("DATA/EEN/TEKST/brief/a.txt", "tekst");
  Doe([this](Hoofdmodule&, Veiligheidskopie& kopie) {
    Systeemroepen roepen;
    ASSERT_FALSE(kopie.Maak());
    const std::string bezig = "KOPIE/EEN/BEZIG";
    EXPECT_EQ(roepen.NeemNaarSchijf(),
              In({"DATA/EEN/EEN.OPM", "DATA/EEN/EEN.PLT", "DATA/EEN/EEN.PRS", "DATA/EEN/EEN.RLT",
                  "KOPIE", "KOPIE/EEN", bezig, bezig + "/EEN.OPM", bezig + "/EEN.PLT",
                  bezig + "/EEN.PRS", bezig + "/EEN.RLT", bezig + "/TEKST", bezig + "/TEKST/brief",
                  bezig + "/TEKST/brief/a.txt"}));
  });
}

TEST_F(SchijfRoep, EenKopieWaarvanIetsNietNaarDeSchijfGaatIsMislukt) {
  Schrijf("DATA/EEN/TEKST/a.txt", "tekst");
  Doe([this](Hoofdmodule&, Veiligheidskopie& kopie) {
    for (int bij = 1;; ++bij) {
      Systeemroepen roepen;
      roepen.Faal(Roep::NaarSchijf, bij, EIO);
      const SysteemFout fout = kopie.Maak();
      EXPECT_EQ(static_cast<bool>(fout), roepen.Geweest()) << bij;
      EXPECT_FALSE(Bestaat("KOPIE/EEN/BEZIG")) << bij;
      if (!roepen.Geweest()) break;
    }
  });
}

TEST_F(SchijfRoep, WaarHetLezenOokMisluktEenKopieIsHeelOfErNiet) {
  Schrijf("DATA/EEN/TEKST/a.txt", "tekst");
  Doe([this](Hoofdmodule&, Veiligheidskopie& kopie) {
    // The reads behind those of the copying itself count its records.
    for (int bij = 1; bij <= 20; ++bij) {
      Systeemroepen roepen;
      roepen.Faal(Roep::Lees, bij, EIO);
      EXPECT_TRUE(kopie.Maak()) << bij;
      EXPECT_EQ(kopie.Laatste(), "") << bij;
      EXPECT_FALSE(Bestaat("KOPIE/EEN/BEZIG")) << bij;
    }
  });
}

TEST_F(SchijfRoep, TeruggezetteTekstenStaanOpDeSchijfVoorZijDeOudeVervangen) {
  Schrijf("DATA/EEN/TEKST/a.txt", "oud");
  Doe([this](Hoofdmodule&, Veiligheidskopie& kopie) {
    ASSERT_FALSE(kopie.Maak());
    Schrijf("DATA/EEN/TEKST/a.txt", "nieuw");
    ASSERT_FALSE(kopie.Maak());
    Systeemroepen roepen;
    ASSERT_FALSE(kopie.ZetTerug("2026-01-02_030405").tekstFout);
    EXPECT_EQ(roepen.NeemNaarSchijf(), In({"DATA/EEN/TEKST", "DATA/EEN/TEKST/a.txt.TMP"}));
  });
  EXPECT_EQ(Inhoud("DATA/EEN/TEKST/a.txt"), "oud");
}

TEST_F(SchijfRoep, InstellingenStaanOpDeSchijfVoorZijDeVorigeVervangen) {
  Systeemroepen roepen;
  ASSERT_EQ(SchrijfIniIn(map_, HeelIni("nieuw")).stap, SchrijfStap::Klaar);
  EXPECT_EQ(roepen.NeemNaarSchijf(), (Paden{map_, map_ / "LIJNBOOM.TMP"}));
  roepen.Faal(Roep::NaarSchijf, 1, EIO);
  EXPECT_EQ(SchrijfIniIn(map_, HeelIni("nieuwer")).stap, SchrijfStap::Schrijven);
  EXPECT_EQ(Ini(), HeelIni("nieuw"));
}

TEST_F(SchijfRoep, OverschrijvenGaatNaarDeSchijf) {
  Schrijf("a", "oud");
  Bestandswerk werk;
  Systeemroepen roepen;
  roepen.Faal(Roep::NaarSchijf, 1, EIO);
  EXPECT_EQ(werk.Overschrijf(map_ / "a", "nieuw").stap, SchrijfStap::Schrijven);
  EXPECT_EQ(roepen.NeemNaarSchijf(), In({"a"}));
}

TEST_F(SchijfRoep, EenLeesfoutHalverwegeLaatGeenHalveInhoud) {
  Schrijf("a", "inhoud");
  Systeemroepen roepen;
  std::string inhoud;
  // The second call would tell that the file has ended.
  roepen.Faal(Roep::Lees, 2, EIO);
  EXPECT_TRUE(LeesHeelBestand(map_ / "a", inhoud));
  EXPECT_EQ(inhoud, "");
}

}  // namespace
}  // namespace lb77
