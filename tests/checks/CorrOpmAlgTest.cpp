// Mending the links of a remark record.
#include "checks/CorrNamen.h"
#include "checks/CorrToets.h"
#include "steun/TijdelijkeMap.h"
#include "store/Rubrieken.h"
#include "store/SetPaden.h"

namespace lb77 {
namespace {

// Person 2 has records 2, 3 (two lines) and 4; relation 2 has record 5.
class CorrOpmAlgTest : public CorrToets {
 protected:
  void SetUp() override {
    Bouw().Man("Jan", "Vos");
    Bouw().Vrouw("Anna", "Bos");
    Bouw().Man("Vervolg", "");
    MaakVervolg(4);
    Bouw().Relatie(2, 3);
    Bouw().OpmerkingBijPersoon(2, persoonrubriek::kVoornaam, {"een", "twee"});
    Bouw().OpmerkingBijPersoon(2, persoonrubriek::kAlgemeen, {"drie"});
    Bouw().OpmerkingBijRelatie(2, relatierubriek::kOtrDatum, {"vier"});
  }
  void SpeeltOp(std::int16_t nr, std::string_view draaiboek, std::string_view verslag,
                const Plek& plek = Plek::current()) {
    Speelt(draaiboek, Opmerking(nr), "CorrOpmAlg", "Corrigeer Verwijzingen Opmerkingenrecord",
           verslag, plek);
  }
};

TEST_F(CorrOpmAlgTest, ToontWaarbijDeRegelHoortEnWatErVolgt) {
  SpeeltOp(2, "toon\ndruk BackButton", R"(
      : CorrOpmAlg "Corrigeer Verwijzingen Opmerkingenrecord"
      = RecordNr "2"
      = Tekstregel "een"
      = RubriekCode "2"
      = RubriekNaam ">> Voornaam"
      = HoortBijSoort "P"
      = BijRecordTekst "2"
      = BijRecordNaam "Jan Vos"
      = VolgRegelTekst "3"
      = VolgRegelTekstRegel "twee"
      = VolgOpmTekst "4"
      = VolgOpmTekstRegel "drie"
      = OKButton "&OK"
      = BackButton "&Terug"
      * HoortBijSoort
    )");
  SpeeltOp(5, R"(
      toon RubriekCode
      toon RubriekNaam
      toon HoortBijSoort
      toon BijRecordNaam
      toon VolgRegelTekst
      toon VolgRegelTekstRegel
      druk BackButton
    )",
           R"(
      = RubriekCode "-2"
      = RubriekNaam ">> Otr Datum"
      = HoortBijSoort "R"
      = BijRecordNaam "Jan Vos en Anna Bos"
      = VolgRegelTekst ""
      = VolgRegelTekstRegel ""
    )");
}

TEST_F(CorrOpmAlgTest, ElkeRubriekHeeftHierEenNaam) {
  const std::pair<std::int16_t, std::string_view> eigen[] = {
      {-2, ">> Otr Datum"},
      {-1, ">> Otr Plaats"},
      {-8, ">> Wet Huw Datum"},
      {-4, ">> Wet Huw Plaats"},
      {-64, ">> Kerk Huw Datum"},
      {-32, ">> Kerk Huw Plaats"},
      {-128, ">> Kerk Huw Gezindte"},
      {-16, ">> Soort Huwelijk"},
      {-256, ">> Algemeen"},
      {1, ">> Achternaam"},
      {256, ">> Ov Datum"},
      {4096, ">> Algemeen"},
      {0, ""},
      {3, ""},
      {-512, ""},
  };
  for (const auto& [rubriek, naam] : eigen) EXPECT_EQ(CorrRubriekNaam(rubriek), naam) << rubriek;
}

TEST_F(CorrOpmAlgTest, EenVerwijzingNaarNergensStaatOpHetScherm) {
  ZetGetal(kOpm, 2, opmveld::VolgRegel, 6);
  ZetGetal(kOpm, 2, opmveld::BijZelfde, -3);
  ZetGetal(kOpm, 3, opmveld::VolgRegel, 1);
  MaakOnleesbaar(kOpm, 4);
  ZetGetal(kOpm, 3, opmveld::BijZelfde, 4);
  SpeeltOp(2,
           "toon VolgRegelTekstRegel\ntoon VolgOpmTekst\ntoon VolgOpmTekstRegel\n"
           "druk BackButton",
           R"(
      = VolgRegelTekstRegel ">> Fout: recordnummer incorrect <<"
      = VolgOpmTekst "-3"
      = VolgOpmTekstRegel ">> Fout: recordnummer incorrect <<"
    )");
  SpeeltOp(3, "toon VolgRegelTekstRegel\ntoon VolgOpmTekstRegel\ndruk BackButton", R"(
      = VolgRegelTekstRegel ">> Fout: recordnummer incorrect <<"
      = VolgOpmTekstRegel ">> Leesfout bij opm-record 4 <<"
    )");
}

TEST_F(CorrOpmAlgTest, ElkNummerWordtGezochtInZijnBestand) {
  SpeeltOp(2, R"(
      vul BijRecordTekst 4
      vul BijRecordTekst 5
      vul BijRecordTekst 3
      toon BijRecordNaam
      vul HoortBijSoort r
      toon BijRecordNaam
      vul BijRecordTekst 3
      vul BijRecordTekst 2
      toon BijRecordNaam
      vul BijRecordTekst
      toon BijRecordNaam
      vul VolgRegelTekst 6
      vul VolgRegelTekst 1
      vul VolgRegelTekst 5
      toon VolgRegelTekstRegel
      vul VolgOpmTekst 9
      vul VolgOpmTekst
      toon VolgOpmTekstRegel
      druk BackButton
    )",
           R"(
      ! uitroep "Record is een vervolgrecord"
      ! uitroep "Recordnummer bestaat niet"
      = BijRecordNaam "Anna Bos"
      = BijRecordNaam "?????"
      ! uitroep "Recordnummer bestaat niet"
      = BijRecordNaam "Jan Vos en Anna Bos"
      = BijRecordNaam ""
      ! uitroep "Recordnummer bestaat niet"
      ! uitroep "Recordnummer bestaat niet"
      = VolgRegelTekstRegel "vier"
      ! uitroep "Recordnummer bestaat niet"
      = VolgOpmTekstRegel ""
    )");
}

