// The settings file after a stop, a failure or a cut.
#include <optional>

#include "app/IniWerk.h"
#include "app/SessieToets.h"
#include "app/Start.h"

namespace lb77 {
namespace {

constexpr std::string_view kIni = "LIJNBOOM.INI";
constexpr std::string_view kTmp = "LIJNBOOM.TMP";
constexpr std::string_view kBak = "LB77_INI.BAK";
constexpr std::string_view kOud = "LIJNBOOM.OUD";

class IniHerstel : public SessieToets {
 protected:
  // The files of the settings, each absent without a text.
  void Leg(const std::optional<std::string>& ini, const std::optional<std::string>& tmp,
           const std::optional<std::string>& bak) {
    for (const std::string_view naam : {kIni, kTmp, kBak, kOud}) {
      std::filesystem::remove(map_ / naam);
    }
    if (ini) Schrijf(kIni, *ini);
    if (tmp) Schrijf(kTmp, *tmp);
    if (bak) Schrijf(kBak, *bak);
  }
  IniGelezen Lees() {
    SnelWerk werk;
    return LeesIniBestand(map_, werk);
  }
  // Does something that may stop halfway.
  template <typename Doe>
  void TotStop(Doe doe) {
    try {
      doe();
    } catch (const Breekwerk::Gestopt&) {
      // what is on the disk now is what the next run finds
    }
  }
  SchrijfUitslag SchrijfMet(const std::string& tekst, Bestandswerk& werk) {
    return SchrijfIniBestand(
        map_, [&](const std::string*) { return tekst; }, werk);
  }

