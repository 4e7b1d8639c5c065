#include "entry/OpmToets.h"
#include "entry/ToonPersOpm.h"

namespace lb77 {
namespace {

class ToonPersOpmTest : public OpmToets {
 protected:
  void Toont(std::string_view draaiboek, std::int16_t persoon, std::string_view verslag,
             const Plek& plek = Plek::current()) {
    Verwacht(
        draaiboek, [&](Hoofdmodule& hoofd) { hoofd.gesprek.Toon<ToonPersOpm>(hoofd, persoon); },
        verslag, plek);
  }
};

TEST_F(ToonPersOpmTest, ToontVanElkeRubriekDeEersteRegel) {
  for (const RubriekNaam& naam : kPersoonRubrieken) {
    Bouw().OpmerkingBijPersoon(2, naam.rubriek, {"Bij " + GetalTekst(naam.rubriek), "tweede"});
  }
  Toont("toon\ndruk BackButton", 2, R"(
    + ToonPersOpm "Toon Opmerkingen Persoon"
    : ToonPersOpm "Toon Opmerkingen Persoon"
    = RecordNr "2"
    = Naam "Jan de Vries"
    = (*) Rubriek EersteRegel
    = (1) ">> Achternaam" "Bij 1"
    = (2) ">> Voornaam" "Bij 2"
    = (3) ">> Geb Plaats" "Bij 4"
    = (4) ">> Geb Datum" "Bij 8"
    = (5) ">> Doop Plaats" "Bij 16"
    = (6) ">> Doop Datum" "Bij 32"
    = (7) ">> Religie" "Bij 64"
    = (8) ">> Ov Plaats" "Bij 128"
    = (9) ">> Ov Datum" "Bij 256"
    = (10) ">> Begr Plaats" "Bij 512"
    = (11) ">> Begr Datum" "Bij 1024"
    = (12) ">> Beroep" "Bij 2048"
    = (13) ">> Algemeen" "Bij 4096"
    = BackButton "&Terug"
    * Rubriek(1)
    - ToonPersOpm
  )");
}

TEST_F(ToonPersOpmTest, ElkeKnopLeidtNaarZijnOpmerking) {
  const auto plaats = Bouw().Plaats("Delft");
  Bouw().WijzigPersoon(2, {{"GebDatum", "01-02-1900"},
                           {"GebPlaats", plaats},
                           {"Beroep", "smid"},
                           {"DoopReligie", "NH"},
                           {"OvlPlaats", plaats + 10000}});
  const std::pair<int, std::string_view> waarden[] = {
      {1, "de Vries"}, {2, "Jan"},         {3, "Delft"}, {4, "01.02.1900"}, {5, ""},  {6, ""},
      {7, "NH"},       {8, "verm. Delft"}, {9, ""},      {10, ""},          {11, ""}, {12, "smid"}};
  for (const auto& [nummer, waarde] : waarden) {
    Toont("druk Rubriek(" + GetalTekst(nummer) +
              ")\ntoon VeldLabel\ntoon VeldWaarde\ndruk BackButton\ndruk BackButton",
          2,
          "+ ToonPersOpm \"Toon Opmerkingen Persoon\"\n"
          "! uitroep \"Er is hier geen Opmerking aanwezig\"\n+ ToonOpm \"Toon Opmerking\"\n"
          "= VeldLabel \"" +
              std::string(kPersoonRubrieken[static_cast<std::size_t>(nummer - 1)].opschrift) +
              "\"\n= VeldWaarde \"" + std::string(waarde) + "\"\n- ToonOpm\n- ToonPersOpm\n");
  }
}

TEST_F(ToonPersOpmTest, WatErBijKwamStaatErDaarna) {
  Toont(
      "druk Rubriek(13)\ntoon VeldLabel\ndruk WijzigButton\nvul OpmTekst Een man van zijn woord\n"
      "druk Opslaan\ndruk BackButton\ntoon EersteRegel(13)\ntoets Escape",
      2, R"(
    + ToonPersOpm "Toon Opmerkingen Persoon"
    ! uitroep "Er is hier geen Opmerking aanwezig"
    + ToonOpm "Toon Opmerking"
    = VeldLabel ">> Algemeen" [verborgen]
    + WijzigOpm "Wijzig Opmerking"
    - WijzigOpm
    - ToonOpm
    = EersteRegel(13) "Een man van zijn woord"
    - ToonPersOpm
  )");
}

TEST_F(ToonPersOpmTest, EenPersoonDieErNietIs) {
  MaakVervolg(3);
  for (const int nr : {-1, 1, 4}) {
    Toont("", static_cast<std::int16_t>(nr),
          R"(! uitroep "Het opgegeven Persoonsnummer komt niet voor")");
  }
  Toont("", 3, R"(! uitroep "Het opgegeven record is een vervolgrecord")");
}

class ToonPersOpmLeeg : public FamilieToets {};

TEST_F(ToonPersOpmLeeg, EenSetZonderPersonenWordtGemeld) {
  Verwacht(
      "",
      [](Hoofdmodule& hoofd) {
        hoofd.volgers.HuidigPersoonNr = 2;
        hoofd.gesprek.Toon<ToonPersOpm>(hoofd, std::int16_t{2});
        EXPECT_EQ(hoofd.volgers.HuidigPersoonNr, -1);
      },
      R"(! uitroep "Er zijn geen Persoonsrecords aanwezig")");
}

}  // namespace
}  // namespace lb77
