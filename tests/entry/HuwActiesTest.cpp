#include <gtest/gtest.h>

#include "entry/HuwActies.h"
#include "entry/KoppelActieToets.h"
#include "steun/FaalBestand.h"
#include "store/SetPaden.h"

namespace lb77 {
namespace {

class HuwActiesTest : public KoppelActieToets {
 protected:
  void Orden(std::string_view draaiboek, std::string_view verslag,
             const Plek& plek = Plek::current()) {
    Verwacht(
        draaiboek, [](Hoofdmodule& hoofd) { OrdenRelaties(hoofd, 2); },
        R"(? vraag Ja/Nee "Moet de volgorde Automatisch bepaald worden ?" -> )" +
            std::string(verslag),
        plek);
  }
  void Nieuw(std::int16_t persoon, std::string_view draaiboek, std::string_view verslag,
             const Plek& plek = Plek::current()) {
    Verwacht(
        "antwoord Ja\n" + std::string(draaiboek),
        [persoon](Hoofdmodule& hoofd) { NieuweRelatieVan(hoofd, persoon); },
        R"(? vraag Ja/Nee "Nieuwe Relatie voor deze Persoon toevoegen ?" -> Ja
           + VraagPartner "Invoer Partner")"
        "\n" +
            Regels(verslag),
        plek);
  }
};

TEST_F(HuwActiesTest, OpDatumGaatHetEersteHuwelijkVoor) {
  Bouw().Relatie(2, 0, {}, {{"WHuwDatum", "01-01-1899"}});
  Bouw().WijzigRelatie(2, {{"WHuwDatum", "01-01-1900"}});
  Orden("antwoord Ja", "Ja");
  EXPECT_EQ(Relaties(2), "4 2 ");
}

TEST_F(HuwActiesTest, MetDeHandKrijgtEenRelatieHaarPlaats) {
  Bouw().Relatie(2, 0);
  Orden("antwoord Nee\nvul RecordNr 4\ndruk OKButton\nvul VolgNum 6\nvul VolgNum 1\ndruk OKButton",
        R"(Nee
    + HuwSchuif "Volgnummer Relatie Wijzigen"
    - HuwSchuif
    + VolgNrHuw "Volgnummer Relatie"
    ! uitroep "Volgnummer moet tussen 1 en 5 liggen"
    - VolgNrHuw
  )");
  EXPECT_EQ(Relaties(2), "4 2 ");
}

TEST_F(HuwActiesTest, EenRelatieVanAnderenHeeftHierGeenPlaats) {
  Orden("antwoord Nee\nvul RecordNr 3\ndruk OKButton", R"(Nee
    + HuwSchuif "Volgnummer Relatie Wijzigen"
    - HuwSchuif
    ! uitroep "Deze Relatie is niet van deze Persoon"
  )");
  EXPECT_EQ(Relaties(2), "2 ");
}

TEST_F(HuwActiesTest, ZonderRelatieGebeurtErNiets) {
  Orden("antwoord Nee\nvul RecordNr 77\nvul RecordNr\ndruk OKButton", R"(Nee
    + HuwSchuif "Volgnummer Relatie Wijzigen"
    ! uitroep "Recordnummer bestaat niet"
    - HuwSchuif
  )");
}

TEST_F(HuwActiesTest, VanEenOnleesbarePersoonWordtNietsGesorteerd) {
  MaakOnleesbaar(BestandSoort::Personen, 2);
  Verwacht(
      "antwoord Ja",
      [](Hoofdmodule& hoofd) {
        OrdenRelaties(hoofd, 2);
        EXPECT_EQ(hoofd.volgers.HuidigPersoonNr, -1);
      },
      R"(
    ? vraag Ja/Nee "Moet de volgorde Automatisch bepaald worden ?" -> Ja
    ! stop "Fout bij het lezen van Persoonsrecord 2\nFout van de schijf"
  )");
}

TEST_F(HuwActiesTest, NeeMaaktGeenRelatie) {
  Verwacht(
      "antwoord Nee", [](Hoofdmodule& hoofd) { NieuweRelatieVan(hoofd, 2); },
      R"(? vraag Ja/Nee "Nieuwe Relatie voor deze Persoon toevoegen ?" -> Nee)");
  EXPECT_EQ(Relaties(2), "2 ");
}

TEST_F(HuwActiesTest, TerugMaaktGeenRelatie) {
  Nieuw(2, "druk BackButton", "- VraagPartner");
  EXPECT_EQ(Paar(4), "");
}

TEST_F(HuwActiesTest, EenManEnEenVrouw) {
  Nieuw(2, "vul RecordNr 7\ndruk OKButton", "- VraagPartner");
  EXPECT_EQ(Paar(4), "2 x 7");
  EXPECT_EQ(Relaties(2) + "/ " + Relaties(7), "2 4 / 3 4 ");
  Nieuw(3, "vul RecordNr 6\ndruk OKButton", "- VraagPartner");
  EXPECT_EQ(Paar(5), "6 x 3");
}

TEST_F(HuwActiesTest, VanTweeMannenStaatDePartnerVoorop) {
  Nieuw(2, "vul RecordNr 6\ndruk OKButton", "- VraagPartner");
  EXPECT_EQ(Paar(4), "6 x 2");
}

TEST_F(HuwActiesTest, VanTweeVrouwenStaatZijZelfVoorop) {
  Nieuw(3, "vul RecordNr 7\ndruk OKButton", "- VraagPartner");
  EXPECT_EQ(Paar(4), "3 x 7");
}

TEST_F(HuwActiesTest, ZonderPartnerStaatHijAlleen) {
  Nieuw(2, "druk OKButton", "- VraagPartner");
  Nieuw(3, "druk OKButton", "- VraagPartner");
  EXPECT_EQ(Paar(4), "2 x 0");
  EXPECT_EQ(Paar(5), "0 x 3");
  EXPECT_EQ(Relaties(2) + "/ " + Relaties(3), "2 4 / 2 5 ");
}

TEST_F(HuwActiesTest, EenPartnerVanOnbekendGeslachtMagNiet) {
  Nieuw(2, "vul RecordNr 9\ndruk OKButton",
        "- VraagPartner\n! uitroep \"Partner van onbekend geslacht is niet toegestaan\"");
  EXPECT_EQ(Paar(4), "");
}

TEST_F(HuwActiesTest, EenPartnerMetVijfRelatiesMagNiet) {
  for (int i = 0; i < 4; ++i) Bouw().Relatie(0, 7);
  Nieuw(2, "vul RecordNr 7\ndruk OKButton",
        "- VraagPartner\n! uitroep \"De Partner heeft al 5 relaties.\"");
  EXPECT_EQ(Paar(8), "");
}

// The first operation of which the failure is told so is the write of the pair.
TEST_F(HuwActiesTest, EenPaarDatNietGeschrevenKanWordenWordtGemeld) {
  const SetPaden paden = SetPaden::Van(Map(), "PROEF");
  const std::string personen = LeesBytes(paden.prs);
  const std::string relaties = LeesBytes(paden.rlt);
  bool gemeld = false;
  Volgers na;
  for (int k = 1; !gemeld; ++k) {
    ASSERT_LT(k, 500);
    SchrijfBytes(paden.prs, personen);
    SchrijfBytes(paden.rlt, relaties);
    Storing storing;
    storing.bij = k;
    static_cast<void>(
        Speel("antwoord Ja\nvul RecordNr 7\ndruk OKButton", Sessie([&](Hoofdmodule& hoofd) {
                hoofd.bestanden = Bestandenset(FalendeOpener(storing));
                if (hoofd.bestanden.OpenSet(paden)) return;
                NieuweRelatieVan(hoofd, 2);
                na = hoofd.volgers;
              })));
    gemeld = verslag_.find("! stop \"Fout bij het schrijven van het Relatierecord\"\n") !=
             std::string::npos;
  }
  EXPECT_EQ(na.HuidigRelatieNr, -1);
  EXPECT_EQ(na.RelBufNr, -1);
  EXPECT_EQ(Relaties(2) + "/ " + Relaties(7), "2 / 3 ");
}

TEST_F(HuwActiesTest, DeVierdeRelatieKrijgtEenVervolgrecord) {
  Bouw().Relatie(2, 0);
  Bouw().Relatie(2, 0);
  Nieuw(2, "vul RecordNr 7\ndruk OKButton", "- VraagPartner");
  EXPECT_EQ(Relaties(2), "2 4 5 6 ");
}

}  // namespace
}  // namespace lb77
