#include "app/IniVoorkeur.h"
#include "app/SessieToets.h"

namespace lb77 {
namespace {

class IniVoorkeurVenster : public SessieToets {
 protected:
  void SetUp() override { ZetIni("[Genealogie]\n"); }
  Programma Dialoog() {
    return Met([this](Hoofdmodule& hoofd) {
      ASSERT_TRUE(hoofd.Ini.IniLees());
      const char voor = hoofd.schrijfwijze.DatumScheider;
      Toont<IniVoorkeur>(hoofd)(hoofd.gesprek);
      EXPECT_EQ(hoofd.schrijfwijze.DatumScheider, voor);
      scheider_ = hoofd.Ini.separator();
    });
  }

  std::string scheider_;
};

constexpr std::string_view kOpenEnDicht =
    R"(+ IniVoorkeur "Systeem Instellingen - Genealogische Voorkeuren"
       - IniVoorkeur)";

TEST_F(IniVoorkeurVenster, DeInstellingenStaanInDeVakken) {
  ZetIni("[Genealogie]\nDatumForm=1\nHoofdletters=2\nFamNaamWeerg=1\nOnderscheid=J\nHuwData=0\n");
  Verwacht("toon\ndruk BackButton", Dialoog(),
           R"~(+ IniVoorkeur "Systeem Instellingen - Genealogische Voorkeuren"
               : IniVoorkeur "Systeem Instellingen - Genealogische Voorkeuren"
               = NaamCapsBox "Voornamen en achternaam"
               = FamNaamUitvoerBox "Ja"
               = DatumSeparatorBox "."
               = CapsZoekenBox "Ja"
               = HuwInkortenBox "Zonder huw.(kerk)"
               = HuwInkortenUitleg "(*) Zodra otr., huw.(wet) en huw.(kerk) bekend zijn"
               = DOSUitleg "(*) Deze optie wordt slechts in de oude DOS-versie gebruikt"
               = InvoerUitleg "Invoer hier is uitsluitend vanwege compatibiliteit opgenomen."
               = OKButton "&OK"
               = BackButton "&Terug"
               * NaamCapsBox
               - IniVoorkeur)~");
}

TEST_F(IniVoorkeurVenster, EenLegeInstellingIsNee) {
  ZetIni("[Genealogie]\nHuwData=\n");
  Verwacht("druk OKButton", Dialoog(), kOpenEnDicht);
  for (const char* regel : {"Hoofdletters=0", "FamNaamWeerg=0", "Onderscheid=N", "HuwData=2"}) {
    EXPECT_TRUE(IniHeeft(regel)) << regel;
  }
}

TEST_F(IniVoorkeurVenster, OKBewaartDePlaatsInHetVakEnDeScheiderVolgtLater) {
  Verwacht(R"(stel NaamCapsBox Achternaam
              stel FamNaamUitvoerBox Ja
              stel DatumSeparatorBox #1
              stel CapsZoekenBox Ja
              stel HuwInkortenBox #0
              druk OKButton)",
           Dialoog(), kOpenEnDicht);
  EXPECT_NE(Ini().find("[Genealogie]\r\nDatumForm=1\r\nHoofdletters=1\r\nFamNaamWeerg=1\r\n"
                       "Onderscheid=J\r\nHuwData=0\r\n"),
            std::string::npos);
  EXPECT_EQ(scheider_, ".");
}

TEST_F(IniVoorkeurVenster, TerugBewaartNiets) {
  ZetIni("[Genealogie]\nDatumForm=0\n");
  const std::string voor = Ini();
  Verwacht("stel DatumSeparatorBox #1\ndruk BackButton", Dialoog(), kOpenEnDicht);
  EXPECT_EQ(Ini(), voor);
  EXPECT_EQ(scheider_, "-");
}

}  // namespace
}  // namespace lb77
