#include "app/IniGebruiker.h"
#include "app/SessieToets.h"

namespace lb77 {
namespace {

class IniGebruikerVenster : public SessieToets {
 protected:
  void SetUp() override {
    ZetIni(
        "[Gebruiker]\nLidnr=123\nNaam=Andr\x82\nPostcode=1234 AB\nGeslacht=V\n[INTERNET]\n"
        "Email=a@example.org\n");
  }
  Programma Dialoog() {
    return Met([](Hoofdmodule& hoofd) {
      ASSERT_TRUE(hoofd.Ini.IniLees());
      Toont<IniGebruiker>(hoofd)(hoofd.gesprek);
    });
  }
};

constexpr std::string_view kOpenEnDicht =
    R"(+ IniGebruiker "Systeem Instellingen - Gebruikersgegevens"
       - IniGebruiker)";

TEST_F(IniGebruikerVenster, DeInstellingenStaanInDeVelden) {
  Verwacht("toon\ndruk BackButton", Dialoog(),
           R"~(+ IniGebruiker "Systeem Instellingen - Gebruikersgegevens"
              : IniGebruiker "Systeem Instellingen - Gebruikersgegevens"
              = HSKLidTekst "123"
              = VoorlettersTekst ""
              = VoorlettersUitleg "(Voorletters en/of Voornaam)"
              = AchternaamTekst "André"
              = AchternaamUitleg "(Voorvoegsels vooraan)"
              = AdresTekst ""
              = AdresUitleg "(Straatnaam en huisnummer)"
              = PostcodeTekst "1234 AB"
              = WoonplaatsTekst ""
              = LandTekst ""
              = TelefoonTekst ""
              = GeslachtBox "Vrouw"
              = EmailTekst "a@example.org"
              = OKButton "&OK"
              = BackButton "&Terug"
              * HSKLidTekst
              - IniGebruiker)~");
}

TEST_F(IniGebruikerVenster, OKBewaartAlleVeldenInHetBestand) {
  Verwacht(R"(vul HSKLidTekst 77
              vul VoorlettersTekst J.
              vul AchternaamTekst de Vriès
              vul AdresTekst Dorpsstraat 1
              vul PostcodeTekst 9999 ZZ
              vul WoonplaatsTekst Urk
              vul LandTekst Nederland
              vul TelefoonTekst 0123
              stel GeslachtBox Man
              vul EmailTekst b@example.org
              druk OKButton)",
           Dialoog(), kOpenEnDicht);
  EXPECT_NE(Ini().find("[Gebruiker]\r\nLidnr=77\r\nVoornaam=J.\r\nNaam=de Vri\x8As\r\n"
                       "Adres=Dorpsstraat 1\r\nPostcode=9999 ZZ\r\nPlaats=Urk\r\n"
                       "Land=Nederland\r\nTelefoon=0123\r\nGeslacht=M\r\nEmail=b@example.org\r\n"
                       "\r\n[INTERNET]\r\nEmail=b@example.org\r\n"),
            std::string::npos);
}

TEST_F(IniGebruikerVenster, HetGeslachtVolgtDePlaatsInDeLijst) {
  Verwacht("stel GeslachtBox #0\ndruk OKButton", Dialoog(), kOpenEnDicht);
  EXPECT_TRUE(IniHeeft("Geslacht="));
  Verwacht("stel GeslachtBox #2\ndruk OKButton", Dialoog(), kOpenEnDicht);
  EXPECT_TRUE(IniHeeft("Geslacht=V"));
}

TEST_F(IniGebruikerVenster, TerugLaatGeheugenEnBestandOngewijzigd) {
  const std::string voor = Ini();
  Verwacht("vul HSKLidTekst 88\ndruk BackButton", Met([](Hoofdmodule& hoofd) {
             ASSERT_TRUE(hoofd.Ini.IniLees());
             Toont<IniGebruiker>(hoofd)(hoofd.gesprek);
             EXPECT_EQ(hoofd.Ini.IniWaarde("Gebruiker", "Lidnr"), "123");
           }),
           kOpenEnDicht);
  EXPECT_EQ(Ini(), voor);
  EXPECT_FALSE(Bestaat("LB77_INI.BAK"));
}

TEST_F(IniGebruikerVenster, EscapeEnHetKaderDoenAlsTerug) {
  Verwacht("vul HSKLidTekst 88\ntoets Escape", Dialoog(), kOpenEnDicht);
  Verwacht("vul HSKLidTekst 88\nsluit", Dialoog(), kOpenEnDicht);
  EXPECT_TRUE(IniHeeft("Lidnr=123"));
}

TEST_F(IniGebruikerVenster, EnterGaatNaarHetVolgendeVeld) {
  Verwacht("toets HSKLidTekst Enter\ntoets Enter\ntyp VoorlettersTekst A\ntoon VoorlettersTekst",
           Dialoog(),
           R"(+ IniGebruiker "Systeem Instellingen - Gebruikersgegevens"
              = VoorlettersTekst "A")");
}

}  // namespace
}  // namespace lb77
