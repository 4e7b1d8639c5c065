#include "entry/WijzigToets.h"
#include "store/Rubrieken.h"

namespace lb77 {
namespace {

constexpr std::string_view kKerel =
    R"(? uitroep Ja/Nee "Opgegeven Persoon is een Man. Doorgaan ?" -> )";
constexpr std::string_view kVrouwmens =
    R"(? uitroep Ja/Nee "Opgegeven Persoon is een Vrouw. Doorgaan ?" -> )";

constexpr std::int16_t kAndereNummers[] = {0, 1, 3, 999};

std::string Met(std::string_view vraag, std::string_view antwoord) {
  return std::string(vraag) + std::string(antwoord) + "\n";
}

// Jan (2) and Anna (3) with their relation (2); Kees (4), Nel (5), and Toos (6) of unknown sex.
class WijzigRelatieTest : public WijzigRelatieToets {
 protected:
  void SetUp() override {
    Bouw().Man("Jan", "Vos");
    Bouw().Vrouw("Anna", "Bos");
    Bouw().Man("Kees", "Dam");
    Bouw().Vrouw("Nel", "Kok");
    Bouw().Persoon('?', "Toos", "Smit");
    Bouw().Relatie(2, 3, {4, 5});
  }
};

TEST_F(WijzigRelatieTest, EenNieuweRelatieKrijgtHetVolgendeNummer) {
  Speelt(-1, R"(
    toon RecordNr
    toon ManLabel
    toon VrouwLabel
    toon Kindertal
    toon WetHuwLabel
    toon KHuwLabel
  )",
         R"~(
    = RecordNr "3"
    = ManLabel "Partner1"
    = VrouwLabel "Partner2"
    = Kindertal "geen"
    = WetHuwLabel "Huwelijk (wet)"
    = KHuwLabel "Huwelijk (kerk)"
  )~");
  EXPECT_EQ(na_, -1);
  EXPECT_EQ(focus_, "RecordNrMan");
}

TEST_F(WijzigRelatieTest, EenNummerDatNietVoorkomtOpentNiet) {
  for (const std::int16_t nr : kAndereNummers) {
    SpeeltGeheel(nr, "", R"(! uitroep "Het opgegeven Relatienummer komt niet voor")");
    EXPECT_EQ(na_, -1);
  }
}

TEST_F(WijzigRelatieTest, EenVervolgrecordOpentNiet) {
  Bouw().WijzigRelatie(2, {{"HuwCorr", "Z"}});
  SpeeltGeheel(2, "", R"(! uitroep "Het opgegeven record is een vervolgrecord")");
  EXPECT_EQ(na_, -1);
}

TEST_F(WijzigRelatieTest, EenRelatieDieNietTeLezenIsOpentNiet) {
  Bouw().Relatie(4, 5);
  MaakOnleesbaar(BestandSoort::Relaties, 2);
  SpeeltGeheel(2, "", R"(! stop "Fout bij het lezen van Relatierecord 2\nFout van de schijf")");
  EXPECT_EQ(na_, -1);
}

TEST_F(WijzigRelatieTest, ToontPartnersKindertalEnLabels) {
  Bouw().WijzigRelatie(2, {{"HuwSwPs", "1"}, {"KHuwSch", "1"}, {"WHuwDatum", "01-02-1880"}});
  Speelt(2, R"(
    toon ManLabel
    toon VrouwLabel
    toon RecordNrMan
    toon VoorNmMan
    toon AchterNmVrouw
    toon WetHuwLabel
    toon WetHuwDatum
    toon KHuwLabel
    toon Kindertal
  )",
         R"(
    = ManLabel "Man"
    = VrouwLabel "Vrouw"
    = RecordNrMan "2"
    = VoorNmMan "Jan"
    = AchterNmVrouw "Bos"
    = WetHuwLabel "Samenwonen"
    = WetHuwDatum "01-02-1880"
    = KHuwLabel "Scheiding"
    = Kindertal "2"
  )");
  EXPECT_EQ(na_, 2);
}

