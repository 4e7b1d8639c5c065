// Damaged files: cut at every length, full of NUL, full of noise.
#include <gtest/gtest.h>

#include <random>

#include "steun/ProefSet.h"
#include "store/NepPlaatsVraag.h"

using namespace lb77;

namespace {

void Vul(ProefSet& set) {
  const auto man = set.bouw.Man("Jan", "Jansen");
  const auto vrouw = set.bouw.Vrouw("Griet", "Pieters");
  set.bouw.Relatie(man, vrouw, {set.bouw.Man("Piet", "Jansen")});
  set.bouw.Plaats("Delft", "ZH");
  set.bouw.Plaats("Leiden", "ZH");
  set.bouw.OpmerkingBijPersoon(man, 4096, {"een", "twee"});
  set.bouw.OpmerkingBijPersoon(man, 1, {"drie"});
}

// Everything that reads, over every number that could be of use. Nothing is expected of it but that
// it ends, and that no read goes past a buffer.
void LeesAlles(ProefSet& set, std::int16_t tot) {
  set.Persoon.AantalRecords();
  set.Relatie.AantalRecords();
  set.Plaats.AantalRecords();
  set.Opmerking.AantalRecords();
  std::string voor;
  std::string achter;
  Huwtab huwtab{};
  Kindtab kindtab{};
  for (std::int16_t nr = 0; nr <= tot; ++nr) {
    set.Persoon.HeleNaam(nr, voor, achter, "?");
    set.Persoon.Periode(nr);
    set.Persoon.GebDatum10();
    set.Persoon.BegrDatum();
    set.Persoon.AchterNaamVVC();
    set.Persoon.AantalHuw(nr);
    EXPECT_LE(set.Persoon.VulHuwtab(nr, huwtab).aantal, 5);
    EXPECT_LE(set.Relatie.VulKindtab(nr, kindtab).aantal, 29);
    set.Relatie.WetHuwDatum10();
    set.Plaats.Naam2(nr);
    set.Opmerking.OpmerkingTekst(0x7FFF, nr, 4096, 2, false);
    set.Opmerking.RecordnrEindeKetting(nr);
    set.Opmerking.BepaalOpmCode(nr);
  }
  NepPlaatsVraag niemand;
  EXPECT_LE(set.Plaats.Nr("Nergens", 0, "", -1, niemand), 32767);
}

void Vervang(ProefSet& set, const std::filesystem::path& pad, const std::string& bytes) {
  set.bestanden.SluitAlles();
  SchrijfBytes(pad, bytes);
  set.Heropen();
}

std::string Ruis(std::mt19937& toeval, std::size_t lengte) {
  std::string bytes(lengte, '\0');
  for (char& byte : bytes) byte = static_cast<char>(toeval() & 0xFFU);
  return bytes;
}

struct SchadeTest : ::testing::Test {
  SchadeTest() { Vul(set); }
  std::array<std::filesystem::path, 4> Paden() const {
    return {set.paden.prs, set.paden.rlt, set.paden.opm, set.paden.plt};
  }
  ProefSet set;
};

}  // namespace

TEST_F(SchadeTest, ElkBestandOpElkeLengteAfgekapt) {
  for (const auto& pad : Paden()) {
    const std::string heel = LeesBytes(pad);
    for (std::size_t lengte = 0; lengte <= heel.size(); ++lengte) {
      Vervang(set, pad, heel.substr(0, lengte));
      LeesAlles(set, 6);
    }
    EXPECT_EQ(LeesBytes(pad), heel);
  }
}

TEST_F(SchadeTest, EenAfgekaptePersoonIsErAlsZijnSondeErIs) {
  const std::string heel = LeesBytes(set.paden.prs);
  for (std::size_t lengte = 0; lengte <= 128; ++lengte) {
    Vervang(set, set.paden.prs, heel.substr(0, 3 * 128 + lengte));
    const bool verwacht = lengte > 83;
    EXPECT_EQ(set.Persoon.Lees(4), verwacht) << lengte;
    EXPECT_EQ(set.Persoon.VoorNaamTrue(), verwacht ? "Piet" : "");
    EXPECT_EQ(set.Persoon.RelNrOuders(), lengte > 90 ? 2 : 0);
    EXPECT_EQ(set.Persoon.AantalRecords(), verwacht ? 4 : 3);
  }
}

