#include "entry/WijzigToets.h"

namespace lb77 {
namespace {

namespace veld = persoonveld;

constexpr std::string_view kLos =
    R"(? vraag Ja/Nee "Moet de koppeling met de ouders verbroken worden ?" -> )";
constexpr std::string_view kGeenRelatie =
    R"(? vraag Ja/Nee "Geen relatie bekend tussen deze partners.\nRelatie aanmaken ?" -> )";

std::string Met(std::string_view vraag, std::string_view antwoord) {
  return std::string(vraag) + std::string(antwoord) + "\n";
}

// Jan (2) and Anna (3) with their son Piet (4); Kees (5) and Trui (6) without children; Nel (7).
class WijzigPersoonOpslaanTest : public WijzigPersoonToets {
 protected:
  void SetUp() override {
    Bouw().Man("Jan", "Vos");
    Bouw().Vrouw("Anna", "Bos");
    Bouw().Man("Piet", "Vos");
    Bouw().Man("Kees", "Dam");
    Bouw().Vrouw("Trui", "Smit");
    Bouw().Vrouw("Nel", "Kok");
    Bouw().Relatie(2, 3, {4});
    Bouw().Relatie(5, 6);
  }
};

TEST_F(WijzigPersoonOpslaanTest, EenNieuwePersoonKrijgtAlleVelden) {
  Bouw().Plaats("Delft", "ZH");
  SlaatOp(-1, R"(
    vul Geslacht v
    vul VoorNm Maria
    vul AchterNm van Dijk
    vul GebCorr c
    vul GebDatum 1-2-1900
    vul GebPltsNm Delft
    vul DoopDatum 3-2-1900
    vul DoopPltsNr 10002
    vul ReligieCode NH
    vul OvlCorr n
    vul OvlDatum 5-6-1970
    vul OvlPltsNm Delft
    dubbelklik BegrLabel
    vul BegrDatum 9-6-1970
    vul BegrPltsNr 2
    vul BeroepTekst naaister
  )");
  EXPECT_EQ(na_, 8);
  const std::pair<Veld, std::string_view> verwacht[] = {
      {veld::Geslacht, "V"},
      {veld::Voornaam, "Maria"},
      {veld::Achternaam, "van Dijk"},
      {veld::GebCorr, "C"},
      {veld::GebDagMaand, "01-02-1900"},
      {veld::GebPlaatsNr, "2"},
      {veld::DoopDagMaand, "03-02-1900"},
      {veld::DoopPlaatsNr, "10002"},
      {veld::Religie, "NH"},
      {veld::OvlCorr, "N"},
      {veld::OvDagMaand, "05-06-1970"},
      {veld::OvlPlaatsNr, "2"},
      {veld::BegrCrem, "1"},
      {veld::BegrDagMaand, "09-06-1970"},
      {veld::BegrPlaatsNr, "2"},
      {veld::beroep, "naaister"},
      {veld::RelNrOuders, ""},
  };
  for (const auto& [welk, waarde] : verwacht) EXPECT_EQ(VanPersoon(8, welk), waarde) << welk.naam;
}

TEST_F(WijzigPersoonOpslaanTest, WieNietsVerandertLaatElkBestandZoalsHetIs) {
  const auto voor = Bytes();
  for (std::int16_t nr = 2; nr <= 7; ++nr) {
    SlaatOp(nr, "");
    EXPECT_EQ(na_, nr);
  }
  EXPECT_EQ(Bytes(), voor);
}

TEST_F(WijzigPersoonOpslaanTest, HetGeslachtMetEenPartnerKomtTerug) {
  Speelt(2, "vul Geslacht v\ndruk Opslaan\ntoon Geslacht", R"(
    ! geen "Geslacht wijzigen niet toegestaan: er zijn al relaties"
    ! uitroep "Persoon heeft al relatie(s).\nGeslacht niet te wijzigen"
    = Geslacht "M"
  )");
  EXPECT_EQ(focus_, "Geslacht");
  SlaatOp(7, "vul Geslacht o");
  EXPECT_EQ(VanPersoon(7, veld::Geslacht), "O");
}

TEST_F(WijzigPersoonOpslaanTest, ElkTweetalDatumsUitDeVolgordeVraagt) {
  struct Rij {
    std::string eerst;
    std::string later;
    std::string vraag;
  };
  const Rij rijen[] = {
      {"GebDatum", "DoopDatum", "Geboorte is na de doop !"},
      {"GebDatum", "OvlDatum", "Geboorte is na het overlijden !"},
      {"GebDatum", "BegrDatum", "Geboorte is na het begraven !"},
      {"DoopDatum", "OvlDatum", "Doop is na het overlijden !"},
      {"DoopDatum", "BegrDatum", "Doop is na het begraven !"},
      {"OvlDatum", "BegrDatum", "Overlijden is na het begraven !"},
  };
  std::int16_t nr = 8;
  for (const Rij& rij : rijen) {
    const std::string vul = "vul " + rij.eerst + " 12-05-1900\nvul " + rij.later + " 00-00-1899\n";
    const std::string vraag = "? vraag Ja/Nee \"" + rij.vraag + "\\nCorrigeren ?\" -> ";
    Speelt(-1, vul + "antwoord Ja\ndruk Opslaan", vraag + "Ja");
    EXPECT_EQ(focus_, "GebDatum") << rij.vraag;
    EXPECT_EQ(VanPersoon(nr, veld::Geslacht), "<weg>");
    SlaatOp(-1, vul + "antwoord Nee", vraag + "Nee");
    EXPECT_EQ(VanPersoon(nr++, veld::Geslacht), "O");
  }
}

TEST_F(WijzigPersoonOpslaanTest, EenOnbekendDeelMaaktGeenVolgorde) {
  SlaatOp(4, "vul GebDatum 00-05-1900\nvul DoopDatum 10-05-1900");
  SlaatOp(4, "vul GebDatum 00-00-1900\nvul DoopDatum 00-00-1900");
}

TEST_F(WijzigPersoonOpslaanTest, HetEindVanEenPeriodeTeltAlsDeDoop) {
  Speelt(-1,
         "vul GebCorr t\nvul GebDatum 1-1-1900\nvul DoopDatum 1-1-1899\nantwoord Ja\ndruk Opslaan",
         R"(? vraag Ja/Nee "Geboorte is na de doop !\nCorrigeren ?" -> Ja)");
}

TEST_F(WijzigPersoonOpslaanTest, OudersOpNaamWordenGezochtEnGekoppeld) {
  SpeeltGeheel(-1, R"(
    vul VoorNm Bram
    vul VoorNmPa jan
    vul AchterNmPa vos
    vul VoorNmMa anna
    vul AchterNmMa bos
    druk Opslaan
    druk JaButton
    druk JaButton
  )",
               Omlijst(R"(
    + OKPersoon "Zoek Persoon op Naam"
    - OKPersoon
    + OKPersoon "Zoek Persoon op Naam"
    - OKPersoon
  )"));
  EXPECT_EQ(VanPersoon(8, veld::RelNrOuders), "2");
  EXPECT_EQ(Kinderen(2), "4 8");
}

TEST_F(WijzigPersoonOpslaanTest, EenOuderDieNietGevondenWordtHoudtDeNaam) {
  const auto voor = Bytes();
  Speelt(-1, "vul VoorNmPa Jaap\ndruk Opslaan", R"(! uitroep "Persoon niet gevonden")");
  EXPECT_EQ(focus_, "VoorNmPa");
  Speelt(-1, "vul AchterNmMa Jaap\ndruk Opslaan", R"(! uitroep "Persoon niet gevonden")");
  EXPECT_EQ(focus_, "VoorNmMa");
  EXPECT_EQ(Bytes(), voor);
}

TEST_F(WijzigPersoonOpslaanTest, EenNaamDieNietBijHetNummerHoort) {
  Speelt(4, "vul VoorNmPa Kees\ndruk Opslaan", R"(! uitroep "Recordnr Vader hoort niet bij Naam")");
  EXPECT_EQ(focus_, "VoorNmPa");
  Speelt(4, "vul AchterNmMa Kok\ndruk Opslaan",
         R"(! uitroep "Recordnr Moeder hoort niet bij Naam")");
  EXPECT_EQ(focus_, "VoorNmMa");
}

TEST_F(WijzigPersoonOpslaanTest, ZonderRelatieTussenDeOudersKomtErEenOfNiet) {
  Speelt(-1, "vul RecordNrPa 2\nvul RecordNrMa 7\nantwoord Nee\ndruk Opslaan",
         Met(kGeenRelatie, "Nee"));
  EXPECT_EQ(focus_, "RecordNrPa");
  SlaatOp(-1, "vul VoorNm Bram\nvul RecordNrPa 2\nvul RecordNrMa 7\nantwoord Ja",
          Met(kGeenRelatie, "Ja"));
  EXPECT_EQ(VanPersoon(8, veld::Voornaam), "Bram");
  EXPECT_EQ(VanPersoon(8, veld::RelNrOuders), "4");
  EXPECT_EQ(Kinderen(4), "8");
  EXPECT_EQ(Huwelijken(2), "2 4");
  EXPECT_EQ(Huwelijken(7), "4");
}

TEST_F(WijzigPersoonOpslaanTest, EenVervolgrecordVanEenOuderNeemtHetNummerEnDePersoonHetVolgende) {
  Bouw().Relatie(2, 0);
  Bouw().Relatie(2, 0);
  SlaatOp(-1, "vul VoorNm Bram\nvul RecordNrPa 2\nvul RecordNrMa 7\nantwoord Ja",
          Met(kGeenRelatie, "Ja"));
  EXPECT_EQ(na_, 9);
  EXPECT_EQ(VanPersoon(8, veld::GebCorr), "Z");
  EXPECT_EQ(VanPersoon(9, veld::Voornaam), "Bram");
  EXPECT_EQ(Kinderen(6), "9");
  EXPECT_EQ(Huwelijken(2), "2 4 5 6");
}

// The first try made the record and then refused the parents.
TEST_F(WijzigPersoonOpslaanTest, WatEenEerderePogingVergafIsBijDeTweedeNietMeerVrij) {
  Bouw().Relatie(2, 3);
  Bouw().Relatie(2, 3);
  SlaatOp(-1, R"(
    vul VoorNm Bram
    vul RecordNrMa 3
    antwoord Ja
    druk Opslaan
    toon RecordNr
    vul RelNrOuders
  )",
          Met(kGeenRelatie, "Ja") + R"(
    ! uitroep "Vader komt niet voor in Relatie 6"
    = RecordNr "8"
  )");
  EXPECT_EQ(na_, 9);
  EXPECT_EQ(VanPersoon(8, veld::GebCorr), "Z");
  EXPECT_EQ(VanPersoon(9, veld::Voornaam), "Bram");
  EXPECT_EQ(VanPersoon(9, veld::RelNrOuders), "");
}

TEST_F(WijzigPersoonOpslaanTest, ZonderRecordBlijftDeDialoogOpenEnIsErNiemand) {
  Bouw().ZetAantalPersonen(3);
  Speelt(-1, "druk Opslaan", R"(
    ! stop "Persoonsrecord 5 bestaat al: het aantal in het administratierecord is te laag"
  )");
  EXPECT_EQ(na_, -1);
  EXPECT_EQ(VanPersoon(5, veld::Voornaam), "Kees");
}

// The count is too low: the number behind it is somebody's.
TEST_F(WijzigPersoonOpslaanTest, EenNummerDatInGebruikIsWordtNiemandsKind) {
  Bouw().ZetAantalPersonen(3);
  Speelt(-1, "vul RelNrOuders 2\ndruk Opslaan", R"(! stop "Persoonsrecord 5 bestaat al")");
  EXPECT_EQ(Kinderen(2), "4");
}

// kept: her man goes into the new relation, and not into the fields.
TEST_F(WijzigPersoonOpslaanTest, AlleenEenMoederMetEenManWordtGeweigerd) {
  Speelt(-1, "vul RecordNrMa 3\nantwoord Ja\ndruk Opslaan",
         Met(kGeenRelatie, "Ja") + R"(! uitroep "Vader komt niet voor in Relatie 4")");
  EXPECT_EQ(focus_, "RecordNrPa");
  EXPECT_EQ(VanRelatie(4, relatieveld::ManNr), "2");
  EXPECT_EQ(Huwelijken(2), "4");
}

TEST_F(WijzigPersoonOpslaanTest, OudersDieNietInDeRelatieStaan) {
  Speelt(4, "vul RecordNrPa 5\ndruk Opslaan", R"(! uitroep "Vader komt niet voor in Relatie 2")");
  EXPECT_EQ(focus_, "RecordNrPa");
  Speelt(4, "vul RecordNrMa\ndruk Opslaan", R"(! uitroep "Moeder komt niet voor in Relatie 2")");
  EXPECT_EQ(focus_, "RecordNrMa");
}

TEST_F(WijzigPersoonOpslaanTest, EenRelatieDieErNietIs) {
  Bouw().WijzigPersoon(7, {{"Ouders", "99"}});
  Speelt(7, "druk Opslaan", R"(! stop "Fout bij het lezen van Relatie 99")");
  EXPECT_EQ(focus_, "RelNrOuders");
}

TEST_F(WijzigPersoonOpslaanTest, UitEenRelatieDieErNietIsKomtNiemandLos) {
  Bouw().WijzigPersoon(7, {{"Ouders", "99"}});
  Speelt(7, "vul RelNrOuders 3\nantwoord Ja\ndruk Opslaan\ntoon RelNrOuders", Met(kLos, "Ja") + R"(
    ! uitroep "Het kind ontbreekt in de relatie van de oude ouders"
    ! uitroep "Fout bij het verbreken van de koppeling met de ouders"
    ! uitroep "Recordnummer bestaat niet"
    = RelNrOuders "99"
  )");
  EXPECT_EQ(focus_, "RelNrOuders");
  EXPECT_EQ(Kinderen(3), "");
}

// Record 1 can be read, but is nobody.
TEST_F(WijzigPersoonOpslaanTest, EenVaderDieNiemandIsHoudtHetOpslaanNietTegen) {
  Bouw().WijzigRelatie(2, {{"ManNr", "1"}});
  SlaatOp(4, "vul BeroepTekst smid\ntoon RecordNrPa\ntoon VoorNmPa", R"(
    = RecordNrPa "1"
    = VoorNmPa "?????"
  )");
  EXPECT_EQ(VanPersoon(4, veld::beroep), "smid");
}

TEST_F(WijzigPersoonOpslaanTest, NeeLaatDeKoppelingMetDeOuders) {
  const auto voor = Bytes();
  Speelt(4, "vul RelNrOuders 3\nantwoord Nee\ndruk Opslaan\ntoon RelNrOuders\ntoon VoorNmPa",
         Met(kLos, "Nee") + R"(
    = RelNrOuders "2"
    = VoorNmPa "Jan"
  )");
  EXPECT_EQ(focus_, "RelNrOuders");
  EXPECT_EQ(Bytes(), voor);
}

TEST_F(WijzigPersoonOpslaanTest, JaBrengtHetKindNaarDeAndereOuders) {
  SlaatOp(4, "vul RelNrOuders 3\nantwoord Ja", Met(kLos, "Ja"));
  EXPECT_EQ(VanPersoon(4, veld::RelNrOuders), "3");
  EXPECT_EQ(Kinderen(2), "");
  EXPECT_EQ(Kinderen(3), "4");
}

TEST_F(WijzigPersoonOpslaanTest, ZonderRelatieGaatHetKindAlleenWeg) {
  SlaatOp(4, "vul RelNrOuders\nantwoord Ja", Met(kLos, "Ja"));
  EXPECT_EQ(VanPersoon(4, veld::RelNrOuders), "");
  EXPECT_EQ(Kinderen(2), "");
}

TEST_F(WijzigPersoonOpslaanTest, EenKindDatNietInDeLijstStaatKomtNietLos) {
  Bouw().WijzigRelatie(2, {{"Kind1", "7"}});
  Speelt(4, "vul RelNrOuders 3\nantwoord Ja\ndruk Opslaan\ntoon RelNrOuders", Met(kLos, "Ja") + R"(
    ! uitroep "Het kind ontbreekt in de relatie van de oude ouders"
    ! uitroep "Fout bij het verbreken van de koppeling met de ouders"
    = RelNrOuders "2"
  )");
  EXPECT_EQ(focus_, "RelNrOuders");
  EXPECT_EQ(Kinderen(2), "7");
}

// The second Opslaan does not ask again, and does not look for the child in the old list.
TEST_F(WijzigPersoonOpslaanTest, WieAlLosIsGaatBijDeTweedePogingNaarAndereOuders) {
  Bouw().Man("Lijn", "Tien");
  std::vector<std::int16_t> kinderen;
  for (int i = 0; i < 29; ++i) kinderen.push_back(Bouw().Man("K", "Kind"));
  Bouw().Relatie(8, 7, kinderen);
  SlaatOp(4, R"(
    vul RelNrOuders 4
    antwoord Ja
    druk Opslaan
    vul RelNrOuders 3
  )",
          Met(kLos, "Ja") + R"(
    ! uitroep "Er zijn al 29 kinderen bij de nieuwe ouders"
    ! uitroep "Fout bij het koppelen aan de ouders"
  )");
  EXPECT_EQ(VanPersoon(4, veld::RelNrOuders), "3");
  EXPECT_EQ(Kinderen(2), "");
  EXPECT_EQ(Kinderen(3), "4");
}