TEST_F(WijzigRelatieTest, PartnersVanEenGeslachtHetenPartner) {
  Bouw().WijzigRelatie(2, {{"VrouwNr", "4"}});
  Speelt(2, "toon ManLabel\ntoon VrouwLabel", R"(
    = ManLabel "Partner1"
    = VrouwLabel "Partner2"
  )");
}

TEST_F(WijzigRelatieTest, EenPartnerAlleenHeetManOfVrouw) {
  constexpr std::string_view kVraag = "toon ManLabel\ntoon VrouwLabel";
  Bouw().WijzigRelatie(2, {{"VrouwNr", "0"}});
  Speelt(2, kVraag, R"(
    = ManLabel "Man"
    = VrouwLabel "Vrouw"
  )");
  // Of the other one as much is known: nothing.
  Bouw().WijzigRelatie(2, {{"ManNr", "6"}});
  Speelt(2, kVraag, R"(
    = ManLabel "Partner1"
    = VrouwLabel "Partner2"
  )");
}

TEST_F(WijzigRelatieTest, EenNummerDatLeegWordtGeeftDeGewoneLabels) {
  Bouw().WijzigRelatie(2, {{"VrouwNr", "4"}});
  Speelt(2, "vul RecordNrVrouw\ntoon ManLabel\ntoon VrouwLabel\ntoon AchterNmVrouw", R"(
    = ManLabel "Man"
    = VrouwLabel "Vrouw"
    = AchterNmVrouw ""
  )");
}

TEST_F(WijzigRelatieTest, EenVreemdMerkIsEenPartnerschap) {
  ZetByte(Paden().rlt, 64 + relatieveld::HuwSwPs.plaats, '3');
  Speelt(2, "toon WetHuwLabel", R"(= WetHuwLabel "Partnerschap")");
}

TEST_F(WijzigRelatieTest, KinderenTellenUitHetVervolgMee) {
  std::vector<std::int16_t> kinderen;
  for (int i = 0; i < 17; ++i) kinderen.push_back(Bouw().Man("K", "Kind"));
  const auto nr = Bouw().Relatie(4, 5, kinderen);
  Speelt(nr, "toon Kindertal", R"(= Kindertal "17")");
  Bouw().WijzigRelatie(nr, {{"Kind15", "-99"}});
  SpeeltGeheel(nr, "toon Kindertal\ndruk BackButton", R"(
    ! stop "Leesfout bij relatierecord 99"
    + WijzigRelatie "Wijzig Relatie"
    = Kindertal "14"
    - WijzigRelatie
  )");
}

TEST_F(WijzigRelatieTest, ElkeRubriekToontOfErEenOpmerkingIs) {
  Bouw().OpmerkingBijRelatie(2, relatierubriek::kWetHuwPlaats, {"In de Oude Kerk"});
  std::string vraag;
  for (int i = 1; i <= 9; ++i) vraag += "toon OpmLabel(" + std::to_string(i) + ")\n";
  Speelt(2, vraag + "toon OpmTekst(4)\ntoon OpmTekst(9)", R"(
    = OpmLabel(1) "- Otr Datum"
    = OpmLabel(2) "- Otr Plaats"
    = OpmLabel(3) "- Wet Huw Datum"
    = OpmLabel(4) ">> Wet Huw Plaats"
    = OpmLabel(5) "- Soort Huwelijk"
    = OpmLabel(6) "- Kerk Huw Datum"
    = OpmLabel(7) "- Kerk Huw Plaats"
    = OpmLabel(8) "- Religie"
    = OpmLabel(9) "- Algemeen"
    = OpmTekst(4) "In de Oude Kerk"
    = OpmTekst(9) ""
  )");
}

