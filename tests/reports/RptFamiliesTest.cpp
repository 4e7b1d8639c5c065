// The distribution of family names by script.
#include "reports/LijstKeten.h"
#include "reports/RptFamilies.h"
#include "steun/BezigKijker.h"

namespace lb77 {
namespace {

class RptFamiliesToets : public LijstKeten<RptFamilies> {
 protected:
  RptFamiliesToets() : LijstKeten("ZOEK_FAM.TMP") {}
  std::string Kop() const override { return "RptFamilies \"Rapport Verdeling Familienamen\""; }
};

constexpr std::string_view kOnjuist =
    "! uitroep \"Onjuist minimum aantal naamdragers opgegeven (1-1000)\"\n";

TEST_F(RptFamiliesToets, ToontDeNamenOnderDeTitelVanDeTakken) {
  Speel("vul MinimumAantal 2\ndruk OKButton\ndruk BackButton\ntoon AantalNamen\ndruk BackButton",
        R"(
          + ToonTekst "Takkenverdeling"
          - ToonTekst
          = AantalNamen "4"
        )");
  EXPECT_NE(Lijst().find("\r\n4: van Dam\r\n2: Vos\r\n\r\nTotaal 4"), std::string::npos);
}

TEST_F(RptFamiliesToets, BegintBijEenDrager) {
  Speel("toon\ndruk BackButton", R"(
    : RptFamilies "Rapport Verdeling Familienamen"
    = UitlegLabel "De Verdeling Familienamen brengt het aantal naamdragers per familienaam in beeld."
    = MinimumAantal "1"
    = AantalNamen ""
    = OKButton "&OK"
    = BackButton "&Terug"
    * MinimumAantal
  )");
}

TEST_F(RptFamiliesToets, HetMinimumLigtTussenEenEnDuizend) {
  for (const std::string minimum : {"", "0", "1001", "9999"}) {
    Speel("vul MinimumAantal " + minimum + "\ndruk OKButton\ntoets Escape", kOnjuist);
  }
  EXPECT_EQ(Lijst(), "");
  for (const std::string minimum : {"1", "1000"}) {
    Speel("vul MinimumAantal " + minimum + "\ndruk OKButton\ndruk BackButton\ndruk BackButton",
          "+ ToonTekst \"Takkenverdeling\"\n- ToonTekst\n");
  }
}

TEST_F(RptFamiliesToets, HetMinimumNeemtAlleenCijfersAan) {
  Speel("vul MinimumAantal -2a\ntoon MinimumAantal\ndruk BackButton", "= MinimumAantal \"2\"\n");
}

TEST_F(RptFamiliesToets, AchterDeLijstIsHetSchermNietMeerBezig) {
  BezigKijker kijker;
  Sessie([](Hoofdmodule& hoofd) {
    ASSERT_TRUE(Start(hoofd));
    hoofd.gesprek.Toon<RptFamilies>(hoofd);
  })(kijker);
  EXPECT_EQ(kijker.Gezien(), "ToonTekst ");
}

TEST_F(RptFamiliesToets, NaDeMeldingStaatDeFocusInHetVeld) {
  Speel("vul MinimumAantal 0\ndruk OKButton\ntoets 5\ntoon MinimumAantal\ndruk BackButton",
        std::string(kOnjuist) + "= MinimumAantal \"05\"\n");
}

TEST_F(RptFamiliesToets, EenBestandDatNietKanSluitHetScherm) {
  Versper();
  Speel("druk OKButton", NietOpen());
}

TEST_F(RptFamiliesToets, WieOnleesbaarIsWordtInStilteOvergeslagen) {
  MaakOnleesbaar(BestandSoort::Personen, 5);
  Speel("druk OKButton\ndruk BackButton\ndruk BackButton",
        "+ ToonTekst \"Takkenverdeling\"\n- ToonTekst\n");
  EXPECT_NE(Lijst().find("\r\n3: van Dam\r\n"), std::string::npos);
}

}  // namespace
}  // namespace lb77