  const std::string ouder_ = HeelIni("ouder");
  const std::string oud_ = HeelIni("oud");
  const std::string nieuw_ = HeelIni("nieuw");
};

TEST_F(IniHerstel, WaarHetSchrijvenOokStoptErIsSteedsEenHeelBestand) {
  bool geweest = true;
  for (int k = 1; geweest; ++k) {
    ASSERT_LT(k, 50);
    Leg(oud_, {}, ouder_);
    Breekwerk werk(Breekwerk::Wijze::Stopt, k);
    TotStop([&] { EXPECT_EQ(SchrijfMet(nieuw_, werk).stap, SchrijfStap::Klaar); });
    geweest = werk.Geweest();
    EXPECT_TRUE(Ini() == oud_ || Ini() == nieuw_) << k << Ini();
    const IniGelezen gelezen = Lees();
    EXPECT_EQ(gelezen.inhoud, Ini()) << k;
    EXPECT_EQ(gelezen.melding, "") << k;
    SnelWerk heel;
    EXPECT_EQ(SchrijfMet(nieuw_, heel).stap, SchrijfStap::Klaar) << k;
    EXPECT_EQ(Ini(), nieuw_) << k;
    EXPECT_FALSE(Bestaat(kTmp)) << k;
  }
  EXPECT_EQ(Ini(), nieuw_);
}

TEST_F(IniHerstel, WaarHetSchrijvenOokMisluktHetVorigeBestandStaatErNog) {
  bool geweest = true;
  for (int k = 1; geweest; ++k) {
    ASSERT_LT(k, 50);
    Leg(oud_, {}, ouder_);
    Breekwerk werk(Breekwerk::Wijze::Faalt, k);
    const SchrijfUitslag uitslag = SchrijfMet(nieuw_, werk);
    geweest = werk.Geweest();
    EXPECT_EQ(Ini(), uitslag.stap == SchrijfStap::Klaar ? nieuw_ : oud_) << k;
    EXPECT_EQ(uitslag.stap != SchrijfStap::Klaar, static_cast<bool>(uitslag.fout)) << k;
    EXPECT_FALSE(Bestaat(kTmp)) << k;
  }
}

// The backup holds at each moment the file before, or the present one.
TEST_F(IniHerstel, EenMislukteWisselLaatDeReserveEenHeelBestand) {
  Leg(oud_, {}, ouder_);
  class ZonderWissel final : public SnelWerk {
   public:
    [[nodiscard]] SysteemFout Hernoem(const std::filesystem::path&,
                                      const std::filesystem::path&) override {
      return {kGeenToegang, "Geen toegang"};
    }
  } werk;
  EXPECT_EQ(SchrijfMet(nieuw_, werk).stap, SchrijfStap::Openen);
  EXPECT_EQ(Ini(), oud_);
  EXPECT_EQ(Inhoud(kBak), oud_);
  EXPECT_FALSE(Bestaat(kTmp));
}

TEST_F(IniHerstel, WaarEenBestandMaarEenNaamHebbenKanWordtDeReserveGekopieerd) {
  Leg(oud_, {}, ouder_);
  class ZonderKoppeling final : public SnelWerk {
   public:
    [[nodiscard]] SysteemFout Koppel(const std::filesystem::path&,
                                     const std::filesystem::path&) override {
      return {5, "Ongeldige opdracht"};
    }
  } werk;
  EXPECT_EQ(SchrijfMet(nieuw_, werk).stap, SchrijfStap::Klaar);
  EXPECT_EQ(Ini(), nieuw_);
  EXPECT_EQ(Inhoud(kBak), oud_);
}

TEST_F(IniHerstel, OpElkeLengteAfgebrokenKomtDeReserveErvoor) {
  for (std::size_t lengte = 0; lengte < oud_.size(); ++lengte) {
    const std::string kort = oud_.substr(0, lengte);
    Leg(kort, {}, ouder_);
    const IniGelezen gelezen = Lees();
    ASSERT_EQ(gelezen.inhoud, ouder_) << lengte;
    ASSERT_NE(gelezen.melding, "") << lengte;
    ASSERT_EQ(Ini(), ouder_) << lengte;
    ASSERT_EQ(Inhoud(kOud), kort) << lengte;
    ASSERT_EQ(Lees().melding, "") << lengte;
  }
}

TEST_F(IniHerstel, OpElkeLengteAfgebrokenZonderKopieIsHetBestandWatHetIs) {
  for (std::size_t lengte = 0; lengte < oud_.size(); ++lengte) {
    Leg(oud_.substr(0, lengte), {}, {});
    const IniGelezen gelezen = Lees();
    ASSERT_FALSE(gelezen.fout) << lengte;
    ASSERT_EQ(gelezen.inhoud, Ini()) << lengte;
    ASSERT_EQ(gelezen.melding, "") << lengte;
  }
}

TEST_F(IniHerstel, WatErnaastGeschrevenWasGaatVoorDeReserve) {
  for (const std::optional<std::string>& ini :
       {std::optional<std::string>(), std::optional<std::string>(""),
        std::optional<std::string>(oud_.substr(0, 300))}) {
    Leg(ini, nieuw_, ouder_);
    EXPECT_EQ(Lees().inhoud, nieuw_);
    EXPECT_EQ(Ini(), nieuw_);
    EXPECT_EQ(Inhoud(kBak), ouder_);
    EXPECT_FALSE(Bestaat(kTmp));
    Leg(ini, nieuw_.substr(0, nieuw_.size() - 1), ouder_);
    EXPECT_EQ(Lees().inhoud, ouder_);
  }
}

TEST_F(IniHerstel, WaarHetHerstelOokStoptHetLuktDeVolgendeKeer) {
  for (const bool ernaast : {false, true}) {
    bool geweest = true;
    for (int k = 1; geweest; ++k) {
      ASSERT_LT(k, 50);
      Leg(oud_.substr(0, 300), {}, ouder_);
      if (ernaast) Schrijf(kTmp, ouder_);
      Breekwerk werk(Breekwerk::Wijze::Stopt, k);
      TotStop([&] { EXPECT_EQ(LeesIniBestand(map_, werk).inhoud, ouder_); });
      geweest = werk.Geweest();
      EXPECT_EQ(Lees().inhoud, ouder_) << k;
      EXPECT_EQ(Ini(), ouder_) << k;
      EXPECT_EQ(Inhoud(kBak), ouder_) << k;
    }
  }
}

TEST_F(IniHerstel, WaarHetHerstelOokMisluktDeInstellingenZijnEr) {
  bool geweest = true;
  for (int k = 1; geweest; ++k) {
    ASSERT_LT(k, 50);
    Leg(oud_.substr(0, 300), {}, ouder_);
    Breekwerk werk(Breekwerk::Wijze::Faalt, k);
    EXPECT_EQ(LeesIniBestand(map_, werk).inhoud, ouder_) << k;
    geweest = werk.Geweest();
  }
}

TEST_F(IniHerstel, EenHeelBestandVanEenOudereVersieWordtNooitGeweigerd) {
  for (const std::string_view oudere :
       {"[Systeem]\r\nSet=ABC\r\n", "[Lijnboom]\r\nVersie=1.0\r\n\r\n[Systeem]\r\nSet=ABC\r\n",
        "[Lijnboom]\r\nVersie=2.1\r\nCopyright=x\r\n\r\n[Sets]\r\nSet1=ABC\r\n",
        "los\r\n[Lijnboom]\r\nVersie=2.1\r\n"}) {
    Leg(std::string(oudere), nieuw_, ouder_);
    EXPECT_EQ(Lees().inhoud, oudere);
    EXPECT_EQ(Ini(), oudere);
    SnelWerk werk;
    EXPECT_EQ(SchrijfMet(nieuw_, werk).stap, SchrijfStap::Klaar);
    EXPECT_EQ(Inhoud(kBak), oudere);
  }
}

TEST_F(IniHerstel, EenAfgebrokenBestandVerdringtDeReserveNiet) {
  Leg(oud_.substr(0, 300), {}, ouder_);
  SnelWerk werk;
  EXPECT_EQ(SchrijfMet(nieuw_, werk).stap, SchrijfStap::Klaar);
  EXPECT_EQ(Ini(), nieuw_);
  EXPECT_EQ(Inhoud(kBak), ouder_);
}

TEST_F(IniHerstel, HetHerstelWordtGemeld) {
  struct Geval {
    std::optional<std::string> ini;
    std::string melding;
  };
  for (
      const Geval& g :
      {Geval{{}, R"(is niet gevonden.\nDe instellingen komen uit LB77_INI.BAK.)"},
       Geval{"", R"(is leeg.\nDe instellingen komen uit LB77_INI.BAK.)"},
       Geval{std::string(500, '\0'), R"(is leeg.\nDe instellingen komen uit LB77_INI.BAK.)"},
       Geval{
           oud_.substr(0, 900),
           R"(is niet volledig.\nDe instellingen komen uit LB77_INI.BAK.\nHet onvolledige bestand heet nu LIJNBOOM.OUD.)"}}) {
    Leg(g.ini, {}, ouder_);
    Verwacht("", Met([](Hoofdmodule& hoofd) {
               EXPECT_TRUE(hoofd.Ini.IniLees());
               EXPECT_EQ(hoofd.Ini.ActieveSetOms(), "ouder");
             }),
             "! uitroep \"Het IniBestand (LIJNBOOM.INI) " + g.melding + "\"");
    Verwacht("", Met([](Hoofdmodule& hoofd) { EXPECT_TRUE(hoofd.Ini.IniLees()); }), "");
  }
}

TEST_F(IniHerstel, WieNietsBewaartLeestDeKopieEnVerandertNiets) {
  const std::string kort = oud_.substr(0, 300);
  Leg(kort, {}, ouder_);
  Verwacht(
      "", Met([](Hoofdmodule& hoofd) {
        hoofd.instellingen.bewaren = false;
        EXPECT_TRUE(hoofd.Ini.IniLees());
        EXPECT_EQ(hoofd.Ini.ActieveSetOms(), "ouder");
        hoofd.Ini.IniSchrijf();
      }),
      R"(! uitroep "Het IniBestand (LIJNBOOM.INI) is niet volledig.\nDe instellingen komen uit LB77_INI.BAK.")");
  EXPECT_EQ(Ini(), kort);
  EXPECT_FALSE(Bestaat(kOud));
}

TEST_F(IniHerstel, EenKopieAlleenTeltAlsInstellingenBijHetProgramma) {
  Leg({}, {}, ouder_);
  EXPECT_EQ(ZoekProgrammaMap({}, map_, map_ / "gebruiker"), map_);
  Leg({}, nieuw_, {});
  EXPECT_EQ(ZoekProgrammaMap({}, map_, map_ / "gebruiker"), map_);
  Leg({}, {}, {});
  EXPECT_EQ(ZoekProgrammaMap({}, map_, map_ / "gebruiker"), map_ / "gebruiker");
}

}  // namespace
}  // namespace lb77