TEST_F(WijzigRelatieTest, DeLabelsWisselenOpDubbelklikEnSpatie) {
  Speelt(2, R"(
    dubbelklik WetHuwLabel
    toon WetHuwLabel
    toets WetHuwLabel Space
    toon WetHuwLabel
    toets WetHuwLabel Space
    toon WetHuwLabel
    dubbelklik KHuwLabel
    toon KHuwLabel
    toets KHuwLabel Space
    toon KHuwLabel
  )",
         R"~(
    = WetHuwLabel "Samenwonen"
    = WetHuwLabel "Partnerschap"
    = WetHuwLabel "Huwelijk (wet)"
    = KHuwLabel "Scheiding"
    = KHuwLabel "Huwelijk (kerk)"
  )~");
}

// kept: a period that is stored hides nothing until the user has passed its code.
TEST_F(WijzigRelatieTest, DePeriodeVerbergtDePlaatsPasBijHetVerlaten) {
  Bouw().WijzigRelatie(2, {{"HuwCorr", "T"}});
  Speelt(2,
         "toon KHuwPltsNm\ntoets HuwCorr Tab\ntoon KHuwPltsNm\ntoon KHuwPltsNr\nvul HuwCorr\ntoon "
         "KHuwPltsNm",
         R"(
    = KHuwPltsNm ""
    = KHuwPltsNm "" [verborgen]
    = KHuwPltsNr "" [verborgen]
    = KHuwPltsNm ""
  )");
  Speelt(2, "vul HuwCorr z",
         R"(! uitroep "Alleen C (Circa), V (Voor), N (Na) of T (Tussen) toegestaan")");
  EXPECT_EQ(focus_, "HuwCorr");
}

TEST_F(WijzigRelatieTest, EenPartnerDieGetyptWordtKrijgtZijnNaamEnDeFocusGaatVerder) {
  Speelt(-1, "vul RecordNrMan 2\ntoon VoorNmMan\ntoon ManLabel\ntoon VrouwLabel", R"(
    = VoorNmMan "Jan"
    = ManLabel "Man"
    = VrouwLabel "Vrouw"
  )");
  EXPECT_EQ(focus_, "RecordNrVrouw");
  Speelt(-1, "vul RecordNrVrouw 3\ntoon AchterNmVrouw", R"(= AchterNmVrouw "Bos")");
  EXPECT_EQ(focus_, "OtrDatum");
}

TEST_F(WijzigRelatieTest, EenLeegNummerMaaktDeNaamLeeg) {
  Speelt(2, "vul RecordNrMan\ntoon VoorNmMan\ntoon AchterNmMan\nvul RecordNrMan 2\ntoon VoorNmMan",
         R"(
    = VoorNmMan ""
    = AchterNmMan ""
    = VoorNmMan "Jan"
  )");
}

TEST_F(WijzigRelatieTest, EenNummerDatErNietIsHoudtDeFocus) {
  Speelt(2, "vul RecordNrMan 99", R"(! uitroep "Recordnummer bestaat niet")");
  EXPECT_EQ(focus_, "RecordNrMan");
  Speelt(2, "vul RecordNrVrouw 99", R"(! uitroep "Recordnummer bestaat niet")");
  EXPECT_EQ(focus_, "RecordNrVrouw");
}

TEST_F(WijzigRelatieTest, WieEenOnbekendGeslachtHeeftIsHierGeenPartner) {
  Speelt(2, "vul RecordNrMan 6", R"(! uitroep "Persoon met onbekend Geslacht niet toegestaan")");
  EXPECT_EQ(focus_, "RecordNrMan");
  Speelt(2, "vul RecordNrVrouw 6", R"(! uitroep "Persoon met onbekend Geslacht niet toegestaan")");
  EXPECT_EQ(focus_, "RecordNrVrouw");
}

