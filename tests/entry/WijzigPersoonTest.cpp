#include "entry/WijzigToets.h"
#include "store/Rubrieken.h"

namespace lb77 {
namespace {

constexpr std::int16_t kAndereNummers[] = {0, 1, 5, 999};

// Jan (2) and Anna (3), their relation (2) and their son Piet (4).
class WijzigPersoonTest : public WijzigPersoonToets {
 protected:
  void SetUp() override {
    Bouw().Man("Jan", "Vos", {{"GebDatum", "01-05-1850"}});
    Bouw().Vrouw("Anna", "Bos");
    Bouw().Man("Piet", "Vos");
    Bouw().Relatie(2, 3, {4});
  }
};

TEST_F(WijzigPersoonTest, EenNieuwePersoonKrijgtHetVolgendeNummer) {
  Speelt(-1, "toon RecordNr\ntoon Geslacht\ntoon BegrLabel\ntoon RelNrP(1)", R"(
    = RecordNr "5"
    = Geslacht "O"
    = BegrLabel "Begraven"
    = RelNrP(1) "" [verborgen]
  )");
  EXPECT_EQ(na_, -1);
  EXPECT_EQ(focus_, "Geslacht");
}

TEST_F(WijzigPersoonTest, EenNummerDatNietVoorkomtOpentNiet) {
  for (const std::int16_t nr : kAndereNummers) {
    SpeeltGeheel(nr, "", R"(! uitroep "Het opgegeven Persoonsnummer komt niet voor")");
    EXPECT_EQ(na_, -1);
  }
}

TEST_F(WijzigPersoonTest, EenVervolgrecordOpentNiet) {
  MaakVervolg(4);
  SpeeltGeheel(4, "", R"(! uitroep "Het opgegeven record is een vervolgrecord")");
  EXPECT_EQ(na_, -1);
}

TEST_F(WijzigPersoonTest, EenPersoonDieNietTeLezenIsOpentNiet) {
  Bouw().Man("Kees", "Vos");
  MaakGat(4);
  SpeeltGeheel(4, "", "");
  EXPECT_EQ(na_, -1);
}

TEST_F(WijzigPersoonTest, EenVolBestandNeemtNiemandMeer) {
  const std::string een = LeesBytes(Paden().prs).substr(0, 128);
  std::string bytes = een;
  const std::string jan = LeesBytes(Paden().prs).substr(128, 128);
  for (int i = 2; i <= 32767; ++i) bytes += jan;
  SchrijfBytes(Paden().prs, bytes);
  Bouw().ZetAantalPersonen(32766);
  SpeeltGeheel(-1, "", R"(! stop "Het maximum van 32767 records is bereikt")");
}

TEST_F(WijzigPersoonTest, ToontOudersPartnersEnOpmerking) {
  Bouw().OpmerkingBijPersoon(4, persoonrubriek::kAlgemeen, {"Was schipper", "en boer"});
  const auto kee = Bouw().Vrouw("Kee", "");
  Bouw().Relatie(4, kee);
  Bouw().Relatie(4, 0);
  Bouw().WijzigPersoon(4, {{"BegrCrem", "1"}});
  Speelt(4, R"(
    toon RelNrOuders
    toon RecordNrPa
    toon VoorNmPa
    toon AchterNmMa
    toon RelNrP(1)
    toon RecordNrP(1)
    toon AchterNmP(1)
    toon LabelP(2)
    toon AchterNmP(2)
    toon RelNrP(3)
    toon BegrLabel
    toon AlgPersOpmTekst
  )",
         R"(
    = RelNrOuders "2"
    = RecordNrPa "2"
    = VoorNmPa "Jan"
    = AchterNmMa "Bos"
    = RelNrP(1) "3"
    = RecordNrP(1) "5"
    = AchterNmP(1) "<onbekend>"
    = LabelP(2) "Partner 2"
    = AchterNmP(2) "<onbekend>"
    = RelNrP(3) "" [verborgen]
    = BegrLabel "Crematie"
    = AlgPersOpmTekst "Was schipper"
  )");
  EXPECT_EQ(na_, 4);
}

TEST_F(WijzigPersoonTest, BijEenVrouwStaatDeMan) {
  Speelt(3, "toon RecordNrP(1)\ntoon VoorNmP(1)", R"(
    = RecordNrP(1) "2"
    = VoorNmP(1) "Jan"
  )");
}

TEST_F(WijzigPersoonTest, VanEenRelatieDieNietTeLezenIsIsNiemandBekend) {
  Bouw().WijzigPersoon(4, {{"Relatie1", "9"}, {"Ouders", "9"}});
  Speelt(4,
         "toon RelNrP(1)\ntoon RecordNrP(1)\ntoon AchterNmP(1)\ntoon RelNrOuders\n"
         "toon RecordNrPa\ntoon AchterNmMa",
         R"(
    = RelNrP(1) "9"
    = RecordNrP(1) ""
    = AchterNmP(1) "<onbekend>"
    = RelNrOuders "9"
    = RecordNrPa ""
    = AchterNmMa ""
  )");
}

TEST_F(WijzigPersoonTest, ToontDeNaamVanEenPlaatsEnEenGezindte) {
  Bouw().Plaats("Delft", "ZH");
  Bouw().WijzigPersoon(4, {{"OvlPlaats", "10002"}, {"DoopReligie", "RK"}});
  Speelt(4, "toon OvlPltsNm\ntoon OvlPltsNr\ntoon ReligieTekst", R"(
    = OvlPltsNm "Delft"
    = OvlPltsNr "10002"
    = ReligieTekst "Rooms-Katholiek"
  )");
}

TEST_F(WijzigPersoonTest, VijfRelatiesKomenOokUitHetVervolg) {
  for (int i = 0; i < 5; ++i) Bouw().Relatie(4, Bouw().Vrouw("V" + std::to_string(i), "Kok"));
  Speelt(4, "toon RelNrP(3)\ntoon RelNrP(5)\ntoon VoorNmP(5)", R"(
    = RelNrP(3) "5"
    = RelNrP(5) "7"
    = VoorNmP(5) "V4"
  )");
}

TEST_F(WijzigPersoonTest, EenVervolgDatNietTeLezenIsWordtGemeld) {
  Bouw().WijzigPersoon(2, {{"Relatie2", "2"}, {"Relatie3", "-77"}});
  SpeeltGeheel(2, "toon RelNrP(2)\ntoon RelNrP(3)\ndruk BackButton", R"(
    ! stop "Leesfout bij persoonsrecord 77"
    + WijzigPersoon "Wijzig Persoon"
    = RelNrP(2) "2"
    = RelNrP(3) "" [verborgen]
    - WijzigPersoon
  )");
}

TEST_F(WijzigPersoonTest, EenPeriodeVerbergtWatBijHetTweedeFeitHoort) {
  Bouw().WijzigPersoon(4, {{"GebCorr", "T"}, {"OvlCorr", "T"}});
  Speelt(4, R"(
    toon DoopLabel
    toon DoopDatum
    toon DoopPltsNm
    toon DoopPltsNr
    toon ReligieLabel
    toon ReligieCode
    toon ReligieTekst
    toon BegrPltsNm
    toon BegrPltsNr
    toon BegrLabel
  )",
         R"(
    = DoopLabel "Gedoopt" [verborgen]
    = DoopDatum "  -  -    "
    = DoopPltsNm "" [verborgen]
    = DoopPltsNr "" [verborgen]
    = ReligieLabel "Gezindte" [verborgen]
    = ReligieCode "" [verborgen]
    = ReligieTekst "" [verborgen]
    = BegrPltsNm "" [verborgen]
    = BegrPltsNr "" [verborgen]
    = BegrLabel "Begraven"
  )");
}

