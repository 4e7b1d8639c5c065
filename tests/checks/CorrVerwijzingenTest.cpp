// Mending the links of a person and of a relation.
#include "checks/CorrToets.h"
#include "store/Rubrieken.h"

namespace lb77 {
namespace {

// Persons 2 to 5, relations 2 and 3 of person 2, remark records 2 and 3 of person 2.
class CorrAlgTest : public CorrToets {
 protected:
  void SetUp() override {
    Bouw().Man("Jan", "Vos");
    Bouw().Vrouw("Anna", "Bos");
    Bouw().Man("", "");
    Bouw().Man("Vervolg", "");
    MaakVervolg(5);
    Bouw().Relatie(2, 3, {4});
    Bouw().Relatie(2, 0);
    Bouw().OpmerkingBijPersoon(2, persoonrubriek::kVoornaam, {"een"});
    Bouw().OpmerkingBijPersoon(2, persoonrubriek::kAlgemeen, {"twee"});
    Bouw().OpmerkingBijRelatie(2, relatierubriek::kOtrDatum, {"drie"});
  }
  void Persoon(std::int16_t nr, std::string_view draaiboek, std::string_view verslag,
               const Plek& plek = Plek::current()) {
    Speelt(draaiboek, Verwijzingen(kCorrPrsAlg, nr), "CorrPrsAlg",
           "Corrigeer Verwijzingen Persoonsrecord", verslag, plek);
  }
  void Relatie(std::int16_t nr, std::string_view draaiboek, std::string_view verslag,
               const Plek& plek = Plek::current()) {
    Speelt(draaiboek, Verwijzingen(kCorrRelAlg, nr), "CorrRelAlg",
           "Corrigeer Verwijzingen Relatierecord", verslag, plek);
  }
};

TEST_F(CorrAlgTest, EenPersoonToontAlZijnVerwijzingen) {
  ZetGetal(kPrs, 2, persoonveld::RelNrOuders, 9);
  Persoon(2, "toon\ndruk BackButton", R"(
      : CorrPrsAlg "Corrigeer Verwijzingen Persoonsrecord"
      = RecordNr "2"
      = RelNrOuders "9"
      = RelNrOudersNaam "?????"
      = (*) RelNrPartner RelNrPartnerNaam
      = (1) "2" "Jan Vos en Anna Bos"
      = (2) "3" "Jan Vos en <onbekend>"
      = (3) "" ""
      = Vervolgrecord ""
      = EersteOpm "2"
      = RubriekTekst(1) "-"
      = RubriekTekst(2) "+"
      = RubriekTekst(3) "-"
      = RubriekTekst(4) "-"
      = RubriekTekst(5) "-"
      = RubriekTekst(6) "-"
      = RubriekTekst(7) "-"
      = RubriekTekst(8) "-"
      = RubriekTekst(9) "-"
      = RubriekTekst(10) "-"
      = RubriekTekst(11) "-"
      = RubriekTekst(12) "-"
      = RubriekTekst(13) "+"
      = OKButton "&OK"
      = BackButton "&Terug"
      * RelNrOuders
    )");
}

TEST_F(CorrAlgTest, EenRelatieToontHaarPartnersEnKinderen) {
  ZetGetal(kRlt, 2, relatieveld::Kind3, 7);
  ZetGetal(kRlt, 2, relatieveld::Kind15, -3);
  Relatie(2, R"(
      toon RecordNr
      toon PersNrMan
      toon PersNrManNaam
      toon PersNrVrouwNaam
      toon PersNrKind(1)
      toon PersNrKindNaam(1)
      toon PersNrKindNaam(2)
      toon PersNrKindNaam(3)
      toon PersNrKind(15)
      toon Vervolgrecord
      toon EersteOpm
      toon RubriekTekst(1)
      toon RubriekTekst(2)
      toon RubriekTekst(9)
      druk BackButton
    )",
          R"(
      = RecordNr "2"
      = PersNrMan "2"
      = PersNrManNaam "Jan Vos"
      = PersNrVrouwNaam "Anna Bos"
      = PersNrKind(1) "4"
      = PersNrKindNaam(1) "<onbekend>"
      = PersNrKindNaam(2) ""
      = PersNrKindNaam(3) "?????"
      = PersNrKind(15) ""
      = Vervolgrecord "3"
      = EersteOpm "4"
      = RubriekTekst(1) "-"
      = RubriekTekst(2) "+"
      = RubriekTekst(9) "-"
    )");
}

TEST_F(CorrAlgTest, ElkVeldVanEenPersoonVraagtZijnSoortRecord) {
  Bouw().WijzigRelatie(3, {{"HuwCorr", "Z"}});
  Persoon(2, R"(
      vul RelNrOuders 4
      vul RelNrOuders 3
      vul RelNrOuders 2
      vul RelNrPartner(1) 9
      vul RelNrPartner(1)
      vul RelNrPartner(2) 3
      vul RelNrPartner(2)
      vul RelNrPartner(3) 3
      vul RelNrPartner(3)
      vul Vervolgrecord 3
      vul Vervolgrecord 6
      vul Vervolgrecord 5
      vul EersteOpm 5
      vul EersteOpm 1
      toon EersteOpm
      druk BackButton
    )",
          R"(
      ! uitroep "Recordnummer bestaat niet"
      ! uitroep "Record is een vervolgrecord"
      ! uitroep "Recordnummer bestaat niet"
      ! uitroep "Record is een vervolgrecord"
      ! uitroep "Record is een vervolgrecord"
      ! uitroep "Record is geen vervolgrecord"
      ! uitroep "Recordnummer bestaat niet"
      ! uitroep "Recordnummer bestaat niet"
      ! uitroep "Recordnummer bestaat niet"
      = EersteOpm "1"
    )");
}

