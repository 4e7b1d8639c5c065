// Asking for the record to be mended.
#include "checks/CorrToets.h"
#include "store/Rubrieken.h"

namespace lb77 {
namespace {

// Person 2 with his continuation record 3, and relation 2 with its continuation record 3.
class CorrVraagTest : public CorrToets {
 protected:
  void SetUp() override {
    Bouw().Man("Jan", "Vos");
    Bouw().Man("Vervolg", "");
    MaakVervolg(3);
    Bouw().Relatie(2, 0);
    Bouw().Relatie(0, 0);
    Bouw().WijzigRelatie(3, {{"HuwCorr", "Z"}});
    Bouw().OpmerkingBijPersoon(2, persoonrubriek::kVoornaam, {"een"});
  }
  // The whole way from the menu; the trackers afterwards stand in na_.
  Taak Weg(const CorrVraagSoort& soort) {
    return [this, &soort](Hoofdmodule& hoofd) {
      Corrigeer(hoofd, soort);
      na_ = hoofd.volgers;
    };
  }
  void SpeeltVraag(const CorrVraagSoort& soort, std::string_view draaiboek,
                   std::string_view verslag, const Plek& plek = Plek::current()) {
    Speelt(std::string(draaiboek) + "\ndruk BackButton", Weg(soort), soort.naam, soort.titel,
           verslag, plek);
  }
  Volgers na_;
};

TEST_F(CorrVraagTest, DeVragenHebbenHunEigenTitel) {
  EXPECT_EQ(kVraagPersRecord.titel, "XXX");
  EXPECT_EQ(kVraagRelRecord.titel, "XXX");
  EXPECT_EQ(kVraagPersVervolg.titel, "Corrigeren van een vervolgrecord in het Persoonsbestand");
  EXPECT_EQ(kVraagRelVervolg.titel, "Corrigeren van een vervolgrecord in het Relatiebestand");
  EXPECT_EQ(kVraagOpmRecord.titel, "Corrigeren van een normaal Opmerkingenrecord");
}

TEST_F(CorrVraagTest, EenVervolgrecordIsGeenGewoonRecordEnAndersom) {
  for (const CorrVraagSoort* soort : {&kVraagPersRecord, &kVraagRelRecord}) {
    SpeeltVraag(*soort, "vul RecordNr 3\ntoon RecordNr",
                "! uitroep \"Record is een vervolgrecord\"\n= RecordNr \"3\"");
  }
  for (const CorrVraagSoort* soort : {&kVraagPersVervolg, &kVraagRelVervolg}) {
    SpeeltVraag(*soort, "vul RecordNr 2\ntoon RecordNr",
                "! uitroep \"Record is geen vervolgrecord\"\n= RecordNr \"2\"");
  }
}

TEST_F(CorrVraagTest, EenNummerDatErNietIsHoudtHetVeldVast) {
  for (const CorrVraagSoort* soort : {&kVraagPersRecord, &kVraagPersVervolg, &kVraagRelRecord,
                                      &kVraagRelVervolg, &kVraagOpmRecord}) {
    SpeeltVraag(*soort, "vul RecordNr 1\ndruk OKButton\nvul RecordNr 4\ntoon",
                R"(
      ! uitroep "Recordnummer bestaat niet"
      ! uitroep "Recordnummer bestaat niet"
      ! uitroep "Recordnummer bestaat niet"
    )" +
                    (": " + std::string(soort->naam) + " \"" + std::string(soort->titel) +
                     "\"\n= VraagLabel \"" + std::string(soort->vraag) + "\"\n") +
                    R"(
      = RecordNr "4"
      = OKButton "&OK"
      = BackButton "&Terug"
      * RecordNr
    )");
  }
}

// Without a word; also when the field does not have the focus.
TEST_F(CorrVraagTest, ZonderNummerGaatHetNietVerder) {
  SpeeltVraag(kVraagPersRecord,
              "druk OKButton\ntoets Enter\nvul RecordNr 2\ntyp RecordNr\ndruk OKButton\n"
              "druk OKButton\ntoon RecordNr",
              "= RecordNr \"\"");
}

TEST_F(CorrVraagTest, NaTerugKomtErGeenDialoog) {
  SpeeltVraag(kVraagPersRecord, "vul RecordNr 2", "");
  EXPECT_EQ(na_.HuidigPersoonNr, -1);
  SpeeltVraag(kVraagRelRecord, "vul RecordNr 2", "");
  EXPECT_EQ(na_.HuidigRelatieNr, -1);
  Speelt("toets Escape", Weg(kVraagOpmRecord), kVraagOpmRecord.naam, kVraagOpmRecord.titel, "");
  EXPECT_EQ(na_.HuidigOpmNr, -1);
}

TEST_F(CorrVraagTest, HetNummerLeidtNaarZijnDialoog) {
  const auto speelt = [this](const CorrVraagSoort& soort, int nr, const std::string& vorm,
                             const std::string& titel) {
    const std::string vraag(soort.naam);
    Verwacht(
        "typ RecordNr " + std::to_string(nr) + "\ndruk OKButton\ntoon RecordNr\ndruk BackButton",
        Weg(soort),
        "+ " + vraag + " \"" + std::string(soort.titel) + "\"\n- " + vraag + "\n+ " + vorm + " \"" +
            titel + "\"\n= RecordNr \"" + std::to_string(nr) + "\"\n- " + vorm + "\n");
    EXPECT_EQ(na_.*soort.volger, nr);
  };
  speelt(kVraagPersRecord, 2, "CorrPrsAlg", "Corrigeer Verwijzingen Persoonsrecord");
  speelt(kVraagRelRecord, 2, "CorrRelAlg", "Corrigeer Verwijzingen Relatierecord");
  speelt(kVraagOpmRecord, 2, "CorrOpmAlg", "Corrigeer Verwijzingen Opmerkingenrecord");
  speelt(kVraagPersVervolg, 3, "CorrPrsVlg",
         "Corrigeer Verwijzingen Vervolgrecord Persoonsbestand");
  speelt(kVraagRelVervolg, 3, "CorrRelVlg", "Corrigeer Verwijzingen Vervolgrecord Relatiebestand");
}

TEST_F(CorrVraagTest, EnterControleertEnBlijft) {
  SpeeltVraag(kVraagPersRecord,
              "typ RecordNr 3\ntoets Enter\nvul RecordNr 2\ntoets RecordNr Enter\ntoon RecordNr",
              "! uitroep \"Record is een vervolgrecord\"\n= RecordNr \"2\"");
}

TEST_F(CorrVraagTest, EenNummerHeeftVijfTekens) {
  SpeeltVraag(kVraagOpmRecord, "typ RecordNr 12345678\ntoon RecordNr", "= RecordNr \"12345\"");
}

// One message for each character.
TEST_F(CorrVraagTest, EenNummerMetLettersIsNietNumeriek) {
  SpeeltVraag(kVraagPersRecord, "typ RecordNr 12a4\ntoets Enter\nvul RecordNr x2y\ntoon RecordNr",
              R"(
      ! uitroep "Recordnummer is niet numeriek"
      ! uitroep "Recordnummer is niet numeriek"
      ! uitroep "Recordnummer is niet numeriek"
      = RecordNr "x2y"
    )");
}

// The number of a person can be searched.
TEST_F(CorrVraagTest, F2ZoektEenPersoonVoorEenPersoonsrecord) {
  SpeeltVraag(kVraagPersRecord, "toets RecordNr F2\ndruk BackButton", R"(
    + ZoekPrs "Zoek Persoon"
    - ZoekPrs
  )");
}

}  // namespace
}  // namespace lb77
