#include "entry/OpmToets.h"
#include "entry/ToonOpm.h"
#include "steun/NepGesprek.h"
#include "store/SetPaden.h"

namespace lb77 {
namespace {

class ToonOpmTest : public OpmToets {
 protected:
  void Maak(const std::vector<std::string>& regels, std::int16_t prog = 1) {
    Bouw().OpmerkingBijPersoon(2, persoonrubriek::kVoornaam, regels, prog);
  }
  // What stands between the opening and the closing.
  void Speelt(std::string_view draaiboek, std::string_view verslag,
              const Plek& plek = Plek::current()) {
    Toont(std::string(draaiboek) + "\ndruk BackButton", Voornaam(),
          "+ ToonOpm \"Toon Opmerking\"\n" + Regels(verslag) + "- ToonOpm\n", plek);
  }
};

TEST_F(ToonOpmTest, ToontDeOpmerkingEnHaarVinkjes) {
  Maak({"Eerste regel", "en de tweede"}, 18);
  Speelt("toon", R"(
    : ToonOpm "Toon Opmerking"
    = RecordNr "2"
    = Naam "Jan de Vries"
    = NaamPartner "" [verborgen]
    = VeldLabel ">> Voornaam"
    = VeldWaarde "Jan"
    = OpmTekst "Eerste regel en de tweede"
    = BijKWST uit [uit]
    = BijSTRK aan [uit]
    = BijGEN uit [uit]
    = BijGEZIN aan [uit]
    = BijHTML uit [uit]
    = MeerOpm "&Volgende" [verborgen]
    = MaakMeer "&Meer"
    = WijzigButton "&Wijzigen"
    = BackButton "&Terug"
    * WijzigButton
  )");
}

TEST_F(ToonOpmTest, ZonderOpmerkingWordtDatBijHetOpenenGemeld) {
  Toont("toon MeerOpm\ntoon MaakMeer\ndruk WijzigButton\ndruk Opslaan\ndruk BackButton", Voornaam(),
        R"(
    ! uitroep "Er is hier geen Opmerking aanwezig"
    + ToonOpm "Toon Opmerking"
    = MeerOpm "&Volgende" [verborgen]
    = MaakMeer "&Meer" [verborgen]
    + WijzigOpm "Wijzig Opmerking"
    - WijzigOpm
    - ToonOpm
  )");
}

TEST_F(ToonOpmTest, WijzigenMaaktEenEersteOpmerking) {
  Toont(
      "druk WijzigButton\nvul OpmTekst Nieuw\ndruk Opslaan\ntoon OpmTekst\ntoon MaakMeer\n"
      "druk BackButton",
      Voornaam(), R"(
    ! uitroep "Er is hier geen Opmerking aanwezig"
    + ToonOpm "Toon Opmerking"
    + WijzigOpm "Wijzig Opmerking"
    - WijzigOpm
    = OpmTekst "Nieuw"
    = MaakMeer "&Meer"
    - ToonOpm
  )");
}

TEST_F(ToonOpmTest, EenLeeggemaakteOpmerkingGeeftGeenMelding) {
  Maak({"een"});
  Speelt("druk WijzigButton\nvul OpmTekst\ndruk Opslaan\ntoon OpmTekst\ntoon MaakMeer", R"(
    + WijzigOpm "Wijzig Opmerking"
    - WijzigOpm
    = OpmTekst ""
    = MaakMeer "&Meer" [verborgen]
  )");
  EXPECT_EQ(Eigenaar(), "0 0");
}

TEST_F(ToonOpmTest, DeVolgendeVanDezelfdeRubriek) {
  Maak({"een"});
  Bouw().OpmerkingBijPersoon(2, persoonrubriek::kBeroep, {"smid"});
  Maak({"twee"}, 64);
  Speelt(
      "toon MeerOpm\ntoon MaakMeer\ndruk MeerOpm\ntoon OpmTekst\ntoon BijHTML\ntoon MeerOpm\n"
      "toon MaakMeer",
      R"(
    = MeerOpm "&Volgende"
    = MaakMeer "&Meer" [verborgen]
    = OpmTekst "twee"
    = BijHTML aan [uit]
    = MeerOpm "&Volgende" [verborgen]
    = MaakMeer "&Meer"
  )");
}

TEST_F(ToonOpmTest, TienRegelsZijnNogGeenTweedeOpmerking) {
  Maak({"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"});
  Speelt("toon OpmTekst\ntoon MeerOpm\ntoon MaakMeer", R"(
    = OpmTekst "1 2 3 4 5 6 7 8 9 10"
    = MeerOpm "&Volgende" [verborgen]
    = MaakMeer "&Meer"
  )");
}

TEST_F(ToonOpmTest, MeerMaaktEenTweedeOpmerking) {
  Maak({"een"});
  Speelt("druk MaakMeer\nvul OpmTekst twee\ndruk Opslaan\ntoon OpmTekst\ntoon MaakMeer", R"(
    + WijzigOpm "Wijzig Opmerking"
    - WijzigOpm
    = OpmTekst "twee"
    = MaakMeer "&Meer"
  )");
  Speelt("toon OpmTekst\ntoon MeerOpm", R"(
    = OpmTekst "een"
    = MeerOpm "&Volgende"
  )");
  EXPECT_EQ(Eigenaar(), "2 2");
}

TEST_F(ToonOpmTest, MeerDieNietsOpsloegGaatTerugNaarDeVorige) {
  Maak({"een"});
  const std::string voor = LeesBytes(OpmBestand());
  Speelt(
      "druk MaakMeer\ndruk Opslaan\ntoon OpmTekst\ntoon MaakMeer\n"
      "druk MaakMeer\ntyp OpmTekst twee\ntoets Escape\ntoon OpmTekst\n"
      "druk WijzigButton\ntoon OpmTekst\ndruk BackButton",
      R"(
    + WijzigOpm "Wijzig Opmerking"
    - WijzigOpm
    = OpmTekst "een"
    = MaakMeer "&Meer"
    + WijzigOpm "Wijzig Opmerking"
    - WijzigOpm
    = OpmTekst "een"
    + WijzigOpm "Wijzig Opmerking"
    = OpmTekst "een"
    - WijzigOpm
  )");
  EXPECT_EQ(LeesBytes(OpmBestand()), voor);
}

TEST_F(ToonOpmTest, DeAlgemeneOpmerkingHeeftGeenVeld) {
  Bouw().OpmerkingBijPersoon(2, persoonrubriek::kAlgemeen, {"een"});
  Bouw().OpmerkingBijRelatie(2, relatierubriek::kAlgemeen, {"twee"});
  for (const std::int16_t rubriek : {persoonrubriek::kAlgemeen, relatierubriek::kAlgemeen}) {
    Toont("toon VeldLabel\ntoon VeldWaarde\ndruk BackButton", OpmVraagOpKaart(2, rubriek, "x"), R"(
      + ToonOpm "Toon Opmerking"
      = VeldLabel ">> Algemeen" [verborgen]
      = VeldWaarde "x" [verborgen]
      - ToonOpm
    )");
  }
}

TEST_F(ToonOpmTest, EenPartnerZonderNaamIsOnbekend) {
  Bouw().Relatie(0, Bouw().Vrouw("", ""));
  Bouw().OpmerkingBijRelatie(3, relatierubriek::kHuwSoort, {"een"});
  Toont("toon Naam\ntoon NaamPartner\ntoon OpmTekst\ndruk BackButton",
        OpmVraagOpKaart(3, relatierubriek::kHuwSoort, ""), R"(
    + ToonOpm "Toon Opmerking"
    = Naam "<onbekend>"
    = NaamPartner "<onbekend> <onbekend>"
    = OpmTekst "een"
    - ToonOpm
  )");
}

TEST_F(ToonOpmTest, EenEigenaarDieErNietIsSluitHetFormulier) {
  Toont("", MaakOpmVraag(4, persoonrubriek::kVoornaam, ""),
        R"(! uitroep "Het opgegeven Persoonsnummer komt niet voor")");
  Toont("", MaakOpmVraag(3, relatierubriek::kHuwSoort, ""),
        R"(! uitroep "Het opgegeven Relatienummer komt niet voor")");
}

TEST_F(ToonOpmTest, EenOnleesbareEigenaarWordtGemeld) {
  Bouw().Relatie(2, 0);
  Bouw().Man("Piet", "");
  MaakOnleesbaar(BestandSoort::Personen, 3);
  MaakOnleesbaar(BestandSoort::Relaties, 2);
  Toont("", MaakOpmVraag(3, persoonrubriek::kVoornaam, ""), R"(
    ! stop "Fout bij het lezen van Persoonsrecord 3\nFout van de schijf"
    ! stop "Leesfout bij persoonsrecord 3"
  )");
  Toont("", MaakOpmVraag(2, relatierubriek::kHuwSoort, ""), R"(
    ! stop "Fout bij het lezen van Relatierecord 2\nFout van de schijf"
    ! stop "Leesfout bij relatierecord 2"
  )");
}

// By the dialog that was to change the remark, not a second time by this one.
TEST_F(ToonOpmTest, EenEigenaarDieWegraaktWordtEenKeerGemeld) {
  Maak({"een"});
  for (const bool meer : {false, true}) {
    NepGesprek gesprek;
    const VasteKlok klok{{.jaar = 2000, .maand = 1, .dag = 1}};
    Hoofdmodule hoofd(gesprek, klok, Map());
    ASSERT_FALSE(hoofd.bestanden.OpenSet(SetPaden::Van(Map(), "PROEF")));
    ToonOpm form(hoofd, MaakOpmVraag(2, persoonrubriek::kVoornaam, ""), 1);
    ASSERT_TRUE(form.Laad());
    ASSERT_TRUE(hoofd.Persoon.Wijzig(2, {{"GebCorr", "Z"}}));
    form.Klik(meer ? form.MaakMeer : form.WijzigButton);
    EXPECT_TRUE(form.Gesloten());
    EXPECT_EQ(gesprek.Neem(),
              std::vector<std::string>{"! uitroep \"Het opgegeven record is een vervolgrecord\""});
    ASSERT_TRUE(hoofd.Persoon.Wijzig(2, {{"GebCorr", " "}}));
  }
}

TEST_F(ToonOpmTest, EenKringVanOpmerkingenLooptTenEinde) {
  Maak({"een"});
  Maak({"twee"});
  ZetGetal(3, 8, 3);
  Speelt(
      "druk MeerOpm\ntoon OpmTekst\ntoon MeerOpm\ndruk MaakMeer\ntoon OpmTekst\n"
      "vul OpmTekst drie\ndruk Opslaan\ndruk BackButton\ntoon OpmTekst",
      R"(
    = OpmTekst "twee"
    = MeerOpm "&Volgende" [verborgen]
    + WijzigOpm "Wijzig Opmerking"
    = OpmTekst ">> Verkeerde verwijzing: opm-record 3 bestaat niet <<"
    ! uitroep "Deze opmerking is niet geheel te lezen.\nZij kan hier niet gewijzigd worden"
    - WijzigOpm
    = OpmTekst "twee"
  )");
}

// The lines of one more would have no number any more.
TEST_F(ToonOpmTest, NaDeLaatsteDieEenNummerHeeftKanErGeenMeerBij) {
  constexpr int kLaatste = 3276;
  for (int i = 0; i < kLaatste; ++i) Maak({"x"});
  Verwacht(
      "toon OpmTekst\ntoon MeerOpm\ntoon MaakMeer\ndruk BackButton",
      [](Hoofdmodule& hoofd) {
        const std::int16_t regel = 10 * (kLaatste - 1) + 1;
        hoofd.gesprek.Toon<ToonOpm>(hoofd, Voornaam(), regel);
      },
      R"(
    + ToonOpm "Toon Opmerking"
    = OpmTekst "x"
    = MeerOpm "&Volgende" [verborgen]
    = MaakMeer "&Meer" [verborgen]
    - ToonOpm
  )");
}

}  // namespace
}  // namespace lb77