TEST_F(CorrAlgTest, ElkVeldVanEenRelatieVraagtZijnSoortRecord) {
  Relatie(2, R"(
      vul PersNrMan 5
      vul PersNrMan 9
      vul PersNrMan 2
      vul PersNrVrouw 5
      vul PersNrVrouw
      vul PersNrKind(15) 5
      vul PersNrKind(15) 4
      vul Vervolgrecord 3
      vul Vervolgrecord
      vul EersteOpm 5
      druk BackButton
    )",
          R"(
      ! uitroep "Record is een vervolgrecord"
      ! uitroep "Recordnummer bestaat niet"
      ! uitroep "Record is een vervolgrecord"
      ! uitroep "Record is een vervolgrecord"
      ! uitroep "Record is geen vervolgrecord"
      ! uitroep "Recordnummer bestaat niet"
    )");
}

// It can be read, but is nobody.
TEST_F(CorrAlgTest, RecordEenHeeftGeenNaam) {
  ZetGetal(kRlt, 2, relatieveld::ManNr, 1);
  Relatie(2, "toon PersNrManNaam\ndruk BackButton", "= PersNrManNaam \"?????\"");
}

TEST_F(CorrAlgTest, DeNaamVolgtHetNummer) {
  Relatie(2,
          "vul PersNrMan 3\ntoon PersNrManNaam\nvul PersNrMan\ntoon PersNrManNaam\n"
          "druk BackButton",
          "= PersNrManNaam \"Anna Bos\"\n= PersNrManNaam \"\"");
}

TEST_F(CorrAlgTest, EenRubriekKentAlleenPlusEnMin) {
  Persoon(2, R"(
      vul RubriekTekst(1) x
      toon RubriekTekst(1)
      vul RubriekTekst(1)
      vul RubriekTekst(1) +
      vul RubriekTekst(1) -
      druk BackButton
    )",
          R"(
      ! uitroep "Alleen - en + toegestaan."
      = RubriekTekst(1) "x"
      ! uitroep "Alleen - en + toegestaan."
    )");
}

TEST_F(CorrAlgTest, OKBewaartWatErGetyptIsEnNietAanDeAndereKant) {
  const Beeld voor = Bytes();
  Persoon(2, R"(
      vul RelNrOuders 3
      vul RelNrPartner(1) 3
      vul RelNrPartner(2)
      vul RelNrPartner(3) 2
      vul EersteOpm 3
      vul RubriekTekst(1) +
      vul RubriekTekst(2) -
      druk OKButton
    )",
          "");
  VerwachtAlleen(voor, kPrs, 2,
                 {{persoonveld::RelNrOuders, 3},
                  {persoonveld::relatie1, 3},
                  {persoonveld::relatie2, 0},
                  {persoonveld::relatie3, 2},
                  {persoonveld::OpmRecord, 3},
                  {persoonveld::OpmCode, 4096 + 1}});
}