TEST_F(CorrOpmAlgTest, DeSoortIsEenPOfEenR) {
  SpeeltOp(2, R"(
      vul HoortBijSoort x
      toon HoortBijSoort
      vul HoortBijSoort p
      toon HoortBijSoort
      vul HoortBijSoort r
      toon HoortBijSoort
      toon RubriekCode
      toon RubriekNaam
      druk BackButton
    )",
           R"(
      ! uitroep "Alleen P (Persoon) of R (Relatie) toegestaan"
      = HoortBijSoort ""
      = HoortBijSoort "P"
      = HoortBijSoort "R"
      = RubriekCode "-2"
      = RubriekNaam ">> Otr Datum"
    )");
}

TEST_F(CorrOpmAlgTest, DeVeldenZijnZoBreedAlsHunWaarde) {
  SpeeltOp(2, R"(
      typ HoortBijSoort pr
      toon HoortBijSoort
      typ BijRecordTekst 2345678
      toon BijRecordTekst
      typ BijRecordTekst 1a
      toets Tab
      vul BijRecordTekst 2
      typ VolgRegelTekst 1234567
      toon VolgRegelTekst
      druk BackButton
    )",
           R"(
      = HoortBijSoort "P"
      = BijRecordTekst "23456"
      ! uitroep "Recordnummer is niet numeriek"
      = VolgRegelTekst "12345"
    )");
}

TEST_F(CorrOpmAlgTest, OKBewaartWatErGetyptIsEnNietAanDeAndereKant) {
  const Beeld voor = Bytes();
  SpeeltOp(2, "vul BijRecordTekst 3\nvul VolgRegelTekst\nvul VolgOpmTekst 5\ndruk OKButton", "");
  VerwachtAlleen(voor, kOpm, 2,
                 {{opmveld::BijRecord, 3}, {opmveld::VolgRegel, 0}, {opmveld::BijZelfde, 5}});
}

TEST_F(CorrOpmAlgTest, EenAndereSoortKeertHetTekenVanDeRubriekOm) {
  const Beeld voor = Bytes();
  SpeeltOp(2, "vul HoortBijSoort R\nvul BijRecordTekst 2\ndruk OKButton", "");
  VerwachtAlleen(voor, kOpm, 2, {{opmveld::Rubriek, -2}});
  SpeeltOp(2, "vul HoortBijSoort P\ndruk OKButton", "");
  EXPECT_EQ(Bytes(), voor);
}

