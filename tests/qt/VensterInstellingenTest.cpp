// What is remembered of windows.
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "Proefvorm.h"
#include "Vensterproef.h"
#include "qt/VensterInstellingen.h"
#include "qt/Vertaling.h"

namespace lb77 {
namespace {

TEST(VensterInstellingen, MatenEnMappenKomenTerug) {
  const QTemporaryDir map;
  {
    VensterInstellingen instellingen(PadVanQt(map.path()));
    EXPECT_FALSE(instellingen.Maat("ToonTekst"));
    EXPECT_FALSE(instellingen.IsVol("MenuWindow"));
    instellingen.BewaarMaat("ToonTekst", {800, 600});
    instellingen.BewaarVol("MenuWindow", true);
    instellingen.BewaarLaatsteMap("a|*.a", "/ergens");
    EXPECT_EQ(instellingen.Vergroting(), 0);
    instellingen.BewaarVergroting(-2);
  }
  EXPECT_TRUE(QFile::exists(map.filePath("lb77-venster.ini")));
  const VensterInstellingen later(PadVanQt(map.path()));
  EXPECT_EQ(later.Maat("ToonTekst"), QSize(800, 600));
  EXPECT_TRUE(later.IsVol("MenuWindow"));
  EXPECT_FALSE(later.IsVol("ToonTekst"));
  EXPECT_EQ(later.LaatsteMap("a|*.a"), QString("/ergens"));
  EXPECT_EQ(later.Vergroting(), -2);
}

TEST(VensterInstellingen, ZonderMapWordtNietsBewaard) {
  VensterInstellingen instellingen({});
  instellingen.BewaarMaat("ToonTekst", {800, 600});
  instellingen.BewaarVol("ToonTekst", true);
  instellingen.BewaarLaatsteMap("a", "/ergens");
  EXPECT_FALSE(instellingen.Maat("ToonTekst"));
  EXPECT_FALSE(instellingen.IsVol("ToonTekst"));
  EXPECT_EQ(instellingen.LaatsteMap("a"), QString());
}

TEST(VensterInstellingen, EenBeschadigdBestandKostAlleenEenOnthoudenMaat) {
  const QTemporaryDir map;
  QFile bestand(map.filePath("lb77-venster.ini"));
  ASSERT_TRUE(bestand.open(QIODevice::WriteOnly));
  bestand.write("[venster]\nToonTekst=onzin\nKlein=@Size(-3 0)\n\0\0[[[");
  bestand.close();
  const VensterInstellingen instellingen(PadVanQt(map.path()));
  EXPECT_FALSE(instellingen.Maat("ToonTekst"));
  EXPECT_FALSE(instellingen.Maat("Klein"));
}

class VenstermaatTest : public Vensterproef {};

TEST_F(VenstermaatTest, EenFormulierKomtTerugInDeMaatDieHetKreeg) {
  const QTemporaryDir map;
  QtGesprek metMap(PadVanQt(map.path()));
  QSize gekregen;
  for (int keer = 0; keer < 2; ++keer) {
    Proefvorm vorm(metMap);
    vorm.bijActief = [&] {
      if (keer == 0) {
        gekregen = Bovenste().size() + QSize(37, 0);
        Bovenste().resize(gekregen);
      } else {
        EXPECT_EQ(Bovenste().size(), gekregen);
      }
      vorm.Sluit();
    };
    metMap.ToonModaal(vorm);
  }
}

TEST_F(VenstermaatTest, EenKleinereMaatDanDeInhoudVraagtGeldtNiet) {
  const QTemporaryDir map;
  QSize eigen;
  {
    Proefvorm vorm(gesprek);
    vorm.bijActief = [&] {
      eigen = Bovenste().size();
      vorm.Sluit();
    };
    gesprek.ToonModaal(vorm);
  }
  VensterInstellingen(PadVanQt(map.path())).BewaarMaat("Proefvorm", {40, 30});
  QtGesprek metMap(PadVanQt(map.path()));
  Proefvorm vorm(metMap);
  vorm.bijActief = [&] {
    EXPECT_EQ(Bovenste().size(), eigen);
    vorm.Sluit();
  };
  metMap.ToonModaal(vorm);
}

TEST_F(VenstermaatTest, DeMaatVanEenGroterSchermWordtOpDezeAfgekapt) {
  const QTemporaryDir map;
  VensterInstellingen(PadVanQt(map.path())).BewaarMaat("Proefvorm", {5000, 4000});
  QtGesprek metMap(PadVanQt(map.path()));
  Proefvorm vorm(metMap);
  vorm.bijActief = [&] {
    EXPECT_LE(Bovenste().width(), 1024);
    EXPECT_LE(Bovenste().height(), 768);
    vorm.Sluit();
  };
  metMap.ToonModaal(vorm);
}

}  // namespace
}  // namespace lb77