TEST_F(WijzigPersoonTest, DeCodeVerbergtEnToontBijHetVerlaten) {
  Speelt(4, R"(
    vul GebCorr t
    toon DoopPltsNm
    vul GebCorr c
    toon DoopPltsNm
    vul OvlCorr t
    toon BegrPltsNr
    vul OvlCorr
    toon BegrPltsNr
  )",
         R"(
    = DoopPltsNm "" [verborgen]
    = DoopPltsNm ""
    = BegrPltsNr "" [verborgen]
    = BegrPltsNr ""
  )");
}

TEST_F(WijzigPersoonTest, EenAndereCodeHoudtDeFocus) {
  for (const std::string veld : {"GebCorr", "OvlCorr"}) {
    Speelt(4, "vul " + veld + " z",
           R"(! uitroep "Alleen C (Circa), V (Voor), N (Na) of T (Tussen) toegestaan")");
    EXPECT_EQ(focus_, veld);
  }
}

TEST_F(WijzigPersoonTest, BegravenOfCrematieWisseltOpDubbelklikEnSpatie) {
  Speelt(4, R"(
    dubbelklik BegrLabel
    toon BegrLabel
    toets BegrLabel Space
    toon BegrLabel
  )",
         R"(
    = BegrLabel "Crematie"
    = BegrLabel "Begraven"
  )");
}

TEST_F(WijzigPersoonTest, HetGeslachtIsEenVanDrieLetters) {
  Speelt(4, "vul Geslacht v\ntoon Geslacht\nvul Geslacht o\nvul Geslacht m", R"(
    = Geslacht "V"
  )");
  Speelt(4, "vul Geslacht x",
         R"(! uitroep "Alleen O (Onbekend), M (Mannelijk) of V (Vrouwelijk) toegestaan")");
  EXPECT_EQ(focus_, "Geslacht");
  Speelt(4, "vul Geslacht",
         R"(! uitroep "Alleen O (Onbekend), M (Mannelijk) of V (Vrouwelijk) toegestaan")");
}

TEST_F(WijzigPersoonTest, MetEenPartnerBlijftHetGeslacht) {
  Speelt(2, "vul Geslacht v\nvul VoorNm Kees\ntoon Geslacht\ntoon VoorNm", R"(
    ! geen "Geslacht wijzigen niet toegestaan: er zijn al relaties"
    ! geen "Geslacht wijzigen niet toegestaan: er zijn al relaties"
    = Geslacht "V"
    = VoorNm "Jan"
  )");
  EXPECT_EQ(focus_, "Geslacht");
}

