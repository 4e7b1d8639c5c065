// The branch distribution by script.
#include "reports/LijstKeten.h"
#include "reports/RptTakken.h"

namespace lb77 {
namespace {

class RptTakkenToets : public LijstKeten<RptTakken> {
 protected:
  RptTakkenToets() : LijstKeten("ZOEK_TAK.TMP") {}
  std::string Kop() const override { return "RptTakken \"Rapport Takkenverdeling\""; }
};

constexpr std::string_view kGetoond = "+ ToonTekst \"Takkenverdeling\"\n- ToonTekst\n";
constexpr std::string_view kNiemand = "! uitroep \"Geen stamouder opgegeven\"\n";

TEST_F(RptTakkenToets, ToontDeTakkenEnHunAantal) {
  Speel("vul PersNr 2\ndruk OKButton\ndruk BackButton\ntoon AantalTakken\ndruk BackButton",
        std::string(kGetoond) + "= AantalTakken \"2\"\n");
  EXPECT_NE(Lijst().find("\r\ntak 2 (P5)  : 2 afstammelingen\r\n"), std::string::npos);
}

TEST_F(RptTakkenToets, ToontZijnVelden) {
  Speel("toon\ndruk BackButton", R"(
    : RptTakken "Rapport Takkenverdeling"
    = UitlegLabel "De takkenverdeling brengt het aantal nakomelingen en aangetrouwden in beeld van de kinderen van de opgegeven persoon."
    = PersNr ""
    = ZoekButton "&Zoek Persoon"
    = AantalTakken ""
    = OKButton "&OK"
    = BackButton "&Terug"
    * PersNr
  )");
}

TEST_F(RptTakkenToets, WieErNietIsIsGeenStamouder) {
  MaakVervolg(8);
  for (const std::string nr : {"", "0", "1", "77", "8", "99999"}) {
    Speel("vul PersNr " + nr + "\ndruk OKButton\ndruk BackButton", kNiemand);
  }
  EXPECT_EQ(Lijst(), "");
}

TEST_F(RptTakkenToets, ZonderKinderenZijnErGeenTakken) {
  Speel("vul PersNr 7\ndruk OKButton\ntoon AantalTakken\ndruk BackButton", R"(
    ! uitroep "Geen nazaten voor de opgegeven stamouder"
    = AantalTakken "0"
  )");
  EXPECT_EQ(Lijst(), "");
}

TEST_F(RptTakkenToets, ZoekenVultHetNummer) {
  Speel(
      "druk ZoekButton\ndruk RecordNrPrs(4)\ntoon PersNr\ndruk ZoekButton\ndruk BackButton\n"
      "toon PersNr\ntoets PersNr F2\ndruk RecordNrPrs(1)\ntoon PersNr\ndruk BackButton",
      R"(
          + ZoekPrs "Zoek Persoon"
          - ZoekPrs
          = PersNr "5"
          + ZoekPrs "Zoek Persoon"
          - ZoekPrs
          = PersNr "5"
          + ZoekPrs "Zoek Persoon"
          - ZoekPrs
          = PersNr "2"
        )");
}

TEST_F(RptTakkenToets, NaHetZoekenStaatDeFocusOpOK) {
  Speel("druk ZoekButton\ndruk RecordNrPrs(1)\ntoon\ndruk BackButton", R"(
          + ZoekPrs "Zoek Persoon"
          - ZoekPrs
          : RptTakken "Rapport Takkenverdeling"
          = UitlegLabel "De takkenverdeling brengt het aantal nakomelingen en aangetrouwden in beeld van de kinderen van de opgegeven persoon."
          = PersNr "2"
          = ZoekButton "&Zoek Persoon"
          = AantalTakken ""
          = OKButton "&OK"
          = BackButton "&Terug"
          * OKButton
        )");
}

TEST_F(RptTakkenToets, EenBestandDatNietKanSluitHetScherm) {
  Versper();
  Speel("vul PersNr 2\ndruk OKButton", NietOpen());
}

TEST_F(RptTakkenToets, EenVerzoekOmTeStoppenToontNiets) {
  Speel("onderbreek 1\nantwoord Ja\nvul PersNr 2\ndruk OKButton\ndruk BackButton",
        R"(? vraag Ja/Nee "Opbouw Afbreken ?" -> Ja)");
}

}  // namespace
}  // namespace lb77
