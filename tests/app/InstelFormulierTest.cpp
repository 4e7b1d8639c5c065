#include "app/IniFunctie.h"
#include "app/IniGezindte.h"
#include "app/IniVoorvoeg.h"
#include "app/InstelFormulier.h"
#include "app/SessieToets.h"

namespace lb77 {
namespace {

// The settings dialogs that hold texts alone.
class InstelVenster : public SessieToets {
 protected:
  void SetUp() override {
    ZetIni(
        "[Namenfile]\nVoor1=van,ter\nVoor2=de\nGez1=NHNed. Hervormd\nGez3=R Rooms\nGez20=DG\n"
        "[Funktietoetsen]\nF1=Amsterdam\nF8=\x82\x82n\nF9=negen\n");
  }
  template <class Form>
  Programma Dialoog() {
    return Met([](Hoofdmodule& hoofd) {
      ASSERT_TRUE(hoofd.Ini.IniLees());
      Toont<Form>(hoofd)(hoofd.gesprek);
    });
  }
};

TEST_F(InstelVenster, DeVoorvoegselsStaanErZoalsZeBewaardZijn) {
  Verwacht("toon\nvul Voorvoeg1Tekst van, op\nvul Voorvoeg2Tekst den\ndruk OKButton",
           Dialoog<IniVoorvoeg>(), R"(+ IniVoorvoeg "Systeem Instellingen - Voorvoegsels"
    : IniVoorvoeg "Systeem Instellingen - Voorvoegsels"
    = Voorvoeg1Tekst "van,ter"
    = Voorvoeg2Tekst "de"
    = OKButton "&OK"
    = BackButton "&Terug"
    * Voorvoeg1Tekst
    - IniVoorvoeg)");
  EXPECT_TRUE(IniHeeft("Voor1=van, op"));
  EXPECT_TRUE(IniHeeft("Voor2=den"));
}

TEST_F(InstelVenster, DeNieuweVoorvoegselsSorterenMeteen) {
  Verwacht("vul Voorvoeg1Tekst zur\ndruk OKButton", Met([](Hoofdmodule& hoofd) {
             ASSERT_TRUE(hoofd.Ini.IniLees());
             Toont<IniVoorvoeg>(hoofd)(hoofd.gesprek);
             EXPECT_EQ(NaamSorteer("zur Linde", hoofd.schrijfwijze.voorvoegsels), "Linde, zur");
           }),
           R"(+ IniVoorvoeg "Systeem Instellingen - Voorvoegsels"
    - IniVoorvoeg)");
}

TEST_F(InstelVenster, AchtFunctietoetsenZijnTeWijzigenDeAndereBlijven) {
  Verwacht("toon FtoetsTekst(1)\ntoon FtoetsTekst(8)\nvul FtoetsTekst(2) Delft\ndruk OKButton",
           Dialoog<IniFunctie>(), R"(+ IniFunctie "Systeem Instellingen - Functietoetsen"
    = FtoetsTekst(1) "Amsterdam"
    = FtoetsTekst(8) "één"
    - IniFunctie)");
  for (const char* regel : {"F1=Amsterdam", "F2=Delft", "F8=\x82\x82n", "F9=negen"}) {
    EXPECT_TRUE(IniHeeft(regel)) << regel;
  }
}

TEST_F(InstelVenster, DeFunctietoetsenHetenNaarHunToets) {
  Speel("", Met([](Hoofdmodule& hoofd) {
          IniFunctie scherm(hoofd);
          EXPECT_EQ(scherm.FtoetsTekst(1).Bijschrift(), "SHIFT-F1:");
          EXPECT_EQ(scherm.FtoetsTekst(8).Bijschrift(), "SHIFT-F8:");
        }));
}

TEST_F(InstelVenster, EenGezindteIsCodeEnNaam) {
  Verwacht(R"(toon GezAfkTekst(0)
              toon GezTekst(0)
              toon GezAfkTekst(2)
              toon GezTekst(2)
              toon GezTekst(19)
              vul GezAfkTekst(1) D
              vul GezTekst(1) Doopsgezind
              vul GezTekst(19)   Doops
              vul GezAfkTekst(2)
              druk OKButton)",
           Dialoog<IniGezindte>(), R"(+ IniGezindte "Systeem Instellingen - Gezindten"
    = GezAfkTekst(0) "NH"
    = GezTekst(0) "Ned. Hervormd"
    = GezAfkTekst(2) "R"
    = GezTekst(2) "Rooms"
    = GezTekst(19) ""
    - IniGezindte)");
  for (const char* regel :
       {"Gez1=NHNed. Hervormd", "Gez2=D Doopsgezind", "Gez3=  Rooms", "Gez4=  ", "Gez20=DGDoops"}) {
    EXPECT_TRUE(IniHeeft(regel)) << regel;
  }
}

TEST_F(InstelVenster, TerugBewaartNiets) {
  const std::string voor = Ini();
  Speel("vul GezTekst(1) Weg\ndruk BackButton", Dialoog<IniGezindte>());
  Speel("vul FtoetsTekst(1) Weg\ntoets Escape", Dialoog<IniFunctie>());
  Speel("vul Voorvoeg1Tekst Weg\nsluit", Dialoog<IniVoorvoeg>());
  EXPECT_EQ(Ini(), voor);
}

}  // namespace
}  // namespace lb77
