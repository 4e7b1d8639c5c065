#include "entry/WijzigToets.h"

namespace lb77 {
namespace {

namespace veld = relatieveld;

// Jan (2) and Anna (3) with their relation (2) and child (6); Kees (4) and Nel (5).
class WijzigRelatieOpslaanTest : public WijzigRelatieToets {
 protected:
  void SetUp() override {
    Bouw().Man("Jan", "Vos");
    Bouw().Vrouw("Anna", "Bos");
    Bouw().Man("Kees", "Dam");
    Bouw().Vrouw("Nel", "Kok");
    Bouw().Man("Piet", "Vos");
    Bouw().Relatie(2, 3, {6});
  }
  void GeefVijf(std::int16_t persoon) {
    while (Huwelijken(persoon).size() < 9) Bouw().Relatie(persoon, 0);
  }
};

TEST_F(WijzigRelatieOpslaanTest, EenNieuweRelatieKrijgtAlleVeldenEnKomtInBeideLijsten) {
  Bouw().Plaats("Delft", "ZH");
  SlaatOp(-1, R"(
    vul RecordNrMan 4
    vul RecordNrVrouw 5
    vul OtrDatum 1-2-1900
    vul OtrPltsNm Delft
    dubbelklik WetHuwLabel
    dubbelklik WetHuwLabel
    vul HuwCorr c
    vul WetHuwDatum 3-2-1900
    vul WHuwPltsNr 10002
    vul HuwSoortCode HA
    dubbelklik KHuwLabel
    vul KHuwDatum 5-2-1910
    vul KHuwPltsNm Delft
    vul ReligieCode NH
  )");
  EXPECT_EQ(na_, 3);
  const std::pair<Veld, std::string_view> verwacht[] = {
      {veld::ManNr, "4"},
      {veld::VrouwNr, "5"},
      {veld::OtrPlaatsNr, "2"},
      {veld::OtrDagMaand, "01-02-1900"},
      {veld::HuwSwPs, "2"},
      {veld::HuwCorr, "C"},
      {veld::HuwSoort, "HA"},
      {veld::WetHuwPlaatsNr, "10002"},
      {veld::WetHuwDagMaand, "03-02-1900"},
      {veld::Religie, "NH"},
      {veld::KHuwPlaatsNr, "2"},
      {veld::KHuwDagMaand, "05-02-1910"},
      {veld::KHuwSch, "1"},
  };
  for (const auto& [welk, waarde] : verwacht) EXPECT_EQ(VanRelatie(3, welk), waarde) << welk.naam;
  EXPECT_EQ(Huwelijken(4), "3");
  EXPECT_EQ(Huwelijken(5), "3");
}

// The number is taken while the dialog shows it.
TEST_F(WijzigRelatieOpslaanTest, ZonderRecordBlijftDeDialoogOpenEnKrijgtNiemandEenRelatie) {
  Verwacht(
      "vul RecordNrMan 4\ndruk Opslaan\ntoon RecordNr\ndruk BackButton",
      [&](Hoofdmodule& hoofd) {
        hoofd.volgers.HuidigRelatieNr = -1;
        WijzigRelatie form(hoofd);
        form.Man.RecordNr.BijWijziging([this] { Bouw().Relatie(5, 0); });
        hoofd.gesprek.ToonModaal(form);
        EXPECT_EQ(hoofd.volgers.HuidigRelatieNr, -1);
      },
      Omlijst(R"(
    ! stop "Relatierecord 3 bestaat al: het aantal in het administratierecord is te laag"
    = RecordNr "3"
  )"));
  EXPECT_EQ(Huwelijken(4), "");
}

TEST_F(WijzigRelatieOpslaanTest, WieNietsVerandertLaatElkBestandZoalsHetIs) {
  Bouw().WijzigRelatie(2, {{"HuwSwPs", "1"}, {"HuwCorr", "T"}});
  const auto voor = Bytes();
  SlaatOp(2, "");
  EXPECT_EQ(na_, 2);
  EXPECT_EQ(Bytes(), voor);
}

TEST_F(WijzigRelatieOpslaanTest, ElkTweetalDatumsUitDeVolgordeVraagt) {
  struct Rij {
    std::string eerst;
    std::string later;
    std::string vraag;
    std::string vooraf;
  };
  const Rij rijen[] = {
      {"OtrDatum", "WetHuwDatum", "Ondertrouw is na het wettelijk huwelijk.", ""},
      {"OtrDatum", "KHuwDatum", "Ondertrouw is na het kerkelijk huwelijk.", ""},
      {"OtrDatum", "KHuwDatum", "Ondertrouw is na het kerkelijk huwelijk.",
       "dubbelklik KHuwLabel\n"},
      {"WetHuwDatum", "KHuwDatum", "Wettelijk huwelijk is na het kerkelijk huwelijk.", ""},
      {"WetHuwDatum", "KHuwDatum", "Wettelijk huwelijk is na de scheiding.",
       "dubbelklik KHuwLabel\n"},
  };
  std::int16_t nr = 3;
  for (const Rij& rij : rijen) {
    const std::string vul =
        rij.vooraf + "vul " + rij.eerst + " 01-01-1900\nvul " + rij.later + " 00-00-1899\n";
    const std::string vraag = "? vraag Ja/Nee \"" + rij.vraag + "\\nCorrigeren ?\" -> ";
    Speelt(-1, vul + "antwoord Ja\ndruk Opslaan", vraag + "Ja");
    EXPECT_EQ(focus_, rij.eerst) << rij.vraag;
    EXPECT_EQ(VanRelatie(nr, veld::ManNr), "<weg>");
    SlaatOp(-1, vul + "antwoord Nee", vraag + "Nee");
    EXPECT_EQ(VanRelatie(nr++, veld::ManNr), "");
  }
}

TEST_F(WijzigRelatieOpslaanTest, PartnersOpNaamVanElkGeslacht) {
  SpeeltGeheel(-1, R"(
    vul VoorNmMan nel
    vul AchterNmVrouw dam
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
  EXPECT_EQ(VanRelatie(3, veld::ManNr), "5");
  EXPECT_EQ(VanRelatie(3, veld::VrouwNr), "4");
  EXPECT_EQ(Huwelijken(5), "3");
}

// kept: by number he would be refused.
TEST_F(WijzigRelatieOpslaanTest, OpNaamMagEenPartnerVanOnbekendGeslacht) {
  const auto toos = Bouw().Persoon('?', "Toos", "Smit");
  SpeeltGeheel(2, "vul RecordNrVrouw\nvul VoorNmVrouw toos\ndruk Opslaan\ndruk JaButton",
               Omlijst(R"(
    + OKPersoon "Zoek Persoon op Naam"
    - OKPersoon
  )"));
  EXPECT_EQ(VanRelatie(2, veld::VrouwNr), GetalTekst(toos));
  EXPECT_EQ(Huwelijken(toos), "2");
}

TEST_F(WijzigRelatieOpslaanTest, EenNaamDieNietGevondenWordt) {
  const auto voor = Bytes();
  Speelt(-1, "vul VoorNmVrouw Jaapje\ndruk Opslaan", R"(! uitroep "Persoon niet gevonden")");
  EXPECT_EQ(focus_, "VoorNmVrouw");
  Speelt(-1, "vul AchterNmMan Jaap\ndruk Opslaan", R"(! uitroep "Persoon niet gevonden")");
  EXPECT_EQ(focus_, "VoorNmMan");
  EXPECT_EQ(Bytes(), voor);
}

TEST_F(WijzigRelatieOpslaanTest, EenNaamDieNietBijHetNummerHoort) {
  Speelt(2, "vul VoorNmMan Kees\ndruk Opslaan", R"(! uitroep "Recordnr Man hoort niet bij Naam")");
  EXPECT_EQ(focus_, "VoorNmMan");
  Speelt(2, "vul AchterNmVrouw Kok\ndruk Opslaan",
         R"(! uitroep "Recordnr Vrouw hoort niet bij Naam")");
  EXPECT_EQ(focus_, "VoorNmVrouw");
}

TEST_F(WijzigRelatieOpslaanTest, WieErVijfHeeftKrijgtErGeenBij) {
  GeefVijf(4);
  const auto voor = Bytes();
  Speelt(2, "vul RecordNrMan 4\ndruk Opslaan", R"(! uitroep "De Man heeft al 5 relaties.")");
  EXPECT_EQ(focus_, "RecordNrMan");
  Speelt(-1, "antwoord Ja\nvul RecordNrVrouw 4\ndruk Opslaan", R"(
    ? uitroep Ja/Nee "Opgegeven Persoon is een Man. Doorgaan ?" -> Ja
    ! uitroep "De Vrouw heeft al 5 relaties."
  )");
  EXPECT_EQ(focus_, "RecordNrVrouw");
  // kept: nor can one of the five itself be stored.
  Speelt(3, "vul OtrDatum 1-1-1900\ndruk Opslaan", R"(! uitroep "De Man heeft al 5 relaties.")");
  EXPECT_EQ(Bytes(), voor);
}

TEST_F(WijzigRelatieOpslaanTest, VierRelatiesLatenErNogEenToe) {
  for (int i = 0; i < 4; ++i) Bouw().Relatie(4, 0);
  SlaatOp(2, "vul RecordNrMan 4");
  EXPECT_EQ(Huwelijken(4), "3 4 5 6 2");
  EXPECT_EQ(Huwelijken(2), "");
}

TEST_F(WijzigRelatieOpslaanTest, EenPartnerOfZijnVervolgDatNietTeLezenIsHoudtDeFocus) {
  Bouw().WijzigPersoon(2, {{"Relatie3", "-77"}});
  Speelt(2, "druk Opslaan", "");
  EXPECT_EQ(focus_, "RecordNrMan");
  Bouw().WijzigRelatie(2, {{"ManNr", "0"}, {"VrouwNr", "99"}});
  Speelt(2, "druk Opslaan", "");
  EXPECT_EQ(focus_, "RecordNrVrouw");
}

TEST_F(WijzigRelatieOpslaanTest, EenAnderePartnerBrengtDeLijstenMee) {
  SlaatOp(2, "vul RecordNrMan 4\nvul RecordNrVrouw 5");
  EXPECT_EQ(VanRelatie(2, veld::ManNr), "4");
  EXPECT_EQ(VanRelatie(2, veld::VrouwNr), "5");
  EXPECT_EQ(Huwelijken(2), "");
  EXPECT_EQ(Huwelijken(3), "");
  EXPECT_EQ(Huwelijken(4), "2");
  EXPECT_EQ(Huwelijken(5), "2");
  EXPECT_EQ(Kinderen(2), "6");
  EXPECT_EQ(VanPersoon(6, persoonveld::RelNrOuders), "2");
}

TEST_F(WijzigRelatieOpslaanTest, EenLegePartnerGaatUitDeRelatie) {
  SlaatOp(2, "vul RecordNrMan");
  EXPECT_EQ(VanRelatie(2, veld::ManNr), "");
  EXPECT_EQ(VanRelatie(2, veld::VrouwNr), "3");
  EXPECT_EQ(Huwelijken(2), "");
  EXPECT_EQ(Kinderen(2), "6");
}

TEST_F(WijzigRelatieOpslaanTest, PartnersDieVanPlaatsWisselenHoudenDeRelatie) {
  SlaatOp(2, "antwoord Ja Ja\nvul RecordNrMan 3\nvul RecordNrVrouw 2", R"(
    ? uitroep Ja/Nee "Opgegeven Persoon is een Vrouw. Doorgaan ?" -> Ja
    ? uitroep Ja/Nee "Opgegeven Persoon is een Man. Doorgaan ?" -> Ja
  )");
  EXPECT_EQ(VanRelatie(2, veld::ManNr), "3");
  EXPECT_EQ(Huwelijken(2), "2");
  EXPECT_EQ(Huwelijken(3), "2");
}

TEST_F(WijzigRelatieOpslaanTest, LoskoppelenMisluktMetEenLegeOfOnleesbareLijst) {
  Bouw().WijzigPersoon(2, {{"Relatie1", "0"}});
  Bouw().WijzigPersoon(3, {{"Relatie3", "-77"}});
  SlaatOp(2, "vul RecordNrMan 4\nvul RecordNrVrouw 5", R"(
    ! uitroep "Loskoppelen van oude Man is mislukt"
    ! uitroep "Loskoppelen van oude Vrouw is mislukt"
  )");
  EXPECT_EQ(VanRelatie(2, veld::ManNr), "4");
  EXPECT_EQ(Huwelijken(4), "2");
  EXPECT_EQ(Huwelijken(5), "2");
  EXPECT_EQ(VanPersoon(3, persoonveld::relatie1), "2");
}

TEST_F(WijzigRelatieOpslaanTest, WieDeRelatieNietInZijnLijstHeeftIsAlLos) {
  Bouw().WijzigPersoon(2, {{"Relatie1", "9"}});
  SlaatOp(2, "vul RecordNrMan 4");
  EXPECT_EQ(Huwelijken(2), "9");
}

TEST_F(WijzigRelatieOpslaanTest, EenVreemdMerkWordtEenPartnerschapBijEenWijziging) {
  ZetByte(Paden().rlt, 64 + veld::HuwSwPs.plaats, '3');
  const auto voor = Bytes();
  SlaatOp(2, "");
  EXPECT_EQ(Bytes(), voor);
  SlaatOp(2, "vul OtrDatum 1-1-1900");
  EXPECT_EQ(LeesBytes(Paden().rlt)[64 + veld::HuwSwPs.plaats], 'P');
}

// The checks have read the partners.
TEST_F(WijzigRelatieOpslaanTest, DePersonenBlijvenZoalsZeZijnAlsAlleenEenDatumVerandert) {
  const std::string personen = LeesBytes(Paden().prs);
  SlaatOp(2, "vul OtrDatum 1-1-1900");
  EXPECT_EQ(LeesBytes(Paden().prs), personen);
  EXPECT_EQ(VanRelatie(2, veld::OtrDagMaand), "01-01-1900");
}

}  // namespace
}  // namespace lb77