TEST_F(SchadeTest, EenAfgekapteRelatieIsErAlsHaarSondeErIs) {
  const std::string heel = LeesBytes(set.paden.rlt);
  for (std::size_t lengte = 0; lengte <= 64; ++lengte) {
    Vervang(set, set.paden.rlt, heel.substr(0, 64 + lengte));
    EXPECT_EQ(set.Relatie.Lees(2), lengte > 16) << lengte;
  }
}

TEST_F(SchadeTest, EenAfgekaptePlaatsIsErAlsHaarSondeErIs) {
  const std::string heel = LeesBytes(set.paden.plt);
  for (std::size_t lengte = 0; lengte <= 27; ++lengte) {
    Vervang(set, set.paden.plt, heel.substr(0, 2 * 27 + lengte));
    EXPECT_EQ(set.Plaats.Lees(3), lengte >= 2) << lengte;
  }
}

TEST_F(SchadeTest, EenAfgekapteOpmerkingIsErAlsHaarSondeErIs) {
  const std::string heel = LeesBytes(set.paden.opm);
  for (std::size_t lengte = 0; lengte <= 96; ++lengte) {
    Vervang(set, set.paden.opm, heel.substr(0, 3 * 96 + lengte));
    set.volgers.HuidigOpmNr = 4;
    EXPECT_EQ(set.Opmerking.Lees(), lengte > 90) << lengte;
  }
}

TEST_F(SchadeTest, EenAfgekaptAdministratierecordIsErAlsZijnSondeErIs) {
  const std::string heel = LeesBytes(set.paden.prs);
  for (const std::size_t lengte : {0U, 57U, 83U, 84U, 127U, 128U}) {
    Vervang(set, set.paden.prs, heel.substr(0, lengte));
    static_cast<void>(set.Getoond());
    EXPECT_EQ(set.Persoon.AantalInAdmin(), lengte > 83 ? 3 : 0) << lengte;
    EXPECT_EQ(set.Getoond().empty(), lengte > 83);
  }
}

TEST_F(SchadeTest, BestandenVolNul) {
  for (const auto& pad : Paden()) Vervang(set, pad, std::string(5000, '\0'));
  LeesAlles(set, 40);
  EXPECT_FALSE(set.Persoon.Lees(2));
  EXPECT_FALSE(set.Relatie.Lees(2));
  EXPECT_FALSE(set.Plaats.Lees(2));
  set.volgers.HuidigOpmNr = 2;
  EXPECT_FALSE(set.Opmerking.Lees());
}

TEST_F(SchadeTest, BestandenVolRuisEindigenInMeldingen) {
  std::mt19937 toeval(77);
  for (int ronde = 0; ronde < 30; ++ronde) {
    for (const auto& pad : Paden()) Vervang(set, pad, Ruis(toeval, 2000 + ronde * 13U));
    LeesAlles(set, 30);
    static_cast<void>(set.Getoond());
  }
}

TEST_F(SchadeTest, RuisInGoedeBestandenLaatNietsVastlopen) {
  std::mt19937 toeval(78);
  std::array<std::string, 4> goed;
  for (std::size_t i = 0; i < goed.size(); ++i) goed[i] = LeesBytes(Paden()[i]);
  for (int ronde = 0; ronde < 200; ++ronde) {
    for (std::size_t i = 0; i < goed.size(); ++i) {
      std::string bytes = goed[i];
      for (int n = 0; n < 6; ++n) bytes[toeval() % bytes.size()] = static_cast<char>(toeval());
      Vervang(set, Paden()[i], bytes);
    }
    LeesAlles(set, 8);
    static_cast<void>(set.Getoond());
  }
}

TEST_F(SchadeTest, SchrijvenInBeschadigdeKettingenEindigt) {
  std::mt19937 toeval(79);
  const std::string goed = LeesBytes(set.paden.opm);
  for (int ronde = 0; ronde < 300; ++ronde) {
    std::string bytes = goed;
    for (int n = 0; n < 4; ++n) bytes[toeval() % bytes.size()] = static_cast<char>(toeval() % 8);
    Vervang(set, set.paden.opm, bytes);
    OpmRegels regels;
    regels[0] = "nieuw";
    if (ronde % 3 == 0) regels[1] = "en nog een";
    OpmRecnrs recnrs{};
    if (ronde % 2 == 0) recnrs = {2, 3};
    static_cast<void>(
        set.Opmerking.SchrijfOpmerking(regels, recnrs, 0, 2, 0, 2, 23, 1 << (ronde % 4)));
    EXPECT_EQ(LeesBytes(set.paden.prs).size(), 4U * 128U);
    static_cast<void>(set.Getoond());
  }
}
