// The selection of places by script.
#include "reports/LijstKeten.h"
#include "reports/SelectPlts.h"

namespace lb77 {
namespace {

class SelectPltsToets : public LijstKeten<SelectPlts> {
 protected:
  SelectPltsToets() : LijstKeten("ZOEKPLTS.TMP") {}
  std::string Kop() const override { return "SelectPlts \"Selecteer Plaatsen\""; }
};

constexpr std::string_view kGetoond = "+ ToonTekst \"Resultaat Selectie Plaatsen\"\n- ToonTekst\n";
constexpr std::string_view kNiets = "! uitroep \"Geen plaats om naar te zoeken opgegeven\"\n";
constexpr std::string_view kDelft =
    "? vraag Ja/Nee \"Gevonden: Delft (ZH). Is deze Plaats bedoeld ?\" -> Ja\n";
constexpr std::string_view kBreda =
    "? vraag Ja/Nee \"Gevonden: Breda (NB). Is deze Plaats bedoeld ?\" -> Ja\n";

TEST_F(SelectPltsToets, ToontWatErGevondenIsEnBlijftOpen) {
  Speel(R"(
      antwoord Ja
      vul PltsNm bre
      toon PltsNr
      toon PltsProv
      druk OKButton
      druk BackButton
      antwoord Ja
      vul PltsNm Delft
      druk OKButton
      toon UitvoerBox
      druk BackButton
      druk BackButton
    )",
        std::string(kBreda) + "= PltsNr \"3\"\n= PltsProv \"NB\"\n" +
            "+ ToonTekst \"Resultaat Selectie Plaatsen\"\n- ToonTekst\n" + std::string(kDelft) +
            R"(
              + ToonTekst "Resultaat Selectie Plaatsen"
              = UitvoerBox "P:    2 Geb:  01-02-1800\nP:    2 Doop: 03-02-1800\nR:    2 Otr:  01-05-1830\nR:    2 WHuw: 10-05-1830\nR:    3 KHuw: 06-07-1852"
              - ToonTekst
            )");
}

TEST_F(SelectPltsToets, BegintMetAlleGebeurtenissenAangevinkt) {
  Speel("toon\ndruk BackButton", R"(
    : SelectPlts "Selecteer Plaatsen"
    = PltsNm ""
    = PltsNr ""
    = PltsProv ""
    = ZoekGeb aan
    = ZoekDoop aan
    = ZoekOv aan
    = ZoekBegr aan
    = ZoekOtr aan
    = ZoekWetHuw aan
    = ZoekKerkHuw aan
    = OKButton "&OK"
    = BackButton "&Terug"
    * PltsNm
  )");
}

TEST_F(SelectPltsToets, ZonderBekendePlaatsKomtErEenMelding) {
  Speel("druk OKButton\ndruk BackButton", kNiets);
  Speel("vul PltsNm Goes\ndruk OKButton\ndruk BackButton",
        "! uitroep \"Plaatsnaam niet gevonden\"\n" + std::string(kNiets));
  EXPECT_EQ(Lijst(), "");
}

TEST_F(SelectPltsToets, ElkVinkjeHeeftZijnEigenGebeurtenis) {
  Bouw().Man("Alles", "Smit",
             {{"GebPlaats", "3"}, {"DoopPlaats", "3"}, {"OvlPlaats", "3"}, {"BegrPlaats", "3"}});
  Bouw().Relatie(10, 0, {}, {{"OtrPlaats", "3"}, {"WHuwPlaats", "3"}, {"KHuwPlaats", "3"}});
  const std::pair<std::string, std::string> vakken[] = {
      {"ZoekGeb", " Geb:  "},     {"ZoekDoop", " Doop: "}, {"ZoekOv", " Ov:   "},
      {"ZoekBegr", " Begr: "},    {"ZoekOtr", " Otr:  "},  {"ZoekWetHuw", " WHuw: "},
      {"ZoekKerkHuw", " KHuw: "},
  };
  for (const auto& [vak, label] : vakken) {
    Speel("antwoord Ja\nvul PltsNm Breda\nstel " + vak +
              " uit\ndruk OKButton\ndruk BackButton\ndruk BackButton",
          std::string(kBreda) + std::string(kGetoond));
    for (const auto& [ander, tekst] : vakken) {
      EXPECT_EQ(Lijst().find(tekst) == std::string::npos, ander == vak) << vak << ander;
    }
  }
}

TEST_F(SelectPltsToets, NietsGevondenGeeftEenLeegBestand) {
  Bouw().Plaats("Leiden", "ZH");
  Speel(
      "antwoord Ja\nvul PltsNm Leiden\ndruk OKButton\ntoon UitvoerBox\ndruk BackButton\n"
      "druk BackButton",
      R"(
          ? vraag Ja/Nee "Gevonden: Leiden (ZH). Is deze Plaats bedoeld ?" -> Ja
          + ToonTekst "Resultaat Selectie Plaatsen"
          = UitvoerBox "<< Het bestand is leeg >>"
          - ToonTekst
        )");
  EXPECT_EQ(Lijst(), "");
}

TEST_F(SelectPltsToets, EenBestandDatNietKanSluitHetScherm) {
  Versper();
  Speel("antwoord Ja\nvul PltsNm Delft\ndruk OKButton", std::string(kDelft) + NietOpen());
}

TEST_F(SelectPltsToets, WatOnleesbaarIsWordtInStilteOvergeslagen) {
  MaakOnleesbaar(BestandSoort::Personen, 2);
  MaakOnleesbaar(BestandSoort::Relaties, 2);
  Speel("antwoord Ja\nvul PltsNm Delft\ndruk OKButton\ndruk BackButton\ndruk BackButton",
        std::string(kDelft) + std::string(kGetoond));
  EXPECT_EQ(Lijst(), "R:    3 KHuw: 06-07-1852\r\n");
}

TEST_F(SelectPltsToets, DeDatumscheiderIsDieVanDeInstellingen) {
  ZetScheider('.');
  Speel("antwoord Ja\nvul PltsNm Delft\ndruk OKButton\ndruk BackButton\ndruk BackButton",
        std::string(kDelft) + std::string(kGetoond));
  EXPECT_EQ(Lijst().find("P:    2 Geb:  01.02.1800\r\n"), 0U);
}

}  // namespace
}  // namespace lb77
