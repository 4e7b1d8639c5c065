// The selection of remarks by script.
#include "reports/LijstKeten.h"
#include "reports/SelectOpm.h"

namespace lb77 {
namespace {

class SelectOpmToets : public LijstKeten<SelectOpm> {
 protected:
  SelectOpmToets() : LijstKeten("ZOEK_OPM.TMP") {}
  std::string Kop() const override { return "SelectOpm \"Selecteer Opmerkingen\""; }
};

constexpr std::string_view kGetoond =
    "+ ToonTekst \"Resultaat Selectie Opmerkingen\"\n- ToonTekst\n";

TEST_F(SelectOpmToets, LetEerstNietOpHoofdEnKleineLetters) {
  Speel("vul ZoekTekst op de markt\ndruk OKButton\ndruk BackButton\ndruk BackButton", kGetoond);
  EXPECT_EQ(Lijst(),
            "P:    2 Woonde op de Markt te Delft.\r\nP:    2 Kocht een huis op de MARKT.\r\n\r\n");
}

TEST_F(SelectOpmToets, LetErWelOpAlsDatGekozenIs) {
  Speel(
      "vul ZoekTekst Markt\nstel OptionCapsJa aan\ntoon OptionCapsNee\ndruk OKButton\n"
      "druk BackButton\ndruk BackButton",
      "= OptionCapsNee uit\n" + std::string(kGetoond));
  EXPECT_EQ(Lijst(), "P:    2 Woonde op de Markt te Delft.\r\n\r\n");
}

TEST_F(SelectOpmToets, ToontZijnVelden) {
  Speel("toon\ndruk BackButton", R"(
    : SelectOpm "Selecteer Opmerkingen"
    = ZoekTekst ""
    = OptionCapsJa uit
    = OptionCapsNee aan
    = OKButton "&OK"
    = BackButton "&Terug"
    * ZoekTekst
  )");
}

TEST_F(SelectOpmToets, ZonderTekstKomtErEenMelding) {
  Speel("druk OKButton\ndruk BackButton", R"(! uitroep "Geen tekst om naar te zoeken opgegeven")");
  EXPECT_EQ(Lijst(), "");
}

TEST_F(SelectOpmToets, EenBestandDatNietKanSluitHetScherm) {
  Versper();
  Speel("vul ZoekTekst markt\ndruk OKButton", NietOpen());
}

TEST_F(SelectOpmToets, WatOnleesbaarIsWordtInStilteOvergeslagen) {
  MaakOnleesbaar(BestandSoort::Opmerkingen, 3);
  Speel("vul ZoekTekst markt\ndruk OKButton\ndruk BackButton\ndruk BackButton",
        "+ ToonTekst \"Resultaat Selectie Opmerkingen\"\n- ToonTekst\n");
  EXPECT_EQ(Lijst(),
            "P:    2 Woonde op de Markt te Delft.\r\n"
            "P:    2 Getuige was de marktmeester.\r\n\r\n");
}

}  // namespace
}  // namespace lb77
