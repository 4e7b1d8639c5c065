#include <gtest/gtest.h>

#include <array>
#include <set>

#include "steun/Bestandsstelsel.h"
#include "steun/FaalBestand.h"
#include "steun/TijdelijkeMap.h"
#include "store/Bestandenset.h"
#include "text/Letterlijk.h"

using namespace lb77;

namespace {

struct BestandensetTest : ::testing::Test {
  BestandensetTest() { std::filesystem::create_directories(paden.map); }
  TijdelijkeMap map;
  SetPaden paden = SetPaden::Van(map.Pad(), "PROEF");
  Bestandenset bestanden;
  std::array<char, 128> record{};
};

}  // namespace

TEST_F(BestandensetTest, OpenenMaaktDeVierBestanden) {
  EXPECT_FALSE(bestanden.OpenSet(paden));
  for (const BestandSoort soort : kBestandSoorten) {
    EXPECT_TRUE(bestanden.IsOpen(soort));
    EXPECT_EQ(bestanden.Bestand(soort).RecordLengte(), RecordLengteVan(soort));
  }
  for (const auto& pad : {paden.prs, paden.rlt, paden.opm, paden.plt}) {
    EXPECT_EQ(std::filesystem::file_size(pad), 0U);
  }
  EXPECT_FALSE(std::filesystem::exists(paden.centraal));
}

TEST_F(BestandensetTest, DeRecordlengtenZijnDieVanDeBestanden) {
  EXPECT_EQ(RecordLengteVan(BestandSoort::Personen), 128U);
  EXPECT_EQ(RecordLengteVan(BestandSoort::Relaties), 64U);
  EXPECT_EQ(RecordLengteVan(BestandSoort::Opmerkingen), 96U);
  EXPECT_EQ(RecordLengteVan(BestandSoort::Plaatsen), 27U);
}

TEST_F(BestandensetTest, EenBestandMetAndereHoofdlettersWordtGeopend) {
  SchrijfBytes(paden.map / "proef.prs", "oud");
  EXPECT_FALSE(bestanden.OpenSet(paden));
  EXPECT_EQ(bestanden.Bestand(BestandSoort::Personen).Lengte(), 3U);
  EXPECT_EQ(std::filesystem::exists(paden.prs), !kKastTelt);
}

TEST_F(BestandensetTest, DeEersteFoutEindigtHetOpenenEnWatErvoorLagBlijftOpen) {
  std::filesystem::create_directory(paden.rlt);
  const auto fout = bestanden.OpenSet(paden);
  ASSERT_TRUE(fout);
  EXPECT_EQ(fout->soort, BestandSoort::Relaties);
  EXPECT_EQ(fout->pad, paden.rlt);
  EXPECT_TRUE(bestanden.IsOpen(BestandSoort::Personen));
  EXPECT_FALSE(bestanden.IsOpen(BestandSoort::Relaties));
  EXPECT_FALSE(bestanden.IsOpen(BestandSoort::Opmerkingen));
  EXPECT_FALSE(std::filesystem::exists(paden.opm));
}

TEST_F(BestandensetTest, DeTekstVanEenFoutBijHetOpenenNoemtBestandPadNummerEnReden) {
  const std::array namen = {"Persoonsbestand", "Relatiebestand", "Opmerkingenbestand",
                            "Plaatsbestand"};
  for (std::size_t i = 0; i < namen.size(); ++i) {
    EXPECT_EQ(OpenFoutTekst({kBestandSoorten[i], u8"/data/Zoë/A.X", {70, "Geen toegang"}}),
              "Fout bij het openen van het " + std::string(namen[i]) + " (/data/" +
                  std::string("Zoë"_w) + "/A.X, 70 Geen toegang)");
  }
}

TEST_F(BestandensetTest, HetCentralePlaatsbestandStaatInVoorEenEigenDatErNietIs) {
  SchrijfBytes(paden.centraal, "centraal");
  paden.plt = map / "weg" / "PROEF.PLT";
  EXPECT_FALSE(bestanden.OpenSet(paden));
  EXPECT_EQ(bestanden.Bestand(BestandSoort::Plaatsen).Lengte(), 8U);
}

// A set as it came from a DOS disk: its own file would be made empty.
TEST_F(BestandensetTest, ZonderEigenPlaatsenWordtHetCentraleBestandGeopendEnGeenEigenGemaakt) {
  SchrijfBytes(map / "plaats.plt", "centraal");
  EXPECT_FALSE(bestanden.OpenSet(paden));
  EXPECT_EQ(bestanden.Bestand(BestandSoort::Plaatsen).Lengte(), 8U);
  EXPECT_FALSE(std::filesystem::exists(paden.plt));
}

TEST_F(BestandensetTest, EenLeegCentraalBestandStaatNergensVoorIn) {
  SchrijfBytes(paden.centraal, "");
  EXPECT_FALSE(bestanden.OpenSet(paden));
  EXPECT_TRUE(std::filesystem::exists(paden.plt));
}

