#include "app/DataVerhuizing.h"
#include "app/IniSysteem.h"
#include "app/KopieBestanden.h"
#include "app/SessieToets.h"
#include "app/ZonderRechten.h"
#include "steun/Bestandsstelsel.h"
#include "store/Platform.h"

namespace lb77 {
namespace {

// Two sets in the list, of which EEN is open.
class DataVerhuizingTest : public SessieToets {
 protected:
  std::string actief_;
  std::filesystem::path open_;  // where the set that is open would find its texts
  void SetUp() override {
    MaakSet("EEN");
    MaakSet("TWEE");
    Schrijf("DATA/EEN/TEKST/brief.txt", "brief");
    ZetIni("[Systeem]\nSet=EEN\n[Sets]\nSet1=EEN,Eerste\nSet2=TWEE,\n");
  }
  void Speelt(std::string_view script, std::string_view verslag,
              const Plek& plek = Plek::current()) {
    Verwacht(
        script, MetMenu([this](Hoofdmodule& hoofd, MenuWindow& menu) {
          ASSERT_TRUE(menu.Laad());
          DataVerhuizing verhuizing(hoofd, menu);
          IniSysteem vorm(hoofd, [&verhuizing](const std::filesystem::path& data) {
            return verhuizing.Mag(data);
          });
          hoofd.gesprek.ToonModaal(vorm);
          verhuizing.RondAf();
          actief_ = hoofd.ActieveSetNaam;
          open_ = hoofd.Ini.TekstDir();
          EXPECT_EQ(hoofd.bestanden.IsOpen(BestandSoort::Personen), hoofd.SetActief());
        }),
        "+ IniSysteem \"Systeem Instellingen - Systeem\"\n" + MetMap(verslag) + "\n- IniSysteem",
        plek);
  }
};

TEST_F(DataVerhuizingTest, MetJaGaanAlleFamiliesMeeEnDeOpenSetBlijftOpen) {
  MapInhoud voor;
  ASSERT_FALSE(LeesMap(map_ / "DATA", voor));
  Speelt("antwoord Ja\nvul DataDirTekst nieuw/plek\ndruk OKButton", R"(
      ? vraag Ja/Nee "Uw families staan in <map>/DATA.\nNaar <map>/nieuw/plek worden gekopieerd: EEN, TWEE.\nWat in de oude map staat blijft daar staan. Doorgaan ?" -> Ja)");
  EXPECT_EQ(actief_, "EEN");
  EXPECT_EQ(open_, map_ / "nieuw/plek/EEN/TEKST");
  EXPECT_TRUE(IniHeeft("Data=nieuw/plek"));
  EXPECT_TRUE(IniHeeft("Set=EEN"));
  EXPECT_EQ(Inhoud("nieuw/plek/EEN/TEKST/brief.txt"), "brief");
  EXPECT_EQ(Inhoud("nieuw/plek/TWEE/TWEE.PRS"), Inhoud("DATA/TWEE/TWEE.PRS"));
  MapInhoud na;
  ASSERT_FALSE(LeesMap(map_ / "DATA", na));
  EXPECT_EQ(na, voor);
}

TEST_F(DataVerhuizingTest, MetNeeBlijftAllesEnHetVensterOpen) {
  const std::string ini = Ini();
  Speelt("antwoord Nee\nvul DataDirTekst nieuw\ndruk OKButton\ndruk BackButton", R"(
      ? vraag Ja/Nee "Uw families staan in <map>/DATA.\nNaar <map>/nieuw worden gekopieerd: EEN, TWEE.\nWat in de oude map staat blijft daar staan. Doorgaan ?" -> Nee)");
  EXPECT_EQ(actief_, "EEN");
  EXPECT_EQ(open_, map_ / "DATA/EEN/TEKST");
  EXPECT_FALSE(Bestaat("nieuw"));
  EXPECT_FALSE(IniHeeft("Data=nieuw"));
}

TEST_F(DataVerhuizingTest, WatErAlStaatWordtGebruiktEnNietOverschreven) {
  std::filesystem::create_directories(map_ / "nieuw");
  std::filesystem::rename(map_ / "DATA/EEN", map_ / "nieuw/EEN");
  std::filesystem::remove_all(map_ / "DATA/TWEE");
  MaakSet("EEN");
  Schrijf("nieuw/EEN/EEN.PRS", Inhoud("DATA/EEN/EEN.PRS") + std::string(128, ' '));
  Speelt("antwoord Ja\nvul DataDirTekst nieuw\ndruk OKButton", R"(
      ? vraag Ja/Nee "Uw families staan in <map>/DATA.\nAl in <map>/nieuw, en voortaan gebruikt: EEN.\nIn geen van beide gevonden: TWEE.\nWat in de oude map staat blijft daar staan. Doorgaan ?" -> Ja)");
  EXPECT_EQ(Inhoud("nieuw/EEN/EEN.PRS").size(), 256U);
  EXPECT_EQ(open_, map_ / "nieuw/EEN/TEKST");
}

TEST_F(DataVerhuizingTest, WatNietTeKopierenIsHoudtAllesOpZijnPlaats) {
  Schrijf("nieuw/TWEE/brief.txt", "van mij");
  Speelt("antwoord Ja\nvul DataDirTekst nieuw\ndruk OKButton\ndruk BackButton", R"(
      ? vraag Ja/Nee "Uw families staan in <map>/DATA.\nNaar <map>/nieuw worden gekopieerd: EEN, TWEE.\nWat in de oude map staat blijft daar staan. Doorgaan ?" -> Ja
      ! stop "De bestanden van TWEE zijn niet gekopieerd\nBestand bestaat al")");
  EXPECT_EQ(actief_, "EEN");
  EXPECT_EQ(open_, map_ / "DATA/EEN/TEKST");
  EXPECT_FALSE(Bestaat("nieuw/EEN"));
  EXPECT_EQ(Inhoud("nieuw/TWEE/brief.txt"), "van mij");
  EXPECT_FALSE(IniHeeft("Data=nieuw"));
}

TEST_F(DataVerhuizingTest, EenSetDieEldersOpenIsVerhuistNiet) {
  Bestandsgreep ander;
  ASSERT_FALSE(ander.Open(map_ / "DATA/TWEE/TWEE.PRS"));
  ASSERT_FALSE(ander.Vergrendel());
  Speelt("antwoord Ja\nvul DataDirTekst nieuw\ndruk OKButton\ndruk BackButton", R"(
      ? vraag Ja/Nee "Uw families staan in <map>/DATA.\nNaar <map>/nieuw worden gekopieerd: EEN, TWEE.\nWat in de oude map staat blijft daar staan. Doorgaan ?" -> Ja
      ! stop "De bestanden van TWEE zijn niet gekopieerd\nBestand is in gebruik")");
  EXPECT_FALSE(Bestaat("nieuw/EEN"));
}

TEST_F(DataVerhuizingTest, EenKoppelingBlijftEenKoppeling) {
  if (!kKoppelingen) GTEST_SKIP() << kZonderKoppelingen;
  std::filesystem::rename(map_ / "DATA/TWEE", map_ / "disk");
  std::filesystem::create_directory_symlink(map_ / "disk", map_ / "DATA/TWEE");
  Schrijf("PLAATS.PLT", "van niemand");
  Speelt("antwoord Ja\nvul DataDirTekst nieuw\ndruk OKButton", R"(
      ? vraag Ja/Nee "Uw families staan in <map>/DATA.\nNaar <map>/nieuw worden gekopieerd: EEN, TWEE.\nWat in de oude map staat blijft daar staan. Doorgaan ?" -> Ja)");
  EXPECT_EQ(std::filesystem::read_symlink(map_ / "nieuw/TWEE"),
            std::filesystem::canonical(map_ / "disk"));
  EXPECT_TRUE(std::filesystem::is_symlink(map_ / "DATA/TWEE"));
}

TEST_F(DataVerhuizingTest, DezelfdeMapAndersGeschrevenVraagtNiets) {
  Speelt("vul DataDirTekst ./DATA/../DATA\nvul TempDirTekst even\ndruk OKButton", "");
  EXPECT_TRUE(IniHeeft("Tempdir=even"));
  EXPECT_EQ(actief_, "EEN");
}

TEST_F(DataVerhuizingTest, ZonderFamiliesIsErNietsTeVragen) {
  ZetIni("");
  Speelt("vul DataDirTekst nieuw\ndruk OKButton", "");
  EXPECT_TRUE(IniHeeft("Data=nieuw"));
}

// They went along by hand, or lie on a stick that is not there: the setting is all there is to change.
TEST_F(DataVerhuizingTest, WatNergensLigtHoudtNiemandTegen) {
  ZetIni("[Sets]\nSet1=WEG,\n");
  Verwacht("vul DataDirTekst nieuw\ndruk OKButton",
           MetMenu([](Hoofdmodule& hoofd, MenuWindow& menu) {
             DataVerhuizing verhuizing(hoofd, menu);
             IniSysteem vorm(hoofd, [&verhuizing](const std::filesystem::path& data) {
               return verhuizing.Mag(data);
             });
             hoofd.gesprek.ToonModaal(vorm);
             verhuizing.RondAf();
           }),
           "+ IniSysteem \"Systeem Instellingen - Systeem\"\n- IniSysteem");
  EXPECT_TRUE(IniHeeft("Data=nieuw"));
}

}  // namespace
}  // namespace lb77
