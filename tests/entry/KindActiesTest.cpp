#include <gtest/gtest.h>

#include "entry/KindActies.h"
#include "entry/KoppelActieToets.h"

namespace lb77 {
namespace {

class KindActiesTest : public KoppelActieToets {
 protected:
  void Erbij(std::string_view draaiboek, std::string_view verslag,
             const Plek& plek = Plek::current()) {
    Verwacht(
        draaiboek, [](Hoofdmodule& hoofd) { VoegKindToe(hoofd, 2); },
        "+ KindErbij \"Toevoegen Kind\"\n" + Regels(verslag), plek);
  }
  void Eraf(std::string_view draaiboek, std::string_view verslag,
            const Plek& plek = Plek::current()) {
    Verwacht(
        draaiboek, [](Hoofdmodule& hoofd) { HaalKindWeg(hoofd, 2, false); },
        "+ KindEraf \"Verwijderen Kind\"\n" + Regels(verslag), plek);
  }
  void Orden(std::string_view draaiboek, std::string_view verslag,
             const Plek& plek = Plek::current()) {
    Verwacht(
        draaiboek, [](Hoofdmodule& hoofd) { OrdenKinderen(hoofd, 2); }, verslag, plek);
  }
};

constexpr std::string_view kAutomatisch =
    R"(? vraag Ja/Nee "Moet de volgorde Automatisch bepaald worden ?" -> )";
constexpr std::string_view kAndere =
    R"(? uitroep Ja/Nee "Dit kind heeft al andere ouders.\nDe verbinding met die ouders verbreken ?" -> )";

TEST_F(KindActiesTest, EenKindKomtAchteraanEnKrijgtZijnOuders) {
  Erbij("vul RecordNr 9\ntoon VoorNm\ndruk OKButton", "= VoorNm \"Otto\"\n- KindErbij");
  EXPECT_EQ(Kinderen(2), "4 5 9 ");
  EXPECT_EQ(Ouders(9), 2);
}

TEST_F(KindActiesTest, EenKindDatErAlIsWordtGemeld) {
  Erbij("vul RecordNr 4\ndruk OKButton",
        "- KindErbij\n! uitroep \"Dit kind is al aanwezig in deze relatie\"");
  EXPECT_EQ(Kinderen(2), "4 5 ");
}

TEST_F(KindActiesTest, EenKindMetAndereOudersGaatAlleenMeeNaJa) {
  Erbij("antwoord Nee\nvul RecordNr 8\ndruk OKButton",
        "- KindErbij\n" + std::string(kAndere) + "Nee");
  EXPECT_EQ(Kinderen(2) + "/ " + Kinderen(3), "4 5 / 8 ");
  Erbij("antwoord Ja\nvul RecordNr 8\ndruk OKButton",
        "- KindErbij\n" + std::string(kAndere) + "Ja");
  EXPECT_EQ(Kinderen(2) + "/ " + Kinderen(3), "4 5 8 / ");
  EXPECT_EQ(Ouders(8), 2);
}

TEST_F(KindActiesTest, ZonderVraagBlijftHetOokInDeOudeLijst) {
  Verwacht(
      "vul RecordNr 8\ndruk OKButton", [](Hoofdmodule& hoofd) { VoegKindToeZonderVraag(hoofd, 2); },
      "+ KindErbij \"Toevoegen Kind\"\n- KindErbij");
  EXPECT_EQ(Kinderen(2) + "/ " + Kinderen(3), "4 5 8 / 8 ");
  EXPECT_EQ(Ouders(8), 2);
}

TEST_F(KindActiesTest, ZonderKindGebeurtErNiets) {
  Erbij("druk BackButton", "- KindErbij");
  Erbij("druk OKButton", "- KindErbij");
  EXPECT_EQ(Kinderen(2), "4 5 ");
}

TEST_F(KindActiesTest, HetNummerMoetVanEenPersoonZijn) {
  Erbij("vul RecordNr 99\nvul RecordNr\ntoon VoorNm\ndruk BackButton",
        "! uitroep \"Recordnummer bestaat niet\"\n= VoorNm \"\"\n- KindErbij");
}

TEST_F(KindActiesTest, EenNaamDieNiemandHeeftBlijftStaan) {
  Erbij("vul VoorNm Niemand\ndruk OKButton\ntoets Escape", R"(
    ! uitroep "Persoon niet gevonden"
    - KindErbij
  )");
}

TEST_F(KindActiesTest, EenKindKanOpNaamWordenGezocht) {
  Erbij("vul AchterNm los\nvul VoorNm o*\ndruk OKButton\ndruk JaButton", R"(
    + OKPersoon "Zoek Persoon op Naam"
    - OKPersoon
    - KindErbij
  )");
  EXPECT_EQ(Kinderen(2), "4 5 9 ");
}

TEST_F(KindActiesTest, WieInDeLijstGekozenIsKomtErMeteenBij) {
  Erbij("druk ZoekButton\ndruk RecordNrPrs(8)", R"(
    + ZoekPrs "Zoek Persoon"
    - ZoekPrs
    - KindErbij
  )");
  EXPECT_EQ(Kinderen(2), "4 5 9 ");
}

TEST_F(KindActiesTest, EenKindGaatUitDeLijstEnVerliestZijnOuders) {
  Eraf("vul RecordNr 4\ndruk OKButton", "- KindEraf");
  EXPECT_EQ(Kinderen(2), "5 ");
  EXPECT_EQ(Ouders(4), 0);
}

TEST_F(KindActiesTest, WieErNietInStaatBlijft) {
  Eraf("vul RecordNr 8\ndruk OKButton",
       "- KindEraf\n! uitroep \"Het kind ontbreekt in de relatie van de oude ouders\"");
  EXPECT_EQ(Ouders(8), 3);
}

TEST_F(KindActiesTest, NaEenMislukteKoppelingIsErGeenHuidigePersoon) {
  Verwacht(
      "vul RecordNr 8\ndruk OKButton",
      [](Hoofdmodule& hoofd) {
        HaalKindWeg(hoofd, 2, false);
        EXPECT_EQ(hoofd.volgers.HuidigPersoonNr, -1);
        EXPECT_EQ(hoofd.volgers.HuidigRelatieNr, 2);
      },
      R"(
    + KindEraf "Verwijderen Kind"
    - KindEraf
    ! uitroep "Het kind ontbreekt in de relatie van de oude ouders"
  )");
}

// kept: the old parents are left by then, and the record still names them.
TEST_F(KindActiesTest, WieNietBijNieuweOudersPastIsDeOudeKwijt) {
  Reeks(29);
  std::vector<std::int16_t> kinderen;
  for (std::int16_t nr = 10; nr < 39; ++nr) kinderen.push_back(nr);
  const std::int16_t relatie = Bouw().Relatie(2, 3, kinderen);
  Verwacht(
      "antwoord Ja\nvul RecordNr 8\ndruk OKButton",
      [&](Hoofdmodule& hoofd) { VoegKindToe(hoofd, relatie); },
      "+ KindErbij \"Toevoegen Kind\"\n- KindErbij\n" + std::string(kAndere) + "Ja\n" +
          R"(! uitroep "Er zijn al 29 kinderen bij de nieuwe ouders")");
  EXPECT_EQ(Kinderen(3), "");
  EXPECT_EQ(Ouders(8), 3);
}

// kept: the card with the further children asks in the words of adding.
TEST_F(KindActiesTest, VerwijderenKanInDeWoordenVanToevoegen) {
  Verwacht(
      "vul RecordNr 5\ndruk OKButton", [](Hoofdmodule& hoofd) { HaalKindWeg(hoofd, 2, true); },
      "+ KindErbij \"Toevoegen Kind\"\n- KindErbij");
  EXPECT_EQ(Kinderen(2), "4 ");
}

TEST_F(KindActiesTest, OpDatumGaatHetOudsteVoor) {
  Orden("antwoord Ja", std::string(kAutomatisch) + "Ja");
  EXPECT_EQ(Kinderen(2), "5 4 ");
}

TEST_F(KindActiesTest, EenOnleesbaarKindWordtNietGesorteerd) {
  MaakOnleesbaar(BestandSoort::Personen, 5);
  Orden("antwoord Ja", std::string(kAutomatisch) +
                           "Ja\n! stop \"Fout bij het lezen van Persoonsrecord 5\\nFout van de "
                           "schijf\"\n! uitroep \"Het sorteren is mislukt.\"");
  EXPECT_EQ(Kinderen(2), "4 5 ");
}

TEST_F(KindActiesTest, EenLijstDieNietHeelIsBlijft) {
  Bouw().WijzigRelatie(2, {{"Kind15", "-99"}});
  Orden("antwoord Ja", std::string(kAutomatisch) + "Ja\n! uitroep \"Het sorteren is mislukt.\"");
}

TEST_F(KindActiesTest, VanEenOnleesbareRelatieWordtNietsGesorteerd) {
  MaakOnleesbaar(BestandSoort::Relaties, 2);
  const std::string leesfout =
      "! stop \"Fout bij het lezen van Relatierecord 2\\nFout van de schijf\"\n";
  Verwacht(
      "antwoord Ja",
      [](Hoofdmodule& hoofd) {
        OrdenKinderen(hoofd, 2);
        EXPECT_EQ(hoofd.volgers.HuidigRelatieNr, -1);
      },
      std::string(kAutomatisch) + "Ja\n" + leesfout);
  Orden("antwoord Nee\nvul RecordNr 4\ndruk OKButton", std::string(kAutomatisch) + "Nee\n" + R"(
    + KindSchuif "Volgnummer Kind Wijzigen"
    - KindSchuif
  )" + leesfout + "! uitroep \"Het sorteren is mislukt\"");
}

TEST_F(KindActiesTest, EenNummerDatNietVeranderdeLaatDeNamenStaan) {
  constexpr std::string_view kNaam =
      "vul VoorNm trui*\nvul AchterNm dam\ntoets RecordNr Tab\ntoon VoorNm\ndruk BackButton";
  Orden("antwoord Nee\n" + std::string(kNaam), std::string(kAutomatisch) + R"(Nee
    + KindSchuif "Volgnummer Kind Wijzigen"
    = VoorNm "trui*"
    - KindSchuif
  )");
  Erbij(kNaam, "= VoorNm \"\"\n- KindErbij");
}

TEST_F(KindActiesTest, MetDeHandKrijgtEenKindZijnPlaats) {
  Orden("antwoord Nee\nvul RecordNr 4\ndruk OKButton\nvul VolgNum 29\ndruk OKButton",
        std::string(kAutomatisch) + R"(Nee
    + KindSchuif "Volgnummer Kind Wijzigen"
    - KindSchuif
    + VolgnrKind "Volgnummer Kind"
    - VolgnrKind
  )");
  EXPECT_EQ(Kinderen(2), "5 4 ");
}

TEST_F(KindActiesTest, EenPlaatsLigtTussenEenEnNegenentwintig) {
  Orden(
      "antwoord Nee\nvul RecordNr 5\ndruk OKButton\nvul VolgNum 30\nvul VolgNum 0\nvul VolgNum\n"
      "druk OKButton\nvul VolgNum 1\ndruk OKButton",
      std::string(kAutomatisch) + R"(Nee
    + KindSchuif "Volgnummer Kind Wijzigen"
    - KindSchuif
    + VolgnrKind "Volgnummer Kind"
    ! uitroep "Volgnummer moet tussen 1 en 29 liggen"
    ! uitroep "Volgnummer moet tussen 1 en 29 liggen"
    ! uitroep "Geen volgnummer opgegeven"
    - VolgnrKind
  )");
  EXPECT_EQ(Kinderen(2), "5 4 ");
}

TEST_F(KindActiesTest, EenVreemdKindHeeftHierGeenPlaats) {
  Orden("antwoord Nee\nvul RecordNr 8\ndruk OKButton", std::string(kAutomatisch) + R"(Nee
    + KindSchuif "Volgnummer Kind Wijzigen"
    - KindSchuif
    ! uitroep "Deze Persoon is geen Kind in deze Relatie"
  )");
}

TEST_F(KindActiesTest, TerugVerandertDeVolgordeNiet) {
  Orden("antwoord Nee\ndruk BackButton", std::string(kAutomatisch) + R"(Nee
    + KindSchuif "Volgnummer Kind Wijzigen"
    - KindSchuif
  )");
  Orden("antwoord Nee\nvul RecordNr 5\ndruk OKButton\ndruk BackButton",
        std::string(kAutomatisch) + R"(Nee
    + KindSchuif "Volgnummer Kind Wijzigen"
    - KindSchuif
    + VolgnrKind "Volgnummer Kind"
    - VolgnrKind
  )");
  EXPECT_EQ(Kinderen(2), "4 5 ");
}

TEST_F(KindActiesTest, WieAlOpZijnPlaatsStaatMaaktGeenHandeling) {
  Verwacht(
      "antwoord Nee\nvul RecordNr 5\ndruk OKButton\nvul VolgNum 29\ndruk OKButton",
      [](Hoofdmodule& hoofd) {
        const auto stand = hoofd.bestanden.Stand(BestandSoort::Relaties);
        OrdenKinderen(hoofd, 2);
        EXPECT_EQ(hoofd.bestanden.Stand(BestandSoort::Relaties), stand);
      },
      std::string(kAutomatisch) + R"(Nee
    + KindSchuif "Volgnummer Kind Wijzigen"
    - KindSchuif
    + VolgnrKind "Volgnummer Kind"
    - VolgnrKind
  )");
  EXPECT_EQ(Kinderen(2), "4 5 ");
}

TEST_F(KindActiesTest, EenDubbelKindGaatWegOokAlBlijftDeVolgorde) {
  Bouw().WijzigRelatie(2, {{"Kind3", "4"}});
  Orden("antwoord Nee\nvul RecordNr 4\ndruk OKButton\nvul VolgNum 1\ndruk OKButton",
        std::string(kAutomatisch) + R"(Nee
    + KindSchuif "Volgnummer Kind Wijzigen"
    - KindSchuif
    + VolgnrKind "Volgnummer Kind"
    - VolgnrKind
  )");
  EXPECT_EQ(Kinderen(2), "4 5 ");
}

TEST_F(KindActiesTest, EenGatInDeLijstVerliestNiemand) {
  Bouw().WijzigRelatie(2, {{"Kind2", "0"}, {"Kind4", "5"}});
  Orden("antwoord Ja", std::string(kAutomatisch) + "Ja");
  EXPECT_EQ(Kinderen(2), "5 4 ");
}

}  // namespace
}  // namespace lb77