TEST_F(WijzigPersoonOpslaanTest, WieAlLosIsKanTerugNaarDeOudeOuders) {
  Bouw().WijzigRelatie(3, {{"Kind1", "4"}, {"Kind2", "7"}});
  SlaatOp(4, "vul RelNrOuders 3\nantwoord Ja\ndruk Opslaan\nvul RelNrOuders 2",
          Met(kLos, "Ja") + R"(
    ! uitroep "Het kind is al vermeld bij de nieuwe ouders"
    ! uitroep "Fout bij het koppelen aan de ouders"
  )");
  EXPECT_EQ(VanPersoon(4, veld::RelNrOuders), "2");
  EXPECT_EQ(Kinderen(2), "4");
}

TEST_F(WijzigPersoonOpslaanTest, NaEenMislukteKoppelingBlijftDePersoonBijZijnOudeOuders) {
  Bouw().WijzigRelatie(3, {{"Kind1", "4"}, {"Kind2", "7"}});
  Speelt(4, "vul RelNrOuders 3\nantwoord Ja\ndruk Opslaan", Met(kLos, "Ja") + R"(
    ! uitroep "Het kind is al vermeld bij de nieuwe ouders"
    ! uitroep "Fout bij het koppelen aan de ouders"
  )");
  EXPECT_EQ(Kinderen(2), "");
  EXPECT_EQ(VanPersoon(4, veld::RelNrOuders), "2");
}