TEST_F(BestandensetTest, EenEigenPlaatsbestandDatNietOpenGaatIsEenFout) {
  std::filesystem::create_directory(paden.plt);
  SchrijfBytes(paden.centraal, "centraal");
  const auto fout = bestanden.OpenSet(paden);
  ASSERT_TRUE(fout);
  EXPECT_EQ(fout->pad, paden.plt);
  EXPECT_EQ(fout->fout.tekst, "Pad is een directory");
  EXPECT_FALSE(bestanden.IsOpen(BestandSoort::Plaatsen));
}

TEST_F(BestandensetTest, EenKoppelingNaarNergensIsGeenAfwezigPlaatsbestand) {
  if (!kKoppelingen) GTEST_SKIP() << kZonderKoppelingen;
  std::filesystem::create_symlink(map / "weg" / "X.PLT", paden.plt);
  SchrijfBytes(paden.centraal, "centraal");
  EXPECT_TRUE(bestanden.OpenSet(paden));
}

TEST_F(BestandensetTest, GaanBeidePlaatsbestandenNietOpenDanNoemtDeFoutHetEigene) {
  paden.plt = map / "weg" / "PROEF.PLT";
  std::filesystem::create_directory(paden.centraal);
  const auto fout = bestanden.OpenSet(paden);
  ASSERT_TRUE(fout);
  EXPECT_EQ(fout->pad, paden.plt);
  EXPECT_EQ(fout->fout.tekst, "Bestand niet gevonden");
  EXPECT_TRUE(bestanden.IsOpen(BestandSoort::Opmerkingen));
}

TEST_F(BestandensetTest, VanDeVorigeSetBlijftNietsOpen) {
  ASSERT_FALSE(bestanden.OpenSet(paden));
  EXPECT_TRUE(bestanden.OpenSet(SetPaden::Van(map.Pad(), "WEG")));
  for (const BestandSoort soort : kBestandSoorten) EXPECT_FALSE(bestanden.IsOpen(soort));
}

TEST_F(BestandensetTest, EenGeslotenBestandMisluktInAlles) {
  for (const BestandSoort soort : kBestandSoorten) {
    RecordBestand& dicht = bestanden.Bestand(soort);
    EXPECT_EQ(dicht.Lees(1, record).fout.tekst, "Bestand is niet open");
    EXPECT_EQ(dicht.Schrijf(1, record).tekst, "Bestand is niet open");
    EXPECT_TRUE(dicht.Veiligstellen());
    EXPECT_EQ(dicht.Lengte(), 0U);
    EXPECT_EQ(dicht.Wijzigingen(), 0U);
    EXPECT_EQ(dicht.RecordLengte(), RecordLengteVan(soort));
  }
}

TEST_F(BestandensetTest, SluitenSluitEenOfAlle) {
  ASSERT_FALSE(bestanden.OpenSet(paden));
  bestanden.Sluit(BestandSoort::Opmerkingen);
  EXPECT_FALSE(bestanden.IsOpen(BestandSoort::Opmerkingen));
  EXPECT_TRUE(bestanden.IsOpen(BestandSoort::Personen));
  bestanden.SluitAlles();
  for (const BestandSoort soort : kBestandSoorten) EXPECT_FALSE(bestanden.IsOpen(soort));
}

TEST_F(BestandensetTest, DeStandVanEenBestandKomtNooitTerug) {
  std::set<std::uint64_t> gezien;
  const BestandSoort soort = BestandSoort::Plaatsen;
  const auto nieuw = [&] { return gezien.insert(bestanden.Stand(soort)).second; };
  EXPECT_TRUE(nieuw());
  for (int ronde = 0; ronde < 3; ++ronde) {
    ASSERT_FALSE(bestanden.OpenSet(paden));
    EXPECT_TRUE(nieuw());
    ASSERT_FALSE(bestanden.Bestand(soort).Schrijf(1, std::span(record).first(27)));
    EXPECT_TRUE(nieuw());
    static_cast<void>(bestanden.Bestand(soort).Lees(1, record));
    EXPECT_FALSE(nieuw());
    bestanden.SluitAlles();
    EXPECT_TRUE(nieuw());
  }
}

TEST_F(BestandensetTest, VeiligstellenProbeertAlleBestanden) {
  Storing storing;
  Bestandenset falend(FalendeOpener(storing));
  ASSERT_FALSE(falend.OpenSet(paden));
  EXPECT_FALSE(falend.Veiligstellen());
  EXPECT_EQ(storing.teller, 4);
  storing = {.bij = 2};
  EXPECT_EQ(falend.Veiligstellen().tekst, kSchrijfStoring);
  EXPECT_EQ(storing.teller, 4);
}

TEST_F(BestandensetTest, ZonderOpenBestandenValtErNietsVeiligTeStellen) {
  EXPECT_FALSE(bestanden.Veiligstellen());
}
