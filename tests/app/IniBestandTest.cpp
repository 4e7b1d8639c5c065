#ifndef _WIN32
#include <sys/stat.h>
#endif

#include "app/IniBestand.h"
#include "app/IniWerk.h"
#include "app/SessieToets.h"
#include "app/ZonderRechten.h"
#include "steun/Bestandsstelsel.h"
#include "steun/VolleSchijf.h"
#include "store/PlatformSlot.h"

namespace lb77 {
namespace {

class IniBestand : public SessieToets {
 protected:
  SchrijfUitslag SchrijfNieuw(std::string_view tekst) { return SchrijfIniIn(map_, tekst); }
  // What is read, without a message.
  std::string Gelezen() {
    const IniGelezen gelezen = LeesIniBestand(map_);
    EXPECT_EQ(gelezen.melding, "");
    EXPECT_FALSE(gelezen.fout) << gelezen.fout.tekst;
    return gelezen.inhoud;
  }
};

TEST_F(IniBestand, HetVorigeBestandWordtDeReserve) {
  EXPECT_EQ(SchrijfNieuw("een").stap, SchrijfStap::Klaar);
  EXPECT_FALSE(Bestaat("LB77_INI.BAK"));
  EXPECT_EQ(SchrijfNieuw("twee").stap, SchrijfStap::Klaar);
  EXPECT_EQ(SchrijfNieuw("drie").stap, SchrijfStap::Klaar);
  EXPECT_EQ(Ini(), "drie");
  EXPECT_EQ(Inhoud("LB77_INI.BAK"), "twee");
  EXPECT_FALSE(Bestaat("LIJNBOOM.TMP"));
}

TEST_F(IniBestand, EenBestandOnderEenAndereKastWordtGevonden) {
  Schrijf("lijnboom.ini", "oud");
  EXPECT_EQ(Gelezen(), "oud");
  EXPECT_EQ(SchrijfNieuw("nieuw").stap, SchrijfStap::Klaar);
  EXPECT_EQ(Bestaat("lijnboom.ini"), !kKastTelt);
  EXPECT_EQ(Ini(), "nieuw");
  EXPECT_EQ(Inhoud("LB77_INI.BAK"), "oud");
}

TEST_F(IniBestand, EenReserveDieEenDirectoryIsHoudtHetSchrijvenNietTegen) {
  Schrijf("LIJNBOOM.INI", "een");
  Schrijf("LB77_INI.BAK/vol", "x");
  EXPECT_EQ(SchrijfNieuw("twee").stap, SchrijfStap::Klaar);
  EXPECT_EQ(Ini(), "twee");
}

TEST_F(IniBestand, ZonderDirectoryMisluktHetOpenen) {
  const SchrijfUitslag uitslag = SchrijfIniIn(map_ / "weg", "x");
  EXPECT_EQ(uitslag.stap, SchrijfStap::Openen);
  EXPECT_TRUE(uitslag.fout);
}

TEST_F(IniBestand, WatGeenBestandIsIsEenFoutEnBlijftStaan) {
  Schrijf("LIJNBOOM.INI/vol", "x");
  EXPECT_EQ(LeesIniBestand(map_).fout.tekst, "Pad is een directory");
  SchrijfUitslag uitslag = SchrijfNieuw("nieuw");
  EXPECT_EQ(uitslag.stap, SchrijfStap::Openen);
  EXPECT_EQ(uitslag.fout.tekst, "Pad is een directory");
  EXPECT_TRUE(Bestaat("LIJNBOOM.INI/vol"));
  EXPECT_FALSE(Bestaat("LIJNBOOM.TMP"));
#ifndef _WIN32
  std::filesystem::remove_all(map_ / "LIJNBOOM.INI");
  ASSERT_EQ(::mkfifo((map_ / "LIJNBOOM.INI").c_str(), 0600), 0);
  EXPECT_EQ(LeesIniBestand(map_).fout.tekst, "Pad is geen gewoon bestand");
  uitslag = SchrijfNieuw("nieuw");
  EXPECT_EQ(uitslag.stap, SchrijfStap::Openen);
  EXPECT_EQ(uitslag.fout.tekst, "Pad is geen gewoon bestand");
  EXPECT_TRUE(std::filesystem::is_fifo(map_ / "LIJNBOOM.INI"));
#endif
}

#ifndef _WIN32
TEST_F(IniBestand, PijpenOpDePlaatsVanDeKopieenHoudenNietsOp) {
  ASSERT_EQ(::mkfifo((map_ / "LIJNBOOM.TMP").c_str(), 0600), 0);
  ASSERT_EQ(::mkfifo((map_ / "LB77_INI.BAK").c_str(), 0600), 0);
  EXPECT_EQ(LeesIniBestand(map_).fout.nummer, kBestandNietGevonden);
  EXPECT_EQ(SchrijfNieuw("een").stap, SchrijfStap::Klaar);
  EXPECT_EQ(SchrijfNieuw("twee").stap, SchrijfStap::Klaar);
  EXPECT_EQ(Inhoud("LB77_INI.BAK"), "een");
  EXPECT_FALSE(Bestaat("LIJNBOOM.TMP"));
}
#endif

TEST_F(IniBestand, EenBestandVanMeerDanEenMegabyteWordtGeweigerd) {
  const std::string groot(1024 * 1024, '\n');
  Schrijf("LIJNBOOM.INI", groot);
  EXPECT_EQ(Gelezen().size(), groot.size());
  Schrijf("LIJNBOOM.INI", groot + "x");
  const IniGelezen gelezen = LeesIniBestand(map_);
  EXPECT_EQ(gelezen.fout.tekst, "Bestand te groot");
  EXPECT_EQ(gelezen.inhoud, "");
  EXPECT_EQ(SchrijfNieuw("nieuw").stap, SchrijfStap::Openen);
  EXPECT_EQ(Ini().size(), groot.size() + 1);
}

TEST_F(IniBestand, DoorEenKoppelingWordtHeenGeschreven) {
  if (!kKoppelingen) GTEST_SKIP() << kZonderKoppelingen;
  Schrijf("elders/mijn.ini", "een");
  std::filesystem::create_symlink("elders/mijn.ini", map_ / "stap");
  std::filesystem::create_symlink("stap", map_ / "LIJNBOOM.INI");
  EXPECT_EQ(Gelezen(), "een");
  EXPECT_EQ(SchrijfNieuw("twee").stap, SchrijfStap::Klaar);
  EXPECT_TRUE(std::filesystem::is_symlink(map_ / "LIJNBOOM.INI"));
  EXPECT_EQ(Inhoud("elders/mijn.ini"), "twee");
  EXPECT_EQ(Inhoud("LB77_INI.BAK"), "een");
  EXPECT_FALSE(Bestaat("elders/mijn.ini.TMP"));
}

TEST_F(IniBestand, EenKoppelingNaarNergensKrijgtHaarBestand) {
  if (!kKoppelingen) GTEST_SKIP() << kZonderKoppelingen;
  std::filesystem::create_symlink("elders/mijn.ini", map_ / "LIJNBOOM.INI");
  EXPECT_EQ(SchrijfNieuw("een").stap, SchrijfStap::Openen);
  std::filesystem::create_directory(map_ / "elders");
  EXPECT_EQ(SchrijfNieuw("een").stap, SchrijfStap::Klaar);
  EXPECT_TRUE(std::filesystem::is_symlink(map_ / "LIJNBOOM.INI"));
  EXPECT_EQ(Inhoud("elders/mijn.ini"), "een");
}

TEST_F(IniBestand, EenKoppelingNaarZichzelfIsEenFout) {
  if (!kKoppelingen) GTEST_SKIP() << kZonderKoppelingen;
  std::filesystem::create_symlink("LIJNBOOM.INI", map_ / "LIJNBOOM.INI");
  EXPECT_EQ(LeesIniBestand(map_).fout.nummer, 75);
  EXPECT_EQ(SchrijfNieuw("een").stap, SchrijfStap::Openen);
}

TEST_F(IniBestand, HetNieuweBestandHoudtDeRechtenVanHetVorige) {
  if (!kRechten) GTEST_SKIP() << kZonderRechten;
  Schrijf("LIJNBOOM.INI", "een");
  std::filesystem::permissions(map_ / "LIJNBOOM.INI", std::filesystem::perms(0600));
  EXPECT_EQ(SchrijfNieuw("twee").stap, SchrijfStap::Klaar);
  EXPECT_EQ(std::filesystem::status(map_ / "LIJNBOOM.INI").permissions(),
            std::filesystem::perms(0600));
}

TEST_F(IniBestand, WieNietAanDeBeurtKomtSchrijftNiet) {
  Schrijf("LIJNBOOM.INI", "een");
  Slot slot;
  ASSERT_FALSE(slot.Neem(map_));
  const SchrijfUitslag uitslag = SchrijfNieuw("twee");
  EXPECT_EQ(uitslag.stap, SchrijfStap::Openen);
  EXPECT_EQ(uitslag.fout.tekst, "Bestand is in gebruik");
  EXPECT_EQ(Ini(), "een");
  EXPECT_EQ(Gelezen(), "een");
}

TEST_F(IniBestand, DeMakerZietWatErStaat) {
  const auto schrijf = [this](const std::string& erBij) {
    return SchrijfIniBestand(map_,
                             [&](const std::string* huidig) {
                               return (huidig != nullptr ? *huidig : "geen") + erBij;
                             })
        .stap;
  };
  EXPECT_EQ(schrijf(" een"), SchrijfStap::Klaar);
  EXPECT_EQ(schrijf(" twee"), SchrijfStap::Klaar);
  EXPECT_EQ(Ini(), "geen een twee");
}

TEST_F(IniBestand, EenVolleSchijfLaatHetBestandEnDeReserveStaan) {
  if (!VolleSchijf::kKan) GTEST_SKIP() << VolleSchijf::kWaarom;
  EXPECT_EQ(SchrijfNieuw("een").stap, SchrijfStap::Klaar);
  EXPECT_EQ(SchrijfNieuw("twee").stap, SchrijfStap::Klaar);
  {
    const VolleSchijf vol(100);
    const SchrijfUitslag uitslag = SchrijfNieuw(std::string(2000, 'x'));
    EXPECT_EQ(uitslag.stap, SchrijfStap::Schrijven);
    EXPECT_EQ(uitslag.fout.tekst, "Bestand te groot");
  }
  EXPECT_EQ(Ini(), "twee");
  EXPECT_EQ(Inhoud("LB77_INI.BAK"), "een");
  EXPECT_FALSE(Bestaat("LIJNBOOM.TMP"));
}

TEST_F(IniBestand, DeMeldingVanEenVolleSchijfKomtOpHetScherm) {
  if (!VolleSchijf::kKan) GTEST_SKIP() << VolleSchijf::kWaarom;
  ZetIni("[Systeem]\nSetOms=bewaard\n");
  Verwacht(
      "", Met([](Hoofdmodule& hoofd) {
        ASSERT_TRUE(hoofd.Ini.IniLees());
        const VolleSchijf vol(100);
        hoofd.Ini.IniSchrijf();
        EXPECT_FALSE(hoofd.Ini.EindeGevraagd());
      }),
      R"(! stop "Fout bij het schrijven van het IniBestand (LIJNBOOM.INI)\nBestand te groot\nDe vorige instellingen blijven bewaard.")");
  EXPECT_EQ(Ini(), "[Systeem]\r\nSetOms=bewaard\r\n");
}

TEST_F(IniBestand, InEenDirectoryZonderRechtenWordtHetBestandZelfOverschreven) {
  if (!VolleSchijf::kKan) GTEST_SKIP() << VolleSchijf::kWaarom;
  if (!ZonderRechten::kKan) GTEST_SKIP() << ZonderRechten::kWaarom;
  Schrijf("LIJNBOOM.INI", "een");
  std::filesystem::permissions(map_ / "LIJNBOOM.INI", std::filesystem::perms(0666));
  const ZonderRechten rechten(map_);
  EXPECT_EQ(SchrijfNieuw("twee").stap, SchrijfStap::Klaar);
  EXPECT_EQ(Ini(), "twee");
  const VolleSchijf vol(100);
  EXPECT_EQ(SchrijfNieuw(std::string(2000, 'x')).stap, SchrijfStap::Schrijven);
  EXPECT_EQ(Ini(), "twee");
}

TEST_F(IniBestand, EenBestandZonderRechtenWordtNietGelezenEnNietGeschreven) {
  if (!ZonderRechten::kKan) GTEST_SKIP() << ZonderRechten::kWaarom;
  Schrijf("LIJNBOOM.INI", "een");
  std::filesystem::permissions(map_ / "LIJNBOOM.INI", std::filesystem::perms(0));
  {
    const ZonderRechten rechten(map_);
    EXPECT_EQ(LeesIniBestand(map_).fout.tekst, "Geen toegang");
    const SchrijfUitslag uitslag = SchrijfNieuw("twee");
    EXPECT_EQ(uitslag.stap, SchrijfStap::Openen);
    EXPECT_EQ(uitslag.fout.tekst, "Geen toegang");
  }
  std::filesystem::permissions(map_ / "LIJNBOOM.INI", std::filesystem::perms(0644));
  EXPECT_EQ(Ini(), "een");
}

}  // namespace
}  // namespace lb77
