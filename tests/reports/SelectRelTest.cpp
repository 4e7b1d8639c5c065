// The selection of relations by script.
#include "reports/LijstKeten.h"
#include "reports/SelectRel.h"

namespace lb77 {
namespace {

class SelectRelToets : public LijstKeten<SelectRel> {
 protected:
  SelectRelToets() : LijstKeten("ZOEK_REL.TMP") {}
  std::string Kop() const override { return "SelectRel \"Selecteer Relaties\""; }
};

constexpr std::string_view kGetoond = "+ ToonTekst \"Resultaat Selectie Relaties\"\n- ToonTekst\n";
constexpr std::string_view kNiets = "! uitroep \"Geen gegevens om naar te zoeken opgegeven\"\n";

TEST_F(SelectRelToets, ToontWatErGevondenIsEnBlijftOpen) {
  Speel("vul AchterNm  vos \ndruk OKButton\ndruk BackButton\ntoon AchterNm\ndruk BackButton",
        std::string(kGetoond) + "= AchterNm \"vos\"\n");
  EXPECT_EQ(Lijst(),
            "R:    2 01-05-1830 10-05-1830   -  -     P:2 x P:3\r\n\r\n"
            "1 Relaties gevonden.\r\n\r\n");
}

TEST_F(SelectRelToets, BegintMetBeideGeslachtenEnLegeDatums) {
  Speel("toon\ndruk BackButton", R"(
    : SelectRel "Selecteer Relaties"
    = VoorNm ""
    = AchterNm ""
    = ZoekMan aan
    = ZoekVrouw aan
    = HuwLabel "Ondertrouw, Wettelijk of Kerkelijk Huwelijk  in de Periode:"
    = VanDatumHuw "  -  -    "
    = TotDatumHuw "  -  -    "
    = OKButton "&OK"
    = BackButton "&Terug"
    * VoorNm
  )");
}

TEST_F(SelectRelToets, ZonderIetsOmTeZoekenKomtErEenMelding) {
  Speel("druk OKButton\ndruk BackButton", kNiets);
  Speel("stel ZoekMan uit\ndruk OKButton\ndruk BackButton", kNiets);
  EXPECT_EQ(Lijst(), "");
}

TEST_F(SelectRelToets, ElkVeldAlleenIsGenoeg) {
  for (const auto& [veld, gevonden] : {std::pair("VoorNm kee", "3"),
                                       {"AchterNm vos", "2"},
                                       {"VanDatumHuw 1-1-1850", "3"},
                                       {"TotDatumHuw 1-1-1840", "2"}}) {
    Speel("vul " + std::string(veld) + "\ndruk OKButton\ndruk BackButton\ndruk BackButton",
          kGetoond);
    EXPECT_EQ(Lijst().find("R:    " + std::string(gevonden) + " "), 0U) << veld;
    EXPECT_NE(Lijst().find("\r\n1 Relaties gevonden."), std::string::npos) << veld;
  }
}

TEST_F(SelectRelToets, EenVinkjeZoektAlleenAanDieKant) {
  Speel("vul VoorNm kee\nstel ZoekVrouw uit\ndruk OKButton\ndruk BackButton\ndruk BackButton",
        kGetoond);
  EXPECT_EQ(Lijst(), "\r\n0 Relaties gevonden.\r\n\r\n");
}

TEST_F(SelectRelToets, EenBestandDatNietKanSluitHetScherm) {
  Versper();
  Speel("vul AchterNm dam\ndruk OKButton", NietOpen());
}

TEST_F(SelectRelToets, WatOnleesbaarIsWordtInStilteOvergeslagen) {
  MaakOnleesbaar(BestandSoort::Relaties, 3);
  MaakOnleesbaar(BestandSoort::Personen, 5);
  Speel("vul AchterNm dam\ndruk OKButton\ndruk BackButton\ndruk BackButton",
        "+ ToonTekst \"Resultaat Selectie Relaties\"\n- ToonTekst\n");
  EXPECT_EQ(Lijst().find("R:    2 "), 0U);
  EXPECT_NE(Lijst().find("\r\n1 Relaties gevonden."), std::string::npos);
}

// kept: empty dates of a relation have "-" all the same.
TEST_F(SelectRelToets, DeDatumscheiderIsDieVanDeInstellingen) {
  ZetScheider('.');
  Speel(
      "vul VanDatumHuw 1-1-1852\ntoon VanDatumHuw\ndruk OKButton\ndruk BackButton\ndruk BackButton",
      "= VanDatumHuw \"01.01.1852\"\n" + std::string(kGetoond));
  EXPECT_EQ(Lijst().find("R:    3   -  -       -  -     06.07.1852 P:6 x P:4\r\n"), 0U);
}

}  // namespace
}  // namespace lb77
