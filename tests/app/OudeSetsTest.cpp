#include <gmock/gmock.h>

#include <chrono>

#include "app/KopieBestanden.h"
#include "app/OudeSets.h"
#include "app/SessieToets.h"
#include "app/ZonderRechten.h"
#include "steun/Bestandsstelsel.h"

namespace lb77 {
namespace {

// A disk with one family in lower case, and its places in the directory above.
class OudeSetsTest : public SessieToets {
 protected:
  const std::filesystem::path disk_ = map_ / "disk";
  void SetUp() override {
    Schrijf("disk/familie/familie.prs", "personen");
    Schrijf("disk/familie/familie.rlt", "relaties");
    Schrijf("disk/familie/familie.opm", "regels");
    Schrijf("disk/plaats.plt", "plaatsen");
  }
  [[nodiscard]] SetPaden Doel(std::string_view naam = "FAM2") const {
    return SetPaden::Van(map_ / "DATA", naam);
  }
  static std::vector<std::string> Namen(const std::vector<OudeSet>& sets) {
    std::vector<std::string> uit;
    for (const OudeSet& set : sets) uit.push_back(set.naam);
    return uit;
  }
  [[nodiscard]] OudeSet Eerste() const { return ZoekOudeSets(disk_).at(0); }
};

TEST_F(OudeSetsTest, VindtFamiliesInDeMapEnInDeMappenEronder) {
  Schrijf("disk/ANDER.PRS", "x");
  Schrijf("disk/familie/dieper/niet.prs", "x");
  Schrijf("disk/teveelletters.prs", "x");
  std::filesystem::create_directories(disk_ / "map.prs");
  if (kKoppelingen) {
    std::filesystem::create_directory_symlink(disk_ / "familie", disk_ / "koppeling");
  }
  const auto sets = ZoekOudeSets(disk_);
  EXPECT_THAT(Namen(sets), testing::ElementsAre("ANDER", "FAMILIE"));
  EXPECT_EQ(sets[1].map, disk_ / "familie");
  EXPECT_EQ(sets[1].Pad(BestandSoort::Opmerkingen),
            disk_ / (kKastTelt ? "familie/familie.opm" : "familie/familie.OPM"));
  EXPECT_THAT(ZoekOudeSets(map_ / "weg"), testing::IsEmpty());
}

TEST_F(OudeSetsTest, ZonderEigenPlaatsenGeldenDeGemeenschappelijke) {
  EXPECT_EQ(Eerste().centraal, disk_ / (kKastTelt ? "plaats.plt" : "PLAATS.PLT"));
  EXPECT_EQ(Ontbrekend(Eerste()), "");
  Schrijf("disk/familie/PLAATS.PLT", "nader");
  EXPECT_EQ(Eerste().centraal, disk_ / "familie/PLAATS.PLT");
  Schrijf("disk/familie/familie.plt", "eigen");
  EXPECT_EQ(Eerste().centraal, "");
}

TEST_F(OudeSetsTest, NoemtWatOntbreekt) {
  std::filesystem::remove(disk_ / "plaats.plt");
  std::filesystem::remove(disk_ / "familie/familie.rlt");
  EXPECT_EQ(Ontbrekend(Eerste()), "Relatiebestand, Plaatsbestand");
}

TEST_F(OudeSetsTest, EenKopieHeeftAllesOnderZijnNieuweNaamEnDeBronBlijft) {
  Schrijf("disk/familie/tekst/brief.txt", "brief");
  Schrijf("disk/familie/JOURNAAL/00000001.LBJ", "journaal");
  MapInhoud voor;
  ASSERT_FALSE(LeesMap(disk_, voor));
  EXPECT_FALSE(KopieerOudeSet(Eerste(), Doel()));
  EXPECT_EQ(Inhoud("DATA/FAM2/FAM2.PRS"), "personen");
  EXPECT_EQ(Inhoud("DATA/FAM2/FAM2.RLT"), "relaties");
  EXPECT_EQ(Inhoud("DATA/FAM2/FAM2.OPM"), "regels");
  EXPECT_EQ(Inhoud("DATA/FAM2/FAM2.PLT"), "plaatsen");
  EXPECT_EQ(Inhoud("DATA/FAM2/TEKST/brief.txt"), "brief");
  EXPECT_EQ(Inhoud("DATA/FAM2/JOURNAAL/00000001.LBJ"), "journaal");
  EXPECT_FALSE(Bestaat("DATA/FAM2.NEW1"));
  MapInhoud na;
  ASSERT_FALSE(LeesMap(disk_, na));
  EXPECT_EQ(na, voor);
}

TEST_F(OudeSetsTest, WatErAlStaatWordtNietOverschreven) {
  for (const char* naam : {"DATA/FAM2/FAM2.PRS", "DATA/fam2/iets"}) {
    std::filesystem::remove_all(map_ / "DATA");
    Schrijf(naam, "van mij");
    EXPECT_EQ(KopieerOudeSet(Eerste(), Doel()).tekst, "Bestand bestaat al");
    EXPECT_EQ(KoppelOudeSet(Eerste(), Doel()).tekst, "Bestand bestaat al");
    EXPECT_EQ(Inhoud(naam), "van mij");
  }
}

TEST_F(OudeSetsTest, EenHalveKopieVerdwijntWeer) {
  Schrijf("DATA/FAM2.NEW1", "van een ander");
  OudeSet set = Eerste();
  set.pad.at(IndexVan(BestandSoort::Opmerkingen)) = disk_ / "weg.opm";
  EXPECT_EQ(KopieerOudeSet(set, Doel()).tekst, "Bestand niet gevonden");
  EXPECT_FALSE(Bestaat("DATA/FAM2"));
  EXPECT_FALSE(Bestaat("DATA/FAM2.NEW2"));
  EXPECT_EQ(Inhoud("DATA/FAM2.NEW1"), "van een ander");
}

TEST_F(OudeSetsTest, EenDataDirectoryDieNietTeMakenIsGeeftEenFout) {
  Schrijf("DATA", "een bestand");
  EXPECT_TRUE(KopieerOudeSet(Eerste(), Doel()));
  EXPECT_TRUE(KoppelOudeSet(Eerste(), Doel()));
  EXPECT_EQ(Inhoud("DATA"), "een bestand");
}

TEST_F(OudeSetsTest, TerPlaatseIsEenKoppelingMetEigenPlaatsen) {
  if (!kKoppelingen) GTEST_SKIP() << kZonderKoppelingen;
  EXPECT_FALSE(KoppelOudeSet(Eerste(), Doel("FAMILIE")));
  EXPECT_TRUE(std::filesystem::is_symlink(map_ / "DATA/FAMILIE"));
  EXPECT_EQ(Inhoud("DATA/FAMILIE/familie.prs"), "personen");
  EXPECT_EQ(Inhoud("disk/familie/familie.PLT"), "plaatsen");
  EXPECT_EQ(Inhoud("disk/plaats.plt"), "plaatsen");
}

TEST_F(OudeSetsTest, WatAlInDeDataDirectoryStaatHeeftGeenKoppelingNodig) {
  std::filesystem::rename(disk_, map_ / "DATA");
  EXPECT_FALSE(KoppelOudeSet(ZoekOudeSets(map_ / "DATA").at(0), Doel("FAMILIE")));
  EXPECT_FALSE(std::filesystem::is_symlink(map_ / "DATA/familie"));
  EXPECT_EQ(Inhoud("DATA/familie/familie.PLT"), "plaatsen");
}

TEST_F(OudeSetsTest, EenMapDieNietTeLezenIsWordtGenoemd) {
  OnleesbareMap onleesbaar;
  EXPECT_FALSE(ZoekOudeSets(disk_, &onleesbaar).empty());
  EXPECT_FALSE(onleesbaar.fout);
  EXPECT_TRUE(ZoekOudeSets(map_ / "weg", &onleesbaar).empty());
  EXPECT_EQ(onleesbaar.map, map_ / "weg");
  EXPECT_TRUE(onleesbaar.fout);
  if (!ZonderRechten::kKan) return;
  const ZonderRechten rechten(disk_ / "familie", std::filesystem::perms(0));
  EXPECT_TRUE(ZoekOudeSets(disk_, &onleesbaar).empty());
  EXPECT_EQ(onleesbaar.map, disk_ / "familie");
  EXPECT_EQ(onleesbaar.fout.tekst, "Geen toegang");
}

TEST_F(OudeSetsTest, KentDeSetsDieEenDataDirectoryZelfHeeft) {
  Schrijf("DATA/jansen/jansen.prs", "x");
  Schrijf("DATA/LEEG/brief.txt", "x");
  Schrijf("DATA/ANDERS/NAAM.PRS", "x");
  Schrijf("DATA/TEVEELLETTERS/TEVEELLETTERS.PRS", "x");
  Schrijf("DATA/LOS.PRS", "x");
  std::vector<std::string> namen = {"JANSEN"};
  if (kKoppelingen) {
    std::filesystem::create_directory_symlink(disk_ / "familie", map_ / "DATA/FAMILIE");
    namen = {"FAMILIE", "JANSEN"};
  }
  EXPECT_EQ(SetsIn(map_ / "DATA"), namen);
  EXPECT_EQ(SetsIn(map_ / "data"), namen);
  EXPECT_THAT(SetsIn(map_ / "weg"), testing::IsEmpty());
}

TEST_F(OudeSetsTest, EenKopieHoudtDeTijdVanHaarBestanden) {
  const auto toen =
      std::filesystem::file_time_type::clock::now() - std::chrono::hours(24 * 365 * 10);
  std::filesystem::last_write_time(disk_ / "familie/familie.rlt", toen);
  ASSERT_FALSE(KopieerOudeSet(Eerste(), Doel()));
  const auto verschil = std::filesystem::last_write_time(map_ / "DATA/FAM2/FAM2.RLT") - toen;
  EXPECT_LT(std::chrono::abs(verschil), std::chrono::seconds(2));
}

// The journal of another family in that directory stays behind.
TEST_F(OudeSetsTest, EenKopieNeemtAlleenHaarEigenJournaalMee) {
  Schrijf("disk/EEN.PRS", "een");
  Schrijf("disk/TWEE.PRS", "twee");
  Schrijf("disk/JOURNAAL/00000001.HND", "van wie");
  Schrijf("disk/JOURNAAL.TWEE/00000002.HND", "van twee");
  const auto sets = ZoekOudeSets(disk_);
  ASSERT_EQ(sets.at(0).naam, "EEN");
  ASSERT_FALSE(KopieerOudeSet(sets.at(0), Doel("EEN")));
  ASSERT_FALSE(KopieerOudeSet(sets.at(2), Doel("TWEE")));
  EXPECT_FALSE(Bestaat("DATA/EEN/JOURNAAL"));
  EXPECT_EQ(Inhoud("DATA/TWEE/JOURNAAL/00000002.HND"), "van twee");
  EXPECT_FALSE(Bestaat("DATA/TWEE/JOURNAAL/00000001.HND"));
}

TEST_F(OudeSetsTest, EenKoppelingGaatWegZonderWatErAchterLigt) {
  if (!kKoppelingen) GTEST_SKIP() << kZonderKoppelingen;
  MapInhoud voor;
  ASSERT_FALSE(LeesMap(disk_, voor));
  const OudeSet set = Eerste();
  ASSERT_FALSE(KoppelOudeSet(set, Doel("FAMILIE")));
  EXPECT_TRUE(LigtErAl(set, Doel("FAMILIE")));
  RuimKoppeling(set, Doel("FAMILIE"), true);
  EXPECT_TRUE(Bestaat("DATA/FAMILIE"));
  RuimKoppeling(set, Doel("FAMILIE"), false);
  EXPECT_FALSE(Bestaat("DATA/FAMILIE"));
  MapInhoud na;
  ASSERT_FALSE(LeesMap(disk_, na));
  EXPECT_EQ(na, voor);
}

}  // namespace
}  // namespace lb77
