// The population graph by script.
#include "reports/LijstKeten.h"
#include "reports/RptTijdbalk.h"

namespace lb77 {
namespace {

class RptTijdbalkToets : public LijstKeten<RptTijdbalk> {
 protected:
  RptTijdbalkToets() : LijstKeten("ZOEK_TYD.TMP") {}
  std::string Kop() const override { return "RptTijdbalk \"Rapport Populatiegrafiek\""; }
};

constexpr std::string_view kGetoond = "+ ToonTekst \"Populatiegrafiek\"\n- ToonTekst\n";

TEST_F(RptTijdbalkToets, ToontDePeriodes) {
  Speel("vul PersNr 2\ndruk OKButton\ndruk BackButton\ndruk BackButton", kGetoond);
  EXPECT_NE(Lijst().find("\r\nPeriode : 1850-1899 : 3 (waarvan zeker 1)\r\n"), std::string::npos);
}

TEST_F(RptTijdbalkToets, ZonderRelatiesIsErEenRegel) {
  Speel("vul PersNr 9\ndruk OKButton\ndruk BackButton\ndruk BackButton", kGetoond);
  EXPECT_EQ(Lijst(),
            "Populatiegrafiek van afstammelingen van Kind Van Dam (P9)\r\n\r\n"
            "Periode : 1850-1899 : 1 (waarvan zeker 0)\r\n\r\nTotaal : 1 afstammeling\r\n\r\n");
}

TEST_F(RptTijdbalkToets, ToontZijnVelden) {
  Speel("toon\ndruk BackButton", R"(
    : RptTijdbalk "Rapport Populatiegrafiek"
    = UitlegLabel "De pouplatiegrafiek brengt de periode in beeld wanneer de nakomelingen van de opgegeven persoon in leven waren."
    = PersNr ""
    = ZoekButton "&Zoek Persoon"
    = OKButton "&OK"
    = BackButton "&Terug"
    * PersNr
  )");
}

TEST_F(RptTijdbalkToets, WieErNietIsIsGeenStamouder) {
  MaakVervolg(8);
  for (const std::string nr : {"", "0", "1", "77", "8", "99999"}) {
    Speel("vul PersNr " + nr + "\ndruk OKButton\ndruk BackButton",
          R"(! uitroep "Geen stamouder opgegeven")");
  }
  EXPECT_EQ(Lijst(), "");
}

TEST_F(RptTijdbalkToets, HetNummerNeemtAlleenCijfersAan) {
  Speel("vul PersNr -2a\ntoon PersNr\ndruk BackButton", "= PersNr \"2\"\n");
}

TEST_F(RptTijdbalkToets, EenBestandDatNietKanSluitHetScherm) {
  Versper();
  Speel("vul PersNr 2\ndruk OKButton", NietOpen());
}

}  // namespace
}  // namespace lb77