// The number was that of a person.
TEST_F(CorrOpmAlgTest, BijEenAndereSoortMoetHetNummerDaarBestaan) {
  ZetGetal(kOpm, 2, opmveld::BijRecord, 3);
  const Beeld voor = Bytes();
  SpeeltOp(2, "vul HoortBijSoort R\ndruk OKButton\ntoon\ndruk BackButton", R"(
      ! uitroep "Recordnummer bestaat niet"
      : CorrOpmAlg "Corrigeer Verwijzingen Opmerkingenrecord"
      = RecordNr "2"
      = Tekstregel "een"
      = RubriekCode "-2"
      = RubriekNaam ">> Otr Datum"
      = HoortBijSoort "R"
      = BijRecordTekst "3"
      = BijRecordNaam "?????"
      = VolgRegelTekst "3"
      = VolgRegelTekstRegel "twee"
      = VolgOpmTekst "4"
      = VolgOpmTekstRegel "drie"
      = OKButton "&OK"
      = BackButton "&Terug"
      * BijRecordTekst
    )");
  EXPECT_EQ(Bytes(), voor);
}

TEST_F(CorrOpmAlgTest, ZonderWijzigingBlijftHetRecordByteVoorByte) {
  ZetBytes(kOpm, 2, opmveld::Staart, std::string_view("\0abc", 4));
  ZetGetal(kOpm, 3, opmveld::Rubriek, -32768);
  const Beeld voor = Bytes();
  SpeeltOp(2, "druk OKButton", "");
  SpeeltOp(3, "toon HoortBijSoort\ntoon RubriekCode\ndruk OKButton",
           "= HoortBijSoort \"R\"\n= RubriekCode \"-32768\"");
  EXPECT_EQ(Bytes(), voor);
}

// There is no such positive number.
TEST_F(CorrOpmAlgTest, EenRubriekDieNietPastBlijftMetEenMelding) {
  ZetGetal(kOpm, 3, opmveld::Rubriek, -32768);
  const Beeld voor = Bytes();
  SpeeltOp(3,
           "vul HoortBijSoort P\nvul BijRecordTekst 3\ndruk OKButton\ntoon BijRecordTekst\n"
           "druk BackButton",
           "! stop \"Het maximum van 32767 records is bereikt\"\n= BijRecordTekst \"3\"");
  EXPECT_EQ(Bytes(), voor);
}

// A free record has no sign that could turn.
TEST_F(CorrOpmAlgTest, OokVanEenVrijRecordMoetHetNummerBijDeAndereSoortBestaan) {
  ZetGetal(kOpm, 2, opmveld::Rubriek, 0);
  ZetGetal(kOpm, 2, opmveld::BijRecord, 3);
  const Beeld voor = Bytes();
  SpeeltOp(2, "vul HoortBijSoort R\ndruk OKButton\ndruk BackButton",
           "! uitroep \"Recordnummer bestaat niet\"");
  EXPECT_EQ(Bytes(), voor);
}

// A damaged number that nobody touches stays, and keeps nobody from mending another.
TEST_F(CorrOpmAlgTest, EenEigenaarDieErNietIsHoudtEenAndereReparatieNietTegen) {
  ZetGetal(kOpm, 2, opmveld::BijRecord, 99);
  const Beeld voor = Bytes();
  SpeeltOp(2, "vul VolgRegelTekst 5\ndruk OKButton", "");
  VerwachtAlleen(voor, kOpm, 2, {{opmveld::VolgRegel, 5}});
}

TEST_F(CorrOpmAlgTest, WatNietTeLezenIsGaatNietOpen) {
  for (const int nr : {-1, 0, 1, 6}) {
    Verwacht("", Opmerking(static_cast<std::int16_t>(nr)),
             "! uitroep \"Recordnummer bestaat niet\"");
  }
  MaakOnleesbaar(kOpm, 2);
  Verwacht("", Opmerking(2), "! stop \"Fout bij het lezen van Opmrecord 2\\nFout van de schijf\"");
}

TEST_F(CorrOpmAlgTest, EenStoringLaatHetRecordHeel) {
  const Beeld voor = Bytes();
  bool gemeld = false;
  BijElkeStoring("vul VolgRegelTekst 5\ndruk OKButton\ndruk BackButton", Opmerking(2),
                 [&](bool gelukt) {
                   const bool bewaard = Getal(kOpm, 2, opmveld::VolgRegel) == 5;
                   if (gelukt) {
                     EXPECT_TRUE(bewaard);
                   }
                   if (!bewaard) {
                     EXPECT_EQ(Bytes(), voor);
                   }
                   gemeld |= verslag_.find(
                                 "! stop \"Fout bij het schrijven van Opmerkingenrecord 2\\nSchijf "
                                 "vol\"\n- CorrOpmAlg") != std::string::npos;
                 });
  EXPECT_TRUE(gemeld);
}

TEST_F(CorrOpmAlgTest, DeCorrectieIsEenHandeling) {
  EXPECT_EQ(Labels("vul VolgRegelTekst 5\ndruk OKButton", Opmerking(2)),
            std::vector<std::string>{"Opmerkingenrecord 2 gecorrigeerd"});
}

}  // namespace
}  // namespace lb77