// The checks have put parents and hits into the buffer.
TEST_F(WijzigPersoonOpslaanTest, WatDeControlesLazenKomtNietInHetRecord) {
  SlaatOp(4, R"(
    vul BeroepTekst smid
    vul RecordNrPa 5
    vul RecordNrMa 6
    vul RelNrOuders 3
    antwoord Ja
  )",
          Met(kLos, "Ja"));
  EXPECT_EQ(VanPersoon(4, veld::Voornaam), "Piet");
  EXPECT_EQ(VanPersoon(4, veld::beroep), "smid");
  EXPECT_EQ(VanPersoon(6, veld::Voornaam), "Trui");
  EXPECT_EQ(VanPersoon(6, veld::beroep), "");
}

TEST_F(WijzigPersoonOpslaanTest, EenPersoonHoudtWatGeenVeldKanTonen) {
  ZetByte(Paden().prs, 3 * 128 + veld::Vrij.plaats, 'x');
  ZetByte(Paden().prs, 3 * 128 + veld::GebCorr.plaats, 'w');
  const auto voor = Bytes();
  SlaatOp(4, "");
  EXPECT_EQ(Bytes(), voor);
  SlaatOp(4, "vul VoorNm Pieter");
  EXPECT_EQ(VanPersoon(4, veld::GebCorr), "w");
  EXPECT_EQ(LeesBytes(Paden().prs)[3 * 128 + veld::Vrij.plaats], 'x');
}

}  // namespace
}  // namespace lb77
