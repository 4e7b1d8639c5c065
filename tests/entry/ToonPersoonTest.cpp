#include <gtest/gtest.h>

#include "KaartToets.h"

namespace lb77 {
namespace {

class ToonPersoonTest : public KaartToets {
 protected:
  // Expects that loading tells this, and that the empty card closes by itself.
  void WordtGeweigerd(std::int16_t nr, std::string_view melding,
                      const Plek& plek = Plek::current()) {
    Verwacht("", Loop(ToonPersoonVraag, nr), Regels(melding) + kPersoonOpen + "- ToonPersoon\n",
             plek);
  }
  // A person with the most that a card can show.
  void Uitgebreid() {
    Bouw().Plaats("Delft", "ZH");
    Bouw().Man("Jan", "Vos",
               {{"GebDatum", "01.02.1850"},
                {"GebCorr", "C"},
                {"GebPlaats", "2"},
                {"DoopDatum", "03.02.1850"},
                {"DoopPlaats", "10002"},
                {"DoopReligie", "XX"},
                {"OvlDatum", "04.05.1920"},
                {"OvlPlaats", "2"},
                {"BegrDatum", "08.05.1920"},
                {"BegrPlaats", "2"},
                {"Beroep", "smid"}});
  }
};

TEST_F(ToonPersoonTest, ToontElkVeldVanDePersoon) {
  Uitgebreid();
  OpPersoon(
      "toon RecordNr\ntoon Geslacht\ntoon VoorNm\ntoon AchterNm\ntoon GebCorr\ntoon GebDatum\n"
      "toon GebPltsNm\ntoon GebPltsNr\ntoon DoopDatum\ntoon DoopPltsNm\ntoon DoopPltsNr\n"
      "toon ReligieCode\ntoon ReligieTekst\ntoon OvlDatum\ntoon BegrLabel\ntoon BegrDatum\n"
      "toon BegrPltsNm\ntoon BeroepTekst",
      2, R"(
    = RecordNr "2"
    = Geslacht "M"
    = VoorNm "Jan"
    = AchterNm "Vos"
    = GebCorr "C"
    = GebDatum "01.02.1850"
    = GebPltsNm "Delft"
    = GebPltsNr "2"
    = DoopDatum "03.02.1850"
    = DoopPltsNm "Delft"
    = DoopPltsNr "10002"
    = ReligieCode "XX"
    = ReligieTekst "XX"
    = OvlDatum "04.05.1920"
    = BegrLabel "Begraven"
    = BegrDatum "08.05.1920"
    = BegrPltsNm "Delft"
    = BeroepTekst "smid"
  )");
}

TEST_F(ToonPersoonTest, EenDatumDieErNietIsHeeftGeenStreepjes) {
  Bouw().Man("Jan", "Vos");
  OpPersoon("toon GebDatum\ntoon GebPltsNr", 2, "= GebDatum \"\"\n= GebPltsNr \"\"");
}

TEST_F(ToonPersoonTest, CrematieStaatOpDePlaatsVanBegraven) {
  Bouw().Man("Jan", "Vos", {{"BegrCrem", "1"}});
  OpPersoon("toon BegrLabel", 2, "= BegrLabel \"Crematie\"");
}

TEST_F(ToonPersoonTest, EenGeboorteTussenTweeDataHeeftGeenDoop) {
  Uitgebreid();
  Bouw().WijzigPersoon(2, {{"GebCorr", "T"}});
  OpPersoon("toon DoopLabel\ntoon DoopDatum\ntoon DoopPltsNm\ntoon ReligieTekst\ntoon BegrPltsNm",
            2, R"(
    = DoopLabel "Gedoopt" [verborgen]
    = DoopDatum "03.02.1850"
    = DoopPltsNm "Delft" [verborgen]
    = ReligieTekst "XX" [verborgen]
    = BegrPltsNm "Delft"
  )");
}

TEST_F(ToonPersoonTest, EenOverlijdenTussenTweeDataHeeftGeenPlaatsVanBegraven) {
  Uitgebreid();
  Bouw().WijzigPersoon(2, {{"OvlCorr", "T"}});
  OpPersoon("toon BegrDatum\ntoon BegrPltsNm\ntoon BegrPltsNr\ntoon DoopPltsNm", 2, R"(
    = BegrDatum "08.05.1920"
    = BegrPltsNm "Delft" [verborgen]
    = BegrPltsNr "2" [verborgen]
    = DoopPltsNm "Delft"
  )");
}

TEST_F(ToonPersoonTest, EenVeldMetEenOpmerkingHeeftEenTeken) {
  Bouw().Man("Jan", "Vos");
  Bouw().OpmerkingBijPersoon(2, 8, {"volgens akte"});
  Bouw().OpmerkingBijPersoon(2, 4096, {"Eerste regel", "en de tweede"});
  OpPersoon("toon GebDatumOpm\ntoon GebPltsOpm\ntoon AlgPersOpm\ntoon AlgPersOpmTekst", 2, R"(
    = GebDatumOpm ">"
    = GebPltsOpm "-"
    = AlgPersOpm ">"
    = AlgPersOpmTekst "Eerste regel en de tweede"
  )");
}

TEST_F(ToonPersoonTest, DeOudersKomenUitHunRelatie) {
  Gezin();
  OpPersoon(
      "toon RelNrOuders\ntoon RecordNrPa\ntoon VoorNmPa\ntoon AchterNmPa\ntoon RecordNrMa\n"
      "toon VoorNmMa",
      4, R"(
    = RelNrOuders "2"
    = RecordNrPa "2"
    = VoorNmPa "Jan"
    = AchterNmPa "Vos"
    = RecordNrMa "3"
    = VoorNmMa "Anna"
  )");
}

TEST_F(ToonPersoonTest, EenOnleesbareOuderHeeftVraagtekens) {
  Gezin();
  MaakGat(2);
  OpPersoon("toon RecordNrPa\ntoon VoorNmPa\ntoon AchterNmPa", 4, R"(
    = RecordNrPa "2"
    = VoorNmPa "?????"
    = AchterNmPa "?????"
  )");
}

TEST_F(ToonPersoonTest, EenOnleesbareRelatieHeeftGeenOuders) {
  Gezin();
  Bouw().WijzigPersoon(4, {{"Ouders", "9"}});
  OpPersoon("toon RelNrOuders\ndruk RecordNrPa", 4, R"(
    = RelNrOuders "9"
    ! uitroep "Er is geen Vader bekend"
  )");
}

TEST_F(ToonPersoonTest, WieErNietIsWordtGemeld) {
  Bouw().Man("Jan", "Vos");
  OpPersoon("druk RecordNrPa\ndruk RecordNrMa\ndruk RelNrOuders\ntoon RecordNr", 2, R"(
    ! uitroep "Er is geen Vader bekend"
    ! uitroep "Er is geen Moeder bekend"
    ! uitroep "Er zijn geen Ouders bekend"
    = RecordNr "2"
  )");
}

TEST_F(ToonPersoonTest, DeRelatiesStaanOpHunRegels) {
  Gezin();
  Bouw().Relatie(2, 0);
  OpPersoon(
      "toon RelNrP(1)\ntoon RecordNrP(1)\ntoon VoorNmP(1)\ntoon RelNrP(2)\ntoon RecordNrP(2)\n"
      "toon AchterNmP(2)\ndruk RecordNrP(2)\ntoon RelNrP(3)\ntoon RecordNrP(3)\ntoon LabelP(4)",
      2, R"(
    = RelNrP(1) "2"
    = RecordNrP(1) "3"
    = VoorNmP(1) "Anna"
    = RelNrP(2) "3"
    = RecordNrP(2) ""
    = AchterNmP(2) "<onbekend>"
    ! uitroep "Er is geen Partner bekend"
    = RelNrP(3) "<+>"
    = RecordNrP(3) "" [verborgen]
    = LabelP(4) "Partner 4" [verborgen]
  )");
}

// Also of two of one sex, and of one who stands on the side of the other sex.
TEST_F(ToonPersoonTest, NiemandIsZijnEigenPartner) {
  Bouw().Vrouw("Anna", "Vos");
  Bouw().Vrouw("Bea", "Bos");
  Bouw().Relatie(2, 3);
  Bouw().Relatie(2, 0);
  OpPersoon("toon RecordNrP(1)\ntoon VoorNmP(1)\ntoon RecordNrP(2)\ntoon AchterNmP(2)", 2, R"(
    = RecordNrP(1) "3"
    = VoorNmP(1) "Bea"
    = RecordNrP(2) ""
    = AchterNmP(2) "<onbekend>"
  )");
  OpPersoon("toon RecordNrP(1)\ntoon VoorNmP(1)", 3, R"(
    = RecordNrP(1) "2"
    = VoorNmP(1) "Anna"
  )");
}

TEST_F(ToonPersoonTest, VijfRelatiesLatenGeenPlaatsVoorEenZesde) {
  Bouw().Man("Jan", "Vos");
  for (int i = 0; i < 5; ++i) Bouw().Relatie(2, Bouw().Vrouw("Anna", "Bos"));
  OpPersoon("toon RelNrP(5)\ntoon RecordNrP(5)\ntoon RelNrP(4)", 2, R"(
    = RelNrP(5) "6"
    = RecordNrP(5) "8"
    = RelNrP(4) "5"
  )");
}

TEST_F(ToonPersoonTest, EenOnbekendGeslachtBegintGeenRelatie) {
  Bouw().Persoon('?', "Kind", "Vos");
  OpPersoon("toon Geslacht\ntoon RelNrP(1)", 2, "= Geslacht \"O\"\n= RelNrP(1) \"\" [verborgen]");
}

TEST_F(ToonPersoonTest, EenVervolgrecordDatNietTeLezenIsWordtGemeld) {
  Bouw().Man("Jan", "Vos", {{"Relatie3", "-99"}});
  Verwacht("toon RelNrP(1)", Loop(ToonPersoonVraag, 2), R"(
    ! stop "Leesfout bij persoonsrecord 99"
    + ToonPersoon "Toon Persoon"
    = RelNrP(1) "<+>"
  )");
}

TEST_F(ToonPersoonTest, WatGeenPersoonIsWordtGeweigerd) {
  Reeks(3);
  MaakVervolg(4);
  MaakGat(3);
  WordtGeweigerd(9, "! uitroep \"Het opgegeven Persoonsnummer komt niet voor\"");
  WordtGeweigerd(1, "! uitroep \"Het opgegeven Persoonsnummer komt niet voor\"");
  WordtGeweigerd(4, "! uitroep \"Het opgegeven record is een vervolgrecord\"");
  WordtGeweigerd(3, "! stop \"Leesfout bij persoonsrecord 3\"");
}

TEST_F(ToonPersoonTest, EenLeegBestandVraagtMeteenOmEenPersoon) {
  Verwacht("druk BackButton", Loop(ToonPersoonVraag, 2), R"(
    + WijzigPersoon "Wijzig Persoon"
    - WijzigPersoon
    + ToonPersoon "Toon Persoon"
    - ToonPersoon
  )");
}

TEST_F(ToonPersoonTest, EenNieuwePersoonStaatDaarnaOpDeKaart) {
  Verwacht("vul Geslacht M\nvul VoorNm Jan\ndruk Opslaan\ntoon RecordNr\ntoon VoorNm",
           Loop(ToonPersoonVraag, -1), R"(
    + WijzigPersoon "Wijzig Persoon"
    - WijzigPersoon
    + ToonPersoon "Toon Persoon"
    = RecordNr "2"
    = VoorNm "Jan"
  )");
}

TEST_F(ToonPersoonTest, NieuwVraagtEenPersoonEnZonderSluitDeKaart) {
  Bouw().Man("Jan", "Vos");
  OpPersoon("druk NieuwButton\nvul Geslacht V\nvul VoorNm Anna\ndruk Opslaan\ntoon RecordNr", 2,
            "+ WijzigPersoon \"Wijzig Persoon\"\n- WijzigPersoon\n= RecordNr \"3\"");
  OpPersoon("druk NieuwButton\ndruk BackButton", 2,
            "+ WijzigPersoon \"Wijzig Persoon\"\n- WijzigPersoon\n- ToonPersoon");
}

TEST_F(ToonPersoonTest, WijzigToontDePersoonDaarnaOpnieuw) {
  Bouw().Man("Jan", "Vos");
  OpPersoon("druk WijzigButton\nvul VoorNm Piet\ndruk Opslaan\ntoon VoorNm\ntoon RecordNr", 2, R"(
    + WijzigPersoon "Wijzig Persoon"
    - WijzigPersoon
    = VoorNm "Piet"
    = RecordNr "2"
  )");
  OpPersoon("druk WijzigButton\nvul VoorNm Klaas\ndruk BackButton\ntoon VoorNm", 2, R"(
    + WijzigPersoon "Wijzig Persoon"
    - WijzigPersoon
    = VoorNm "Piet"
  )");
}

TEST_F(ToonPersoonTest, EenOpmerkingWordtGetoondEnDeKaartDaarnaOpnieuw) {
  Bouw().Man("Jan", "Vos", {{"OvlDatum", "04.05.1920"}});
  Bouw().OpmerkingBijPersoon(2, 256, {"volgens akte"});
  OpPersoon("druk OvlDatumOpm\ntoon VeldLabel\ntoon VeldWaarde\ndruk BackButton\ntoon OvlDatumOpm",
            2, R"(
    + ToonOpm "Toon Opmerking"
    = VeldLabel ">> Ov datum"
    = VeldWaarde "04.05.1920"
    - ToonOpm
    = OvlDatumOpm ">"
  )");
}

TEST_F(ToonPersoonTest, OpmerkingenToontDieVanAlleVelden) {
  Bouw().Man("Jan", "Vos");
  OpPersoon("druk OpmButton\ndruk BackButton\ntoon RecordNr", 2, R"(
    + ToonPersOpm "Toon Opmerkingen Persoon"
    - ToonPersOpm
    = RecordNr "2"
  )");
}

TEST_F(ToonPersoonTest, TerugMaaktDeBuffersLos) {
  Bouw().Man("Jan", "Vos");
  const auto los = [](Hoofdmodule& hoofd) {
    EXPECT_EQ(hoofd.volgers.PersBufNr, -1);
    EXPECT_EQ(hoofd.volgers.RelBufNr, -1);
    EXPECT_EQ(hoofd.volgers.PlaatsBufNr, -1);
  };
  Verwacht("druk BackButton", Daarna(Loop(ToonPersoonVraag, 2), los),
           kPersoonOpen + "- ToonPersoon\n");
  Verwacht("toets RecordNr F10", Daarna(Loop(ToonPersoonVraag, 2), los),
           kPersoonOpen + "- ToonPersoon\n");
}

TEST_F(ToonPersoonTest, EenNieuweRelatieStaatDaarnaOpHaarRegel) {
  Bouw().Man("Jan", "Vos");
  OpPersoon("antwoord Ja\ndruk RelNrP(1)\ndruk OKButton\ntoon RelNrP(1)\ntoon RelNrP(2)", 2, R"(
    ? vraag Ja/Nee "Nieuwe Relatie voor deze Persoon toevoegen ?" -> Ja
    + VraagPartner "Invoer Partner"
    - VraagPartner
    = RelNrP(1) "2"
    = RelNrP(2) "<+>"
  )");
  OpPersoon("antwoord Nee\ndruk RelNrP(2)\ntoon RelNrP(2)", 2, R"(
    ? vraag Ja/Nee "Nieuwe Relatie voor deze Persoon toevoegen ?" -> Nee
    = RelNrP(2) "<+>"
  )");
}

TEST_F(ToonPersoonTest, VolgordeZetDeRelatiesOpDatum) {
  Bouw().Man("Jan", "Vos");
  Bouw().Relatie(2, 0, {}, {{"WHuwDatum", "01.01.1900"}});
  Bouw().Relatie(2, 0, {}, {{"WHuwDatum", "01.01.1880"}});
  OpPersoon("antwoord Ja\ndruk HuwVolg\ntoon RelNrP(1)\ntoon RelNrP(2)", 2, R"(
    ? vraag Ja/Nee "Moet de volgorde Automatisch bepaald worden ?" -> Ja
    = RelNrP(1) "3"
    = RelNrP(2) "2"
  )");
}

}  // namespace
}  // namespace lb77
