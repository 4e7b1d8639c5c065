// The selection of persons by script.
#include "reports/LijstKeten.h"
#include "reports/SelectPrs.h"

namespace lb77 {
namespace {

class SelectPrsToets : public LijstKeten<SelectPrs> {
 protected:
  SelectPrsToets() : LijstKeten("ZOEK_PRS.TMP") {}
  std::string Kop() const override { return "SelectPrs \"Selecteer Personen\""; }
};

constexpr std::string_view kGetoond = "+ ToonTekst \"Resultaat Selectie Personen\"\n- ToonTekst\n";
constexpr std::string_view kNiets = "! uitroep \"Geen gegevens om naar te zoeken opgegeven\"\n";

TEST_F(SelectPrsToets, ToontWatErGevondenIsEnBlijftOpen) {
  Speel(R"(
      vul AchterNm  DAM
      druk OKButton
      druk BackButton
      toon AchterNm
      vul AchterNm wit
      druk OKButton
      druk BackButton
      druk BackButton
    )",
        std::string(kGetoond) + "= AchterNm \"DAM\"\n" + std::string(kGetoond));
  EXPECT_NE(Lijst().find("P:    6 : de Wit  "), std::string::npos);
  EXPECT_NE(Lijst().find("\r\n1 Personen gevonden.\r\n\r\n"), std::string::npos);
}

TEST_F(SelectPrsToets, BegintMetBeideGeslachtenEnLegeDatums) {
  Speel("toon\ndruk BackButton", R"(
    : SelectPrs "Selecteer Personen"
    = ZoekLabel "Zoek naar Personen met:"
    = VoorNm ""
    = AchterNm ""
    = BeroepTekst ""
    = ZoekMan aan
    = ZoekVrouw aan
    = GebLabel "Geboorte of Doop in de Periode:"
    = VanDatumGeb "  -  -    "
    = TotDatumGeb "  -  -    "
    = OvLabel "Overlijden of Begraven in de Periode:"
    = VanDatumOv "  -  -    "
    = TotDatumOv "  -  -    "
    = OKButton "&OK"
    = BackButton "&Terug"
    * VoorNm
  )");
}

TEST_F(SelectPrsToets, ZonderIetsOmTeZoekenKomtErEenMelding) {
  Speel("druk OKButton\ndruk BackButton", kNiets);
  Speel("stel ZoekVrouw uit\ndruk OKButton\ndruk BackButton", kNiets);
  Speel(
      "vul VoorNm \"  \"\nvul VanDatumGeb\nvul TotDatumOv\ndruk OKButton\ntoon VanDatumGeb\n"
      "druk BackButton",
      std::string(kNiets) + "= VanDatumGeb \"  -  -    \"\n");
  EXPECT_EQ(Lijst(), "");
}

TEST_F(SelectPrsToets, ElkVeldAlleenIsGenoeg) {
  for (const auto& [veld, gevonden] : {std::pair("VoorNm jan", "2"),
                                       {"AchterNm vos", "3"},
                                       {"BeroepTekst knecht", "6"},
                                       {"VanDatumGeb 1-1-1860", "9"},
                                       {"TotDatumGeb 31-12-1804", "2"},
                                       {"VanDatumOv 1-1-1900", "5"},
                                       {"TotDatumOv 31-12-1871", "2"}}) {
    Speel("vul " + std::string(veld) + "\ndruk OKButton\ndruk BackButton\ndruk BackButton",
          kGetoond);
    EXPECT_EQ(Lijst().find("P:    " + std::string(gevonden) + " : "), 0U) << veld;
    EXPECT_NE(Lijst().find("\r\n1 Personen gevonden."), std::string::npos) << veld;
  }
}

TEST_F(SelectPrsToets, ZonderGeslachtWordtNiemandGevonden) {
  Speel(
      "vul AchterNm dam\nstel ZoekMan uit\nstel ZoekVrouw uit\ndruk OKButton\ndruk BackButton\n"
      "druk BackButton",
      kGetoond);
  EXPECT_EQ(Lijst(), "\r\n0 Personen gevonden.\r\n\r\n");
}

TEST_F(SelectPrsToets, EenOngeldigeDatumHoudtDeFocus) {
  Speel(
      "vul VanDatumGeb 31-13-1800\ntoon VanDatumGeb\nvul VanDatumGeb 1-1-1800\n"
      "toon VanDatumGeb\ndruk BackButton",
      R"~(
        ! uitroep "Maand bestaat niet"
        = VanDatumGeb "31-13-1800"
        = VanDatumGeb "01-01-1800"
      )~");
}

TEST_F(SelectPrsToets, EenBestandDatNietKanSluitHetScherm) {
  Versper();
  Speel("vul AchterNm dam\ndruk OKButton", NietOpen());
}

TEST_F(SelectPrsToets, EenVerzoekOmTeStoppenToontNiets) {
  Speel(
      "onderbreek 3\nantwoord Ja\nvul AchterNm dam\ndruk OKButton\ntoon OKButton\ndruk BackButton",
      R"(
          ? vraag Ja/Nee "Opbouw Afbreken ?" -> Ja
          = OKButton "&OK"
        )");
}

TEST_F(SelectPrsToets, NaEenStopBegintHetZoekenOpnieuw) {
  Speel(
      "onderbreek 3\nantwoord Ja\nvul AchterNm dam\ndruk OKButton\ndruk OKButton\n"
      "druk BackButton\ndruk BackButton",
      R"(? vraag Ja/Nee "Opbouw Afbreken ?" -> Ja)"
      "\n" +
          std::string(kGetoond));
  EXPECT_NE(Lijst().find("\r\n4 Personen gevonden."), std::string::npos);
}

TEST_F(SelectPrsToets, WieOnleesbaarIsWordtInStilteOvergeslagen) {
  MaakOnleesbaar(BestandSoort::Personen, 5);
  Speel("vul AchterNm dam\ndruk OKButton\ndruk BackButton\ndruk BackButton", kGetoond);
  EXPECT_EQ(Lijst().find("P:    5"), std::string::npos);
  EXPECT_NE(Lijst().find("\r\n3 Personen gevonden."), std::string::npos);
}

TEST_F(SelectPrsToets, EenOnjuistAantalWordtGemeld) {
  Bouw().ZetAantalPersonen(20);
  Speel("vul AchterNm dam\ndruk OKButton\ndruk BackButton\ndruk BackButton",
        R"(
          ! uitroep "Aantal persoonsrecords in administratierecord is onjuist\nGevonden:9\nVolgens administratierecord:21"
        )" + std::string(kGetoond));
  EXPECT_NE(Lijst().find("\r\n4 Personen gevonden."), std::string::npos);
}

TEST_F(SelectPrsToets, NeeOpHetAfbrekenGaatVerder) {
  Speel(
      "onderbreek 3\nantwoord Nee\nvul AchterNm dam\ndruk OKButton\ndruk BackButton\n"
      "druk BackButton",
      R"(? vraag Ja/Nee "Opbouw Afbreken ?" -> Nee)"
      "\n" +
          std::string(kGetoond));
  EXPECT_NE(Lijst().find("\r\n4 Personen gevonden."), std::string::npos);
}

TEST_F(SelectPrsToets, DeDatumscheiderIsDieVanDeInstellingen) {
  ZetScheider('.');
  Speel(R"(
      toon VanDatumGeb
      druk OKButton
      vul VanDatumGeb 1.1.1860
      toon VanDatumGeb
      druk OKButton
      druk BackButton
      vul VanDatumGeb
      toon VanDatumGeb
      druk OKButton
      druk BackButton
    )",
        "= VanDatumGeb \"  .  .    \"\n" + std::string(kNiets) + "= VanDatumGeb \"01.01.1860\"\n" +
            std::string(kGetoond) + "= VanDatumGeb \"  .  .    \"\n" + std::string(kNiets));
  EXPECT_EQ(Lijst().find("P:    9 : "), 0U);
  EXPECT_NE(Lijst().find("\r\n1 Personen gevonden."), std::string::npos);
}

}  // namespace
}  // namespace lb77