TEST_F(CorrAlgTest, EenRelatieBewaartPartnersKinderenEnNegatieveCodes) {
  const Beeld voor = Bytes();
  Relatie(2, R"(
      vul PersNrMan
      vul PersNrVrouw 2
      vul PersNrKind(1) 3
      vul PersNrKind(15) 4
      vul RubriekTekst(9) +
      druk OKButton
    )",
          "");
  VerwachtAlleen(voor, kRlt, 2,
                 {{relatieveld::ManNr, 0},
                  {relatieveld::VrouwNr, 2},
                  {relatieveld::Kind1, 3},
                  {relatieveld::Kind15, 4},
                  {relatieveld::OpmCode, -258}});
}

// It takes the last place of the list.
TEST_F(CorrAlgTest, EenVervolgrecordStaatNegatiefInDeLaatstePlaats) {
  const Beeld voor = Bytes();
  Persoon(2, "vul RelNrPartner(3) 2\nvul Vervolgrecord 5\ndruk OKButton", "");
  VerwachtAlleen(voor, kPrs, 2, {{persoonveld::relatie3, -5}});
  Persoon(2, "toon RelNrPartner(3)\ntoon Vervolgrecord\nvul Vervolgrecord\ndruk OKButton",
          "= RelNrPartner(3) \"\"\n= Vervolgrecord \"5\"");
  EXPECT_EQ(Bytes(), voor);
  Bouw().WijzigRelatie(3, {{"HuwCorr", "Z"}});
  const Beeld daarvoor = Bytes();
  Relatie(2, "vul Vervolgrecord 3\ndruk OKButton", "");
  VerwachtAlleen(daarvoor, kRlt, 2, {{relatieveld::Kind15, -3}});
}

TEST_F(CorrAlgTest, RubriekenZonderOpmerkingWaarschuwenEnWordenBewaard) {
  const Beeld voor = Bytes();
  Persoon(2, "vul EersteOpm\ndruk OKButton", R"(
      ! uitroep "Waarschuwing: geen eerste opmerkingenrecord en wel opmerkingencodes opgegeven"
    )");
  VerwachtAlleen(voor, kPrs, 2, {{persoonveld::OpmRecord, 0}});
  ZetTerug(voor);
  Persoon(2, "vul EersteOpm\nvul RubriekTekst(2) -\nvul RubriekTekst(13) -\ndruk OKButton", "");
  VerwachtAlleen(voor, kPrs, 2, {{persoonveld::OpmRecord, 0}, {persoonveld::OpmCode, 0}});
}

TEST_F(CorrAlgTest, ZonderWijzigingBlijftHetRecordByteVoorByte) {
  const Beeld voor = Bytes();
  Persoon(2, "druk OKButton", "");
  Relatie(2, "druk OKButton", "");
  EXPECT_EQ(Bytes(), voor);
  EXPECT_TRUE(Labels("druk OKButton", Verwijzingen(kCorrPrsAlg, 2)).empty());
}

TEST_F(CorrAlgTest, TerugBewaartNiets) {
  const Beeld voor = Bytes();
  Persoon(2, "vul RelNrOuders 3\ndruk BackButton", "");
  Persoon(2, "vul RelNrOuders 3\ntoets Escape", "");
  Persoon(2, "vul RelNrOuders 3\nsluit", "");
  EXPECT_EQ(Bytes(), voor);
}

// A damaged number stays as it is until its own field is mended.
TEST_F(CorrAlgTest, SchadeElderInHetRecordBlijftStaan) {
  ZetGetal(kPrs, 2, persoonveld::relatie1, -7);
  ZetGetal(kPrs, 2, persoonveld::relatie2, 31000);
  ZetGetal(kPrs, 2, persoonveld::relatie3, -32768);
  const Beeld voor = Bytes();
  Persoon(2, R"(
      toon RelNrPartner(1)
      toon RelNrPartnerNaam(1)
      toon Vervolgrecord
      toets RelNrPartner(1) Enter
      vul RelNrPartner(1) -7
      vul RelNrPartner(1)
      vul RelNrOuders 2
      druk OKButton
    )",
          R"(
      = RelNrPartner(1) "-7"
      = RelNrPartnerNaam(1) "?????"
      = Vervolgrecord "32768"
      ! uitroep "Recordnummer is niet numeriek"
      ! uitroep "Recordnummer is niet numeriek"
    )");
  VerwachtAlleen(voor, kPrs, 2, {{persoonveld::RelNrOuders, 2}, {persoonveld::relatie1, 0}});
}

