#include "app/IniSysteem.h"
#include "app/SessieToets.h"

namespace lb77 {
namespace {

class IniSysteemVenster : public SessieToets {
 protected:
  void SetUp() override {
    ZetIni(
        "[Systeem]\nData=gegevens\nTempdir=tijdelijk\nEdit=LBEDIT\nOpslaanVelden=j\n"
        "[GCI]\nData=gci\n");
    basismap_ = map_;
    std::filesystem::create_directories(map_ / "anders");
  }
  Programma Dialoog() {
    return Met([](Hoofdmodule& hoofd) {
      ASSERT_TRUE(hoofd.Ini.IniLees());
      Toont<IniSysteem>(hoofd)(hoofd.gesprek);
    });
  }
};

constexpr std::string_view kOpenEnDicht = R"(+ IniSysteem "Systeem Instellingen - Systeem"
                                             - IniSysteem)";

TEST_F(IniSysteemVenster, DeInstellingenStaanInDeVelden) {
  Verwacht(
      "toon DataDirTekst\ntoon TempDirTekst\ntoon GCIDirTekst\ntoon LB77EditorTekst\n"
      "toon OpslaanParamsBox\ntoon ProgDirTekst\ndruk BackButton",
      Dialoog(), MetMap(R"(+ IniSysteem "Systeem Instellingen - Systeem"
              = DataDirTekst "gegevens"
              = TempDirTekst "tijdelijk"
              = GCIDirTekst "gci"
              = LB77EditorTekst "LBEDIT"
              = OpslaanParamsBox "Nee"
              #0 "Ja"
              #1 "Nee"
              = ProgDirTekst "<map>"
              - IniSysteem)"));
}

TEST_F(IniSysteemVenster, OKBewaartAlleVelden) {
  Verwacht(R"(vul DataDirTekst mijn
              vul TempDirTekst even
              vul GCIDirTekst inzend
              vul LB77EditorTekst ED
              stel OpslaanParamsBox Ja
              druk OKButton)",
           Dialoog(), kOpenEnDicht);
  for (const char* regel : {"Data=mijn", "Tempdir=even", "Edit=ED", "OpslaanVelden=J"}) {
    EXPECT_TRUE(IniHeeft(regel)) << regel;
  }
  EXPECT_NE(Ini().find("[GCI]\r\nData=inzend\r\n"), std::string::npos);
}

TEST_F(IniSysteemVenster, BladerenNeemtDeGekozenMap) {
  Speel(R"(bestand anders
           druk BrowseDataDir
           bestand anders
           druk BrowseTempDir
           bestand anders
           druk BrowseGCIDir
           druk OKButton)",
        Dialoog());
  const std::string anders = (map_ / "anders").string();
  EXPECT_TRUE(IniHeeft("Data=" + anders)) << verslag_;
  EXPECT_TRUE(IniHeeft("Tempdir=" + anders));
  EXPECT_NE(Ini().find("[GCI]\r\nData=" + anders + "\r\n"), std::string::npos);
}

TEST_F(IniSysteemVenster, TerugBewaartNiets) {
  const std::string voor = Ini();
  Verwacht("vul DataDirTekst mijn\ndruk BackButton", Dialoog(), kOpenEnDicht);
  EXPECT_EQ(Ini(), voor);
}

}  // namespace
}  // namespace lb77