TEST_F(WijzigRelatieTest, EenPaarVanEenGeslachtIsEenVraag) {
  Speelt(-1, "antwoord Nee\nvul RecordNrMan 3\ntoon ManLabel", Met(kVrouwmens, "Nee") + R"(
    = ManLabel "Man"
  )");
  EXPECT_EQ(focus_, "RecordNrMan");
  Speelt(-1, "antwoord Ja\nvul RecordNrMan 3\ntoon ManLabel\ntoon VoorNmMan",
         Met(kVrouwmens, "Ja") + R"(
    = ManLabel "Partner1"
    = VoorNmMan "Anna"
  )");
  EXPECT_EQ(focus_, "RecordNrVrouw");
  Speelt(-1, "antwoord Nee\nvul RecordNrVrouw 2", Met(kKerel, "Nee"));
  EXPECT_EQ(focus_, "RecordNrVrouw");
  Speelt(-1, "antwoord Ja\nvul RecordNrVrouw 2\ntoon VrouwLabel", Met(kKerel, "Ja") + R"(
    = VrouwLabel "Partner2"
  )");
  EXPECT_EQ(focus_, "OtrDatum");
}

TEST_F(WijzigRelatieTest, EenNummerDatNiemandVerandertWordtNietBeoordeeld) {
  Bouw().WijzigRelatie(2, {{"ManNr", "99"}, {"VrouwNr", "4"}});
  Speelt(2, "toets RecordNrMan Tab\ntoets RecordNrVrouw Tab\ntoon VoorNmMan\ntoon ManLabel", R"(
    = VoorNmMan "?????"
    = ManLabel "Man"
  )");
}

TEST_F(WijzigRelatieTest, CodesEnPlaatsenKrijgenHunNaam) {
  Bouw().Plaats("Delft", "ZH");
  Speelt(2,
         "vul WHuwPltsNm delft\ntoon WHuwPltsNr\nvul ReligieCode NH\ntoon ReligieTekst\nvul "
         "HuwSoortCode RK\ntoon HuwSoortTekst",
         R"(
    = WHuwPltsNr "2"
    = ReligieTekst "Nederlands-Hervormd"
    = HuwSoortTekst "Rooms-Katholiek"
  )");
}

TEST_F(WijzigRelatieTest, GeenVeldNeemtMeerDanHetRecordHeeft) {
  constexpr std::pair<std::string_view, std::size_t> kBreedten[] = {
      {"RecordNrMan", 5U},  {"VoorNmMan", 30U}, {"AchterNmVrouw", 25U},
      {"OtrDatum", 10U},    {"OtrPltsNm", 25U}, {"HuwCorr", 1U},
      {"HuwSoortCode", 2U}, {"WHuwPltsNr", 5U}, {"ReligieCode", 2U},
  };
  Stil([&](Hoofdmodule& hoofd) {
    WijzigRelatie form(hoofd);
    for (const auto& [naam, breedte] : kBreedten) {
      const auto* const veld = dynamic_cast<const Invoerveld*>(form.Zoek(naam));
      ASSERT_NE(veld, nullptr) << naam;
      EXPECT_EQ(veld->MaxLengte(), breedte) << naam;
    }
  });
}

TEST_F(WijzigRelatieTest, TerugSchrijftNietsEnVergeetDeBuffers) {
  const auto voor = Bytes();
  Verwacht(
      "vul RecordNrMan 4\ntoets Escape",
      [&](Hoofdmodule& hoofd) {
        Dialoog(2)(hoofd);
        EXPECT_EQ(hoofd.volgers.PersBufNr, -1);
        EXPECT_EQ(hoofd.volgers.RelBufNr, -1);
        EXPECT_EQ(hoofd.volgers.PlaatsBufNr, -1);
      },
      Omlijst(""));
  EXPECT_EQ(na_, 2);
  EXPECT_EQ(Bytes(), voor);
  SpeeltGeheel(2, "toets F10", Omlijst(""));
}

}  // namespace
}  // namespace lb77