// Bits that stand for no rubric, and a sign that is not the record's.
TEST_F(CorrAlgTest, OpmCodeWordtDeSomVanDeRubrieken) {
  ZetGetal(kPrs, 2, persoonveld::OpmCode, 4098 + 8192);
  ZetGetal(kRlt, 2, relatieveld::OpmCode, 3);
  Persoon(2, "druk OKButton", "");
  Relatie(2, "druk OKButton", "");
  EXPECT_EQ(Getal(kPrs, 2, persoonveld::OpmCode), 4098);
  EXPECT_EQ(Getal(kRlt, 2, relatieveld::OpmCode), -3);
}

TEST_F(CorrAlgTest, WatNietTeLezenIsGaatNietOpen) {
  MaakOnleesbaar(kPrs, 2);
  Verwacht("", Verwijzingen(kCorrPrsAlg, 2), R"(
      ! stop "Fout bij het lezen van Persoonsrecord 2\nFout van de schijf"
    )");
  for (const int nr : {-1, 0, 1, 9}) {
    Verwacht("", Verwijzingen(kCorrRelAlg, static_cast<std::int16_t>(nr)),
             "! uitroep \"Recordnummer bestaat niet\"");
  }
}

TEST_F(CorrAlgTest, EenStoringLaatHetRecordHeel) {
  const Beeld voor = Bytes();
  bool gemeld = false;
  BijElkeStoring("vul RelNrOuders 3\ndruk OKButton\ndruk BackButton", Verwijzingen(kCorrPrsAlg, 2),
                 [&](bool gelukt) {
                   const bool bewaard = Getal(kPrs, 2, persoonveld::RelNrOuders) == 3;
                   if (gelukt) {
                     EXPECT_TRUE(bewaard);
                   }
                   if (bewaard) {
                     VerwachtAlleen(voor, kPrs, 2, {{persoonveld::RelNrOuders, 3}});
                   } else {
                     EXPECT_EQ(Bytes(), voor);
                     EXPECT_NE(verslag_.find("! "), std::string::npos);
                   }
                   gemeld |= verslag_.find(
                                 "! stop \"Fout bij het schrijven van Persoonsrecord 2"
                                 "\\nSchijf vol\"\n- CorrPrsAlg") != std::string::npos;
                 });
  EXPECT_TRUE(gemeld);
}

TEST_F(CorrAlgTest, DeCorrectieIsEenHandeling) {
  EXPECT_EQ(Labels("vul RelNrOuders 3\nvul RubriekTekst(1) +\ndruk OKButton",
                   Verwijzingen(kCorrPrsAlg, 2)),
            std::vector<std::string>{"Persoonsrecord 2 gecorrigeerd"});
  EXPECT_EQ(Labels("vul PersNrMan 3\ndruk OKButton", Verwijzingen(kCorrRelAlg, 2)),
            std::vector<std::string>{"Relatierecord 2 gecorrigeerd"});
}

TEST_F(CorrAlgTest, EenTekstDieGeenNummerIsWordtGeweigerd) {
  Verwacht(
      "toets RelNrOuders Shift+F1\ntoets RelNrOuders Enter\ndruk BackButton",
      [](Hoofdmodule& hoofd) {
        hoofd.Ini.IniZet("Funktietoetsen", "F1", "3b");
        hoofd.volgers.HuidigPersoonNr = 2;
        hoofd.gesprek.Toon<CorrVerwijzingen>(kCorrPrsAlg, hoofd);
      },
      R"(
      + CorrPrsAlg "Corrigeer Verwijzingen Persoonsrecord"
      ! uitroep "Recordnummer is niet numeriek"
      - CorrPrsAlg
    )");
}

}  // namespace
}  // namespace lb77
