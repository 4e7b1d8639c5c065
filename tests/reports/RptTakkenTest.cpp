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
  Speel("vul PersNr 7\ndruk OKButton\ntoon\ndruk BackButton", R"(
    ! uitroep "Geen nazaten voor de opgegeven stamouder"
    : RptTakken "Rapport Takkenverdeling"
    = UitlegLabel "De takkenverdeling brengt het aantal nakomelingen en aangetrouwden in beeld van de kinderen van de opgegeven persoon."
    = PersNr "7"
    = ZoekButton "&Zoek Persoon"
    = AantalTakken "0"
    = OKButton "&OK"
    = BackButton "&Terug"
    * PersNr
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
  for (const std::string zoek : {"druk ZoekButton", "toets PersNr F2"}) {
    Speel(zoek + "\ndruk RecordNrPrs(1)\ntoon\ndruk BackButton", R"(
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
}

TEST_F(RptTakkenToets, EenBestandDatNietKanSluitHetScherm) {
  Versper();
  Speel("vul PersNr 2\ndruk OKButton", NietOpen());
}

TEST_F(RptTakkenToets, EenVerzoekOmTeStoppenToontNiets) {
  Speel("onderbreek 1\nantwoord Ja\nvul PersNr 2\ndruk OKButton\ndruk BackButton",
        R"(? vraag Ja/Nee "Opbouw Afbreken ?" -> Ja)");
}

TEST_F(RptTakkenToets, WatOnleesbaarIsWordtInStilteOvergeslagen) {
  MaakOnleesbaar(BestandSoort::Personen, 4);
  MaakOnleesbaar(BestandSoort::Relaties, 4);
  Speel("vul PersNr 2\ndruk OKButton\ndruk BackButton\ndruk BackButton", kGetoond);
  EXPECT_NE(Lijst().find("\r\ntak 1 (P4)  : 0 afstammeling\r\n"
                         "tak 2 (P5)  : 1 afstammeling\r\n"),
            std::string::npos);
}

// The reads of that one person are told, as he is the one who was asked for.
TEST_F(RptTakkenToets, EenOnleesbareStamouderWordtGemeld) {
  MaakOnleesbaar(BestandSoort::Personen, 2);
  Speel("vul PersNr 2\ndruk OKButton\ndruk BackButton",
        R"(! stop "Fout bij het lezen van Persoonsrecord 2\nFout van de schijf")"
        "\n" +
            std::string(kNiemand));
}

TEST_F(RptTakkenToets, DeTellerBegintOpnieuw) {
  Speel(
      "vul PersNr 2\ndruk OKButton\ndruk BackButton\nvul PersNr 77\ndruk OKButton\n"
      "toon AantalTakken\ndruk BackButton",
      std::string(kGetoond) + std::string(kNiemand) + "= AantalTakken \"\"\n");
}

TEST_F(RptTakkenToets, NeeOpHetAfbrekenGaatVerder) {
  Speel("onderbreek 1\nantwoord Nee\nvul PersNr 2\ndruk OKButton\ndruk BackButton\ndruk BackButton",
        R"(? vraag Ja/Nee "Opbouw Afbreken ?" -> Nee)"
        "\n" +
            std::string(kGetoond));
  EXPECT_NE(Lijst().find("\r\ntak 2 (P5)  : 2 afstammelingen\r\n"), std::string::npos);
}

}  // namespace
}  // namespace lb77
