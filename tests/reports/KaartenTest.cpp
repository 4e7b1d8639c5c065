// The cards of persons and relations.
#include <gtest/gtest.h>

#include <algorithm>

#include "reports/Kaarten.h"
#include "steun/Gouden.h"
#include "steun/KaartFamilie.h"
#include "steun/ProefSet.h"

namespace lb77 {
namespace {

class KaartenTest : public ::testing::Test {
 protected:
  KaartenTest() { set_.schrijfwijze.DatumScheider = '-'; }

  // The cards of a range, with plain line ends.
  std::string Kaarten(void (*schrijf)(TekstSchrijver&, const Gegevens&, std::int32_t),
                      std::int32_t van, std::int32_t tot) {
    TekstSchrijver uit;
    EXPECT_TRUE(uit.Open(set_.map / "uit.txt"));
    uit.ZetRechterMarge(breedte_);
    const Gegevens gegevens{set_.Persoon,   set_.Relatie, set_.Plaats,
                            set_.Opmerking, set_.volgers, set_.schrijfwijze};
    for (std::int32_t nr = van; nr <= tot; ++nr) schrijf(uit, gegevens, nr);
    EXPECT_TRUE(uit.Sluit());
    std::string tekst = LeesBytes(set_.map / "uit.txt");
    tekst.erase(std::remove(tekst.begin(), tekst.end(), '\r'), tekst.end());
    return tekst;
  }
  std::string Persoon(std::int32_t nr) { return Kaarten(SchrijfPersoonskaart, nr, nr); }
  std::string Relatie(std::int32_t nr) { return Kaarten(SchrijfRelatiekaart, nr, nr); }

