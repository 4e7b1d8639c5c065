#include "app/IniBestand.h"
#include "app/SessieToets.h"
#include "app/ZonderRechten.h"
#include "steun/VolleSchijf.h"

namespace lb77 {
namespace {

// The pairs of a text, one a line.
std::string Paren(std::string_view tekst) {
  std::string uit;
  LeesIniRegels(
      tekst, [&](std::string_view sectie, std::string_view sleutel, std::string_view waarde) {
        uit += std::string(sectie) + "/" + std::string(sleutel) + "=" + std::string(waarde) + ";";
      });
  return uit;
}

TEST(IniRegels, BeideSoortenRegeleindenWordenGelezen) {
  EXPECT_EQ(Paren("[A]\r\nb=1\r\nc=2"), "A/b=1;A/c=2;");
  EXPECT_EQ(Paren("[A]\nb=1\nc=2\n"), "A/b=1;A/c=2;");
}

TEST(IniRegels, BlankenRondSectieSleutelEnWaardeGaanWeg) {
  EXPECT_EQ(Paren("  [ A ]  \n  b  =  1 2  \n"), "A/b=1 2;");
}

TEST(IniRegels, AlleenHetEersteIsTekenScheidt) {
  EXPECT_EQ(Paren("[A]\nb=1=2\nc==\n"), "A/b=1=2;A/c==;");
}

TEST(IniRegels, EenRegelZonderIsTekenHerhaaltHetVorigePaar) {
  EXPECT_EQ(Paren("[A]\nb=1\nlosse regel\n"), "A/b=1;A/b=1;");
}

TEST(IniRegels, EenNieuweSectieVergeetHetPaar) {
  EXPECT_EQ(Paren("[A]\nb=1\n[B]\nlosse regel\n"), "A/b=1;");
}

TEST(IniRegels, EenLegeSleutelWordtOvergeslagen) {
  EXPECT_EQ(Paren("[A]\n=1\n = 2\n"), "");
}

TEST(IniRegels, VanEenSectieVervallenHetEersteEnHetLaatsteTeken) {
  EXPECT_EQ(Paren("[Ax\nb=1\n"), "A/b=1;");
  EXPECT_EQ(Paren("[\nb=1\n"), "/b=1;");
  EXPECT_EQ(Paren("[]\nb=1\n"), "/b=1;");
}

TEST(IniRegels, EenBestandZonderRegelsGeeftNiets) {
  EXPECT_EQ(Paren(""), "");
  EXPECT_EQ(Paren("\r\n\r\n"), "");
  EXPECT_EQ(Paren(std::string(1000, '\0')), "");
}

TEST(IniRegels, EenWaardeBlijftOpHaarRegel) {
  const std::string tekst = IniRegels(
      [](SleutelPlaats plaats) { return std::string(plaats.rij == 0 ? "a\r\n[b]" : ""); });
  EXPECT_EQ(tekst.substr(0, tekst.find("Copyright")), "[Lijnboom]\r\nVersie=a  [b]\r\n");
}

TEST(IniRegels, EenGatInEenLijstBlijftEenGat) {
  const SleutelPlaats set = *VindSleutel("Sets", "Set1");
  const std::string tekst = IniRegels([&](SleutelPlaats plaats) {
    return std::string(plaats.rij == set.rij && plaats.nummer % 50 == 3 ? "x" : "");
  });
  EXPECT_NE(tekst.find("[Sets]\r\nSet3=x\r\nSet53=x\r\n\r\n[Namenfile]\r\n"), std::string::npos);
}

class IniBestand : public SessieToets {
 protected:
  SchrijfUitslag SchrijfNieuw(std::string_view tekst) { return SchrijfIniBestand(map_, tekst); }
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
  std::string inhoud;
  EXPECT_FALSE(LeesIniBestand(map_, inhoud));
  EXPECT_EQ(inhoud, "oud");
  EXPECT_EQ(SchrijfNieuw("nieuw").stap, SchrijfStap::Klaar);
  EXPECT_FALSE(Bestaat("lijnboom.ini"));
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
  const SchrijfUitslag uitslag = SchrijfIniBestand(map_ / "weg", "x");
  EXPECT_EQ(uitslag.stap, SchrijfStap::Openen);
  EXPECT_TRUE(uitslag.fout);
}

TEST_F(IniBestand, EenDirectoryOpDePlaatsVanHetBestandMaaktPlaats) {
  std::filesystem::create_directory(map_ / "LIJNBOOM.INI");
  std::string inhoud;
  EXPECT_EQ(LeesIniBestand(map_, inhoud).tekst, "Pad is een directory");
  EXPECT_EQ(SchrijfNieuw("nieuw").stap, SchrijfStap::Klaar);
  EXPECT_EQ(Ini(), "nieuw");
}

TEST_F(IniBestand, EenDirectoryDieNietWegWilIsEenFoutVanHetOpenen) {
  Schrijf("LIJNBOOM.INI/vol", "x");
  Schrijf("LB77_INI.BAK/vol", "x");
  const SchrijfUitslag uitslag = SchrijfNieuw("nieuw");
  EXPECT_EQ(uitslag.stap, SchrijfStap::Openen);
  EXPECT_TRUE(uitslag.fout);
  EXPECT_TRUE(Bestaat("LIJNBOOM.INI/vol"));
  EXPECT_FALSE(Bestaat("LIJNBOOM.TMP"));
}

TEST_F(IniBestand, EenVolleSchijfLaatHetBestandEnDeReserveStaan) {
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
  Schrijf("LIJNBOOM.INI", "een");
  std::filesystem::permissions(map_ / "LIJNBOOM.INI", std::filesystem::perms(0));
  {
    const ZonderRechten rechten(map_);
    std::string inhoud;
    EXPECT_EQ(LeesIniBestand(map_, inhoud).tekst, "Geen toegang");
    const SchrijfUitslag uitslag = SchrijfNieuw("twee");
    EXPECT_EQ(uitslag.stap, SchrijfStap::Openen);
    EXPECT_EQ(uitslag.fout.tekst, "Geen toegang");
  }
  std::filesystem::permissions(map_ / "LIJNBOOM.INI", std::filesystem::perms(0644));
  EXPECT_EQ(Ini(), "een");
}

}  // namespace
}  // namespace lb77