TEST_F(WijzigPersoonTest, EenVreemdeLetterDieNiemandAanraaktHoudtNiemandVast) {
  ZetByte(Paden().prs, 128 + persoonveld::Geslacht.plaats, 'q');
  ZetByte(Paden().prs, 128 + persoonveld::GebCorr.plaats, 'w');
  Speelt(2, "toets Geslacht Tab\ntoets GebCorr Tab\ntoon GebCorr", R"(= GebCorr "w")");
  EXPECT_EQ(focus_, "GebDatum");
}

TEST_F(WijzigPersoonTest, EenBeschadigdeDatumHoudtNiemandVast) {
  // The 77th of the 13th month.
  ZetByte(Paden().prs, 128 + persoonveld::GebDagMaand.plaats, static_cast<char>(7713 & 0xFF));
  ZetByte(Paden().prs, 129 + persoonveld::GebDagMaand.plaats, static_cast<char>(7713 >> 8));
  Speelt(2, "toets GebDatum Tab\ntoon GebDatum", R"(= GebDatum "77-13-1850")");
  EXPECT_EQ(focus_, "GebPltsNm");
  Speelt(2, "vul GebDatum 77-14-1850", R"(
    ! uitroep "Maand bestaat niet"
    ! uitroep "Dag bestaat niet"
  )");
}

TEST_F(WijzigPersoonTest, DeOuderDieGetyptWordtKrijgtZijnNaam) {
  MaakVervolg(Bouw().Man("Ver", "Volg"));
  Speelt(4, "vul RecordNrPa 4\ntoon VoorNmPa\nvul RecordNrPa\ntoon VoorNmPa\ntoon AchterNmPa", R"(
    = VoorNmPa "Piet"
    = VoorNmPa ""
    = AchterNmPa ""
  )");
  Speelt(4, "vul RecordNrMa 99", R"(! uitroep "Recordnummer bestaat niet")");
  EXPECT_EQ(focus_, "RecordNrMa");
  Speelt(4, "vul RecordNrPa 5", R"(! uitroep "Record is een vervolgrecord")");
  EXPECT_EQ(focus_, "RecordNrPa");
}

TEST_F(WijzigPersoonTest, DeRelatieVanDeOudersBrengtBeidenEnGaatNaarTerug) {
  Speelt(-1, "vul RelNrOuders 2\ntoon RecordNrPa\ntoon VoorNmMa", R"(
    = RecordNrPa "2"
    = VoorNmMa "Anna"
  )");
  EXPECT_EQ(focus_, "BackButton");
  Speelt(4, "vul RelNrOuders\ntoon RecordNrPa\ntoon VoorNmMa\ntoon AchterNmMa", R"(
    = RecordNrPa ""
    = VoorNmMa ""
    = AchterNmMa ""
  )");
  EXPECT_EQ(focus_, "");
  Speelt(4, "vul RelNrOuders 9\ntoon RecordNrPa", R"(
    ! uitroep "Recordnummer bestaat niet"
    = RecordNrPa "2"
  )");
  EXPECT_EQ(focus_, "RelNrOuders");
}

TEST_F(WijzigPersoonTest, EenPlaatsEnEenGezindteKrijgenHunNaam) {
  Bouw().Plaats("Delft", "ZH");
  Speelt(4, "vul GebPltsNm delft\ntoon GebPltsNr\nvul ReligieCode NH\ntoon ReligieTekst", R"(
    = GebPltsNr "2"
    = ReligieTekst "Nederlands-Hervormd"
  )");
}

TEST_F(WijzigPersoonTest, GeenVeldNeemtMeerDanHetRecordHeeft) {
  constexpr std::pair<std::string_view, std::size_t> kBreedten[] = {
      {"Geslacht", 1U},   {"VoorNm", 30U},    {"AchterNm", 25U},    {"GebCorr", 1U},
      {"GebDatum", 10U},  {"GebPltsNm", 25U}, {"GebPltsNr", 5U},    {"ReligieCode", 2U},
      {"OvlCorr", 1U},    {"BegrDatum", 10U}, {"BeroepTekst", 30U}, {"RelNrOuders", 5U},
      {"RecordNrPa", 5U}, {"VoorNmPa", 30U},  {"AchterNmMa", 25U},
  };
  Stil([&](Hoofdmodule& hoofd) {
    WijzigPersoon form(hoofd);
    for (const auto& [naam, breedte] : kBreedten) {
      const auto* const veld = dynamic_cast<const Invoerveld*>(form.Zoek(naam));
      ASSERT_NE(veld, nullptr) << naam;
      EXPECT_EQ(veld->MaxLengte(), breedte) << naam;
    }
  });
}

TEST_F(WijzigPersoonTest, TerugSchrijftNietsEnVergeetDeBuffers) {
  const auto voor = Bytes();
  Verwacht(
      "vul VoorNm Kees\ntoets Escape",
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
