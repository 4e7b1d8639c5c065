#include <gtest/gtest.h>

#include "KaartToets.h"

namespace lb77 {
namespace {

class ToonRelatieTest : public KaartToets {
 protected:
  void WordtGeweigerd(std::int16_t nr, std::string_view melding,
                      const Plek& plek = Plek::current()) {
    Verwacht("", Loop(ToonRelatieVraag, nr), Regels(melding) + kRelatieOpen + "- ToonRelatie\n",
             plek);
  }
  // Relations without anybody, from 2 on.
  void Relaties(int aantal) {
    for (int i = 0; i < aantal; ++i) Bouw().Relatie(0, 0);
  }
};

TEST_F(ToonRelatieTest, ToontElkVeldVanDeRelatie) {
  Gezin();
  Bouw().Plaats("Delft", "ZH");
  Bouw().WijzigRelatie(2, {{"OtrDatum", "01.06.1875"},
                           {"OtrPlaats", "2"},
                           {"WHuwDatum", "03.06.1875"},
                           {"WHuwPlaats", "2"},
                           {"HuwCorr", "C"},
                           {"HuwSoort", "GH"},
                           {"KHuwDatum", "05.06.1875"},
                           {"KHuwPlaats", "2"},
                           {"Religie", "XX"}});
  OpRelatie(
      "toon RecordNr\ntoon ManLabel\ntoon NaarMan\ntoon VoorNmMan\ntoon AchterNmMan\n"
      "toon VrouwLabel\ntoon NaarVrouw\ntoon VoorNmVrouw\ntoon OtrDatum\ntoon OtrPltsNm\n"
      "toon WetHuwLabel\ntoon HuwCorr\ntoon WetHuwDatum\ntoon WHuwPltsNm\ntoon HuwSoortCode\n"
      "toon HuwSoortTekst\ntoon KHuwLabel\ntoon KHuwDatum\ntoon KHuwPltsNr\ntoon ReligieTekst\n"
      "toon Kindertal",
      2, R"~(
    = RecordNr "2"
    = ManLabel "Man"
    = NaarMan "2"
    = VoorNmMan "Jan"
    = AchterNmMan "Vos"
    = VrouwLabel "Vrouw"
    = NaarVrouw "3"
    = VoorNmVrouw "Anna"
    = OtrDatum "01.06.1875"
    = OtrPltsNm "Delft"
    = WetHuwLabel "Huwelijk (wet)"
    = HuwCorr "C"
    = WetHuwDatum "03.06.1875"
    = WHuwPltsNm "Delft"
    = HuwSoortCode "GH"
    = HuwSoortTekst "GH"
    = KHuwLabel "Huwelijk (kerk)"
    = KHuwDatum "05.06.1875"
    = KHuwPltsNr "2"
    = ReligieTekst "XX"
    = Kindertal "1"
  )~");
}

TEST_F(ToonRelatieTest, DeLabelsZeggenWatVoorBandHetIs) {
  Relaties(3);
  Bouw().WijzigRelatie(2, {{"HuwSwPs", "1"}});
  Bouw().WijzigRelatie(3, {{"HuwSwPs", "2"}, {"KHuwSch", "1"}, {"HuwCorr", "T"}});
  OpRelatie(
      "toon WetHuwLabel\ndruk VolgendeRelatie\ntoon WetHuwLabel\ntoon KHuwLabel\n"
      "toon KHuwPltsNm\ndruk VolgendeRelatie\ntoon KHuwLabel",
      2, R"~(
    = WetHuwLabel "Samenwonen"
    = WetHuwLabel "Partnerschap"
    = KHuwLabel "Scheiding"
    = KHuwPltsNm ""
    = KHuwLabel "Huwelijk (kerk)"
  )~");
}

TEST_F(ToonRelatieTest, TweePartnersVanEenGeslachtZijnGeenManEnVrouw) {
  const auto jan = Bouw().Man("Jan", "Vos");
  Bouw().Relatie(jan, Bouw().Man("Piet", "Bos"));
  Bouw().Relatie(0, 0);
  Bouw().Relatie(jan, 0);
  OpRelatie(
      "toon ManLabel\ntoon VrouwLabel\ndruk VolgendeRelatie\ntoon ManLabel\n"
      "druk VolgendeRelatie\ntoon ManLabel\ntoon VrouwLabel",
      2, R"(
    = ManLabel "Partner1"
    = VrouwLabel "Partner2"
    = ManLabel "Partner1"
    = ManLabel "Man"
    = VrouwLabel "Vrouw"
  )");
}

TEST_F(ToonRelatieTest, ZonderKinderenStaatErGeen) {
  Relaties(1);
  OpRelatie("toon Kindertal\ntoon VoorNmMan", 2, "= Kindertal \"geen\"\n= VoorNmMan \"\"");
}

TEST_F(ToonRelatieTest, KinderenVanHetVervolgrecordTellenMee) {
  std::vector<std::int16_t> kinderen;
  for (int i = 0; i < 16; ++i) kinderen.push_back(Bouw().Man("Kind", "Vos"));
  Bouw().Relatie(0, 0, kinderen);
  OpRelatie("toon Kindertal", 2, "= Kindertal \"16\"");
}

TEST_F(ToonRelatieTest, EenVervolgrecordDatNietTeLezenIsWordtGemeld) {
  Gezin();
  Bouw().WijzigRelatie(2, {{"Kind15", "-9"}});
  Verwacht("toon Kindertal", Loop(ToonRelatieVraag, 2), R"(
    ! stop "Leesfout bij relatierecord 9"
    + ToonRelatie "Toon Relatie"
    = Kindertal "1"
  )");
}

TEST_F(ToonRelatieTest, EenVeldMetEenOpmerkingHeeftEenTeken) {
  Relaties(1);
  Bouw().OpmerkingBijRelatie(2, -8, {"volgens akte"});
  Bouw().OpmerkingBijRelatie(2, -256, {"Over hen"});
  OpRelatie(
      "toon WetHuwDatumOpm\ntoon OtrDatumOpm\ntoon AlgRelOpmTekst\ndruk WetHuwDatumOpm\n"
      "toon VeldLabel\ndruk BackButton\ntoon RecordNr",
      2, R"(
    = WetHuwDatumOpm ">"
    = OtrDatumOpm "-"
    = AlgRelOpmTekst "Over hen"
    + ToonOpm "Toon Opmerking"
    = VeldLabel ">> Wettelijk Huwelijk Datum"
    - ToonOpm
    = RecordNr "2"
  )");
}

TEST_F(ToonRelatieTest, ManEnVrouwSluitenDeKaartVoorgoed) {
  Gezin();
  OpRelatie("druk NaarMan\ntoon RecordNr\ndruk BackButton", 2, R"(
    - ToonRelatie
    + ToonPersoon "Toon Persoon"
    = RecordNr "2"
    - ToonPersoon
  )");
  OpRelatie("druk NaarVrouw\ntoon RecordNr", 2,
            "- ToonRelatie\n" + kPersoonOpen + "= RecordNr \"3\"");
}

TEST_F(ToonRelatieTest, WieErNietIsWordtGemeld) {
  Relaties(1);
  OpRelatie("druk NaarMan\ndruk NaarVrouw\ntoon RecordNr", 2, R"(
    ! uitroep "Er is geen Man bekend"
    ! uitroep "Er is geen Vrouw bekend"
    = RecordNr "2"
  )");
  Bouw().WijzigRelatie(2, {{"ManNr", "-1"}});
  OpRelatie("druk NaarMan", 2, "! uitroep \"Het opgegeven Persoonsnummer komt niet voor\"");
}

TEST_F(ToonRelatieTest, DeKinderenKomenInDePlaatsEnDeRelatieKeertTerug) {
  Gezin();
  OpRelatie("druk NaarKind\ndruk BackButton\ntoon RecordNr", 2, R"(
    - ToonRelatie
    + ToonKinderen "Toon Kinderen"
    - ToonKinderen
    + ToonRelatie "Toon Relatie"
    = RecordNr "2"
  )");
}

TEST_F(ToonRelatieTest, VolgendeEnVorigeSlaanVervolgrecordsOver) {
  Relaties(4);
  Bouw().WijzigRelatie(3, {{"HuwCorr", "Z"}});
  Bouw().WijzigRelatie(5, {{"HuwCorr", "Z"}});
  OpRelatie(
      "druk VorigeRelatie\ndruk VolgendeRelatie\ntoon RecordNr\ndruk VolgendeRelatie\n"
      "druk VorigeRelatie\ntoon RecordNr",
      2, R"(
    ! geen "Dit is de eerste relatie"
    = RecordNr "4"
    ! geen "Dit is de laatste relatie"
    = RecordNr "2"
  )");
}

TEST_F(ToonRelatieTest, EenGetyptNummerWordtGekeurd) {
  Relaties(3);
  Bouw().WijzigRelatie(3, {{"HuwCorr", "Z"}});
  OpRelatie("vul RecordNr 9\nvul RecordNr 3\ntoon RecordNr\nvul RecordNr 4\ntoon RecordNr", 2, R"(
    ! uitroep "Het opgegeven recordnummer komt niet voor"
    ! uitroep "Het opgegeven record is een vervolgrecord"
    = RecordNr "2"
    = RecordNr "4"
  )");
  MaakOnleesbaar(BestandSoort::Relaties, 3);
  OpRelatie("vul RecordNr 3\ntoon RecordNr", 2, R"(
    ! stop "Fout bij het lezen van Relatierecord 3\nFout van de schijf"
    ! stop "Leesfout bij relatierecord 3"
    = RecordNr "2"
  )");
}

TEST_F(ToonRelatieTest, WatGeenRelatieIsWordtGeweigerd) {
  Relaties(2);
  Bouw().WijzigRelatie(3, {{"HuwCorr", "Z"}});
  WordtGeweigerd(9, "! uitroep \"Het opgegeven Relatienummer komt niet voor\"");
  WordtGeweigerd(1, "! uitroep \"Het opgegeven Relatienummer komt niet voor\"");
  WordtGeweigerd(3, "! uitroep \"Het opgegeven record is een vervolgrecord\"");
}

TEST_F(ToonRelatieTest, EenLeegBestandVraagtMeteenOmEenRelatie) {
  Verwacht("druk BackButton", Loop(ToonRelatieVraag, 2), R"(
    + WijzigRelatie "Wijzig Relatie"
    - WijzigRelatie
    + ToonRelatie "Toon Relatie"
    - ToonRelatie
  )");
}

TEST_F(ToonRelatieTest, NieuwEnWijzigLeidenNaarHetBewerken) {
  Gezin();
  OpRelatie("druk NieuwButton\ndruk Opslaan\ntoon RecordNr\ntoon Kindertal", 2, R"(
    + WijzigRelatie "Wijzig Relatie"
    - WijzigRelatie
    = RecordNr "3"
    = Kindertal "geen"
  )");
  OpRelatie(
      "druk WijzigButton\nvul OtrDatum 01.06.1875\ndruk Opslaan\ntoon OtrDatum\ntoon RecordNr", 2,
      R"(
    + WijzigRelatie "Wijzig Relatie"
    - WijzigRelatie
    = OtrDatum "01.06.1875"
    = RecordNr "2"
  )");
}

}  // namespace
}  // namespace lb77