  ProefSet set_;
  BouwFamilie& bouw_ = set_.bouw;
  int breedte_ = 60;
};

// Record 1, all that there are, and one behind them.
TEST_F(KaartenTest, ToontElkVeldVanElkePersoon) {
  BouwKaartFamilie(bouw_);
  VerwachtGouden("persoonskaarten.txt", Kaarten(SchrijfPersoonskaart, 1, 8));
}

TEST_F(KaartenTest, ToontElkVeldVanElkeRelatie) {
  BouwKaartFamilie(bouw_);
  VerwachtGouden("relatiekaarten.txt", Kaarten(SchrijfRelatiekaart, 1, 7));
}

TEST_F(KaartenTest, NummersDieGeenRecordHeeftGevenEenRegel) {
  EXPECT_EQ(Persoon(0), "Leesfout bij persoonsrecord 0\n");
  EXPECT_EQ(Persoon(1), "Leesfout bij persoonsrecord 1\n");
  EXPECT_EQ(Persoon(99999), "Leesfout bij persoonsrecord 99999\n");
  EXPECT_EQ(Relatie(0), "Leesfout bij relatierecord 0\n");
  EXPECT_EQ(Relatie(1), "Leesfout bij relatierecord 1\n");
  EXPECT_EQ(Relatie(32767), "Leesfout bij relatierecord 32767\n");
}

// Twenty children of a width of forty, with their continuation.
TEST_F(KaartenTest, KinderenGaanDoorOnderKolomTwintig) {
  const auto jan = bouw_.Man("Jan", "Smit");
  std::vector<std::int16_t> kinderen;
  for (int n = 0; n < 20; ++n) kinderen.push_back(bouw_.Man("Kind", "Smit"));
  const auto gezin = bouw_.Relatie(jan, 0, kinderen);
  breedte_ = 40;
  EXPECT_NE(Relatie(gezin).find("\nKind(eren)       : 3 4 5 6 7 8 9 10 11\n"
                                "                   12 13 14 15 16 17 18\n"
                                "                   19 20 21 22\n"
                                "Recordnr. opm.   : \n"),
            std::string::npos)
      << Relatie(gezin);
}

TEST_F(KaartenTest, SmalPapierBreektTekstOnderZijnWaarde) {
  const auto jan =
      bouw_.Man("Jan Pieter Hendrik", "Smit", {{"Beroep", "koopman in koffie en thee"}});
  breedte_ = 30;
  const std::string kaart = Persoon(jan);
  EXPECT_NE(kaart.find("Voornamen        : Jan Pieter\n                   Hendrik\n"),
            std::string::npos)
      << kaart;
  EXPECT_TRUE(kaart.ends_with("\n" + std::string(30, '=') + "\n")) << kaart;
}

// A bond with nothing but codes, a partner and a place that are not there.
TEST_F(KaartenTest, SchadeGeeftEenKaartMetWatErIs) {
  const auto jan =
      bouw_.Man("Jan", "Smit", {{"GebPlaats", "99"}, {"GebCorr", "T"}, {"OvlCorr", "C"}});
  const auto gezin = bouw_.Relatie(jan, 0);
  bouw_.WijzigPersoon(jan, {{"Relatie1", "44"}, {"Relatie3", "-77"}, {"Ouders", "-3"}});
  const std::string persoon = Persoon(jan);
  EXPECT_NE(persoon.find("Geboren          : \n                   tussen en\n\n"
                         "Overleden        : circa\nBegraven         : \n"),
            std::string::npos)
      << persoon;
  EXPECT_NE(persoon.find("Eigen relatie(s) : 44\nRelatie ouders   : -3\n"), std::string::npos)
      << persoon;
  bouw_.WijzigRelatie(gezin,
                      {{"ManNr", "99"}, {"VrouwNr", "-4"}, {"Kind1", "1"}, {"Kind15", "-2"}});
  const std::string relatie = Relatie(gezin);
  EXPECT_NE(
      relatie.find("\nMan              : 99 <onbekend>\n                   \?\?\?\?-\?\?\?\?\n"
                   "Vrouw            : -4 <onbekend>\n                   \?\?\?\?-\?\?\?\?\n"),
      std::string::npos)
      << relatie;
}

TEST_F(KaartenTest, EenNummerOnderNulStaatInGeenRij) {
  const auto jan = bouw_.Man("Jan", "Smit", {{"Relatie1", "-4"}, {"Relatie2", "2"}});
  const auto gezin = bouw_.Relatie(0, 0, {}, {{"Kind1", "5"}, {"Kind2", "-7"}, {"Kind3", "6"}});
  EXPECT_NE(Persoon(jan).find("\nEigen relatie(s) : 2\n"), std::string::npos) << Persoon(jan);
  EXPECT_NE(Relatie(gezin).find("\nKind(eren)       : 5 6\n"), std::string::npos) << Relatie(gezin);
}

TEST_F(KaartenTest, RecordEenIsGeenPartner) {
  const auto gezin = bouw_.Relatie(bouw_.Man("Jan", "Smit"), 0);
  bouw_.WijzigRelatie(gezin, {{"VrouwNr", "1"}});
  const std::string kaart = Relatie(gezin);
  EXPECT_NE(kaart.find("\nVrouw            : 1 <onbekend>\n                   \?\?\?\?-\?\?\?\?\n"),
            std::string::npos)
      << kaart;
}

TEST_F(KaartenTest, HetWoordVanEenBondStaatVoorZijnDatum) {
  const auto gezin = bouw_.Relatie(bouw_.Man("Jan", "Smit"), 0, {},
                                   {{"WHuwDatum", "20-04-1825"}, {"KHuwDatum", "21-04-1826"}});
  const auto huwelijk = [&](std::string_view corr) {
    bouw_.WijzigRelatie(gezin, {{"HuwCorr", corr}});
    const std::string kaart = Relatie(gezin);
    const std::size_t begin = kaart.find("Wettig Huw.");
    return kaart.substr(begin, kaart.find("\n\n", begin) - begin);
  };
  EXPECT_EQ(huwelijk("N"), "Wettig Huw.      : n\xe1 20-4-1825\nKerk. Huw.       : 21-4-1826");
  EXPECT_EQ(huwelijk("V"), "Wettig Huw.      : v\xf3\xf3r 20-4-1825\nKerk. Huw.       : 21-4-1826");
  bouw_.WijzigRelatie(gezin, {{"KHuwSch", "1"}});
  EXPECT_EQ(huwelijk("C"), "Wettig Huw.      : circa 20-4-1825\nScheiding        : 21-4-1826");
  EXPECT_EQ(huwelijk("T"), "Wettig Huw.      : \n                   tussen 20-4-1825 en 21-4-1826");
}

// Listed by its number like any other: with the children that it holds, and nobody else.
TEST_F(KaartenTest, EenVervolgVanEenRelatieHeeftZijnEigenKaart) {
  const auto jan = bouw_.Man("Jan", "Smit");
  std::vector<std::int16_t> kinderen;
  for (int n = 0; n < 20; ++n) kinderen.push_back(bouw_.Man("Kind", "Smit"));
  const auto gezin = bouw_.Relatie(jan, 0, kinderen);
  const std::string kaart = Relatie(gezin + 1);
  EXPECT_TRUE(kaart.starts_with("Relatienummer    :    3\n\nMan              : <onbekend>\n"))
      << kaart;
  EXPECT_NE(kaart.find("\nKind(eren)       : 17 18 19 20 21 22\n"), std::string::npos) << kaart;
}

}  // namespace
}  // namespace lb77
