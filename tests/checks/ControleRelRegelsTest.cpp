// The rules of the check of relations: each line, and what lies just beside it.
#include "checks/ControleRelRegels.h"
#include "checks/ControleToets.h"

namespace lb77 {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::size_t kPartners = 0;
constexpr std::size_t kVolgorde = 1;
constexpr std::size_t kVerschil = 2;
constexpr std::size_t kLeeftijd = 3;
constexpr std::size_t kKinderen = 4;

class ControleRel : public ControleToets {
 protected:
  Zinnenlijst Regels(const ControleKeuzen& keuzen = kAlles) {
    return Regelteksten<ControleRelRegels>(keuzen);
  }
  // Relation 2 of persons 2 and 3, of these years, and what it says of itself.
  void BouwPaar(std::string_view man, std::string_view vrouw, VeldWaarden velden = {}) {
    bouw_.Man("Man", "Proef", {{"GebDatum", man}});
    bouw_.Vrouw("Vrouw", "Proef", {{"GebDatum", vrouw}});
    bouw_.Relatie(2, 3, {}, velden);
  }
};

TEST_F(ControleRel, ElkPaarDatumsHeeftZijnEigenRegel) {
  struct Paar {
    std::string_view eerst;
    std::string_view dan;
    std::string_view tekst;
  };
  const Paar paren[] = {
      {"OtrDatum", "WHuwDatum", "Ondertrouw is na wettig huwelijk"},
      {"OtrDatum", "KHuwDatum", "Ondertrouw is na het kerkelijk huwelijk"},
      {"WHuwDatum", "KHuwDatum", "Wettelijk huwelijk is na het kerkelijk huwelijk"},
  };
  Zinnenlijst verwacht;
  for (const Paar& paar : paren) {
    bouw_.Relatie(0, 0, {}, {{paar.eerst, "02-02-1800"}, {paar.dan, "02-02-1800"}});
    const std::int16_t nr =
        bouw_.Relatie(0, 0, {}, {{paar.eerst, "02-02-1800"}, {paar.dan, "01-02-1800"}});
    verwacht.push_back("Relatie " + std::to_string(nr) + ": " + std::string(paar.tekst));
  }
  EXPECT_EQ(Regels(), verwacht);
  EXPECT_THAT(Regels(Zonder(kVolgorde)), IsEmpty());
}

TEST_F(ControleRel, EenScheidingHeeftGeenEigenWoord) {
  bouw_.Relatie(0, 0, {},
                {{"OtrDatum", "00-00-1803"},
                 {"WHuwDatum", "00-00-1802"},
                 {"KHuwDatum", "00-00-1801"},
                 {"KHuwSch", "1"}});
  EXPECT_THAT(Regels(), ElementsAre("Relatie 2: Ondertrouw is na wettig huwelijk",
                                    "Relatie 2: Ondertrouw is na het kerkelijk huwelijk",
                                    "Relatie 2: Wettelijk huwelijk is na het kerkelijk huwelijk"));
}

TEST_F(ControleRel, EenPartnerDieErNietIs) {
  BouwPaar("", "");
  EXPECT_THAT(Regels(), IsEmpty());
  bouw_.WijzigRelatie(2, {{"ManNr", "98"}, {"VrouwNr", "99"}});
  EXPECT_THAT(Regels(), ElementsAre("Relatie 2: Verwijzing naar man klopt niet",
                                    "Relatie 2: Verwijzing naar vrouw klopt niet"));
}

TEST_F(ControleRel, DeKeuzeVoorPartnersMaaktGeenVerschil) {
  BouwPaar("", "");
  bouw_.WijzigRelatie(2, {{"ManNr", "98"}});
  bouw_.WijzigPersoon(3, {{"Relatie1", "0"}});
  const Zinnenlijst regels = Regels();
  EXPECT_THAT(regels, ElementsAre("Relatie 2: Verwijzing naar man klopt niet",
                                  "Relatie 2: Relatie komt niet voor bij persoon 3"));
  EXPECT_EQ(Regels(Zonder(kPartners)), regels);
  EXPECT_EQ(Regels({}), regels);
}

TEST_F(ControleRel, EenOnbekendePartnerIsGewoon) {
  bouw_.Relatie(bouw_.Man("Man", "Proef"), 0);
  bouw_.Relatie(0, 0);
  EXPECT_THAT(Regels(), IsEmpty());
}

TEST_F(ControleRel, EenRelatieDieDeManNietMeerHeeft) {
  BouwPaar("", "");
  bouw_.WijzigPersoon(2, {{"Relatie1", "99"}});
  EXPECT_THAT(Regels(), ElementsAre("Relatie 2: Relatie komt niet voor bij persoon 2"));
  // Another one of his list that names him will do.
  const std::int16_t ander = bouw_.Relatie(0, 0, {}, {{"VrouwNr", "2"}});
  bouw_.WijzigPersoon(2, {{"Relatie1", "99"}, {"Relatie2", std::to_string(ander)}});
  EXPECT_THAT(Regels(), IsEmpty());
}

TEST_F(ControleRel, OokDeVijfdeRelatieVanEenPersoonTelt) {
  const std::int16_t man = bouw_.Man("Vijf", "Maal");
  for (int i = 0; i < 5; ++i) bouw_.Relatie(man, bouw_.Vrouw("Vrouw", "Van"));
  for (std::int16_t nr = 2; nr <= 5; ++nr) bouw_.WijzigRelatie(nr, {{"ManNr", "0"}});
  EXPECT_THAT(Regels(), IsEmpty());
}

TEST_F(ControleRel, WieAchttienIsMagTrouwen) {
  BouwPaar("00-00-1800", "00-00-1800", {{"WHuwDatum", "00-00-1818"}});
  EXPECT_THAT(Regels(), IsEmpty());
}

TEST_F(ControleRel, WieGeenAchttienIsTrouwtTeJong) {
  BouwPaar("00-00-1800", "00-00-1800", {{"WHuwDatum", "00-00-1817"}});
  EXPECT_THAT(Regels(), ElementsAre("Relatie 2: Man jonger dan 18 jaar",
                                    "Relatie 2: Vrouw jonger dan 18 jaar"));
  EXPECT_THAT(Regels(Zonder(kLeeftijd)), IsEmpty());
}

TEST_F(ControleRel, HetGeboortejaarZelfIsTeJongEnGeenPasGeboren) {
  BouwPaar("00-00-1800", "", {{"WHuwDatum", "00-00-1800"}});
  EXPECT_THAT(Regels(), ElementsAre("Relatie 2: Man jonger dan 18 jaar"));
}

TEST_F(ControleRel, WieNaZijnHuwelijkIsGeboren) {
  BouwPaar("00-00-1801", "00-00-1801", {{"WHuwDatum", "00-00-1800"}});
  EXPECT_THAT(Regels(), ElementsAre("Relatie 2: Man is pas geboren na huwelijk !!",
                                    "Relatie 2: Vrouw is pas geboren na huwelijk !!"));
}

TEST_F(ControleRel, HetJaarVanHetHuwelijkKomtUitDrieVelden) {
  BouwPaar("00-00-1800", "00-00-1800", {{"OtrDatum", "00-00-1817"}});
  EXPECT_EQ(Regels().size(), 2u);
  bouw_.WijzigRelatie(2, {{"KHuwDatum", "00-00-1818"}});
  EXPECT_THAT(Regels(), IsEmpty());
  bouw_.WijzigRelatie(2, {{"WHuwDatum", "00-00-1817"}});
  EXPECT_EQ(Regels().size(), 2u);
}

TEST_F(ControleRel, ZonderJaarVanHuwelijkOfGeboorteIsErNietsTeZeggen) {
  BouwPaar("", "00-00-1800");
  EXPECT_THAT(Regels(), IsEmpty());
  bouw_.WijzigRelatie(2, {{"WHuwDatum", "00-00-1810"}});
  EXPECT_THAT(Regels(), ElementsAre("Relatie 2: Vrouw jonger dan 18 jaar"));
  bouw_.WijzigPersoon(2, {{"DoopDatum", "00-00-1805"}});
  EXPECT_THAT(Regels(), ElementsAre("Relatie 2: Man jonger dan 18 jaar",
                                    "Relatie 2: Vrouw jonger dan 18 jaar"));
}

// Damaged: such a year tells no age.
TEST_F(ControleRel, EenJaarOnderNulIsGeenLeeftijd) {
  BouwPaar("", "", {{"WetHuwJaar", "5"}});
  bouw_.WijzigPersoon(2, {{"GebJaar", "-5"}});
  bouw_.WijzigPersoon(3, {{"GebJaar", "-30"}});
  EXPECT_THAT(Regels(), IsEmpty());
  bouw_.WijzigRelatie(2, {{"WetHuwJaar", "-5"}});
  bouw_.WijzigPersoon(2, {{"GebJaar", "1800"}});
  EXPECT_THAT(Regels(), IsEmpty());
}

TEST_F(ControleRel, VijftienJaarVerschilMagNog) {
  BouwPaar("00-00-1800", "00-00-1815", {{"WHuwDatum", "00-00-1845"}});
  EXPECT_THAT(Regels(), IsEmpty());
}

TEST_F(ControleRel, ZestienJaarVerschilIsTeVeelWelkeKantOok) {
  BouwPaar("00-00-1800", "00-00-1816", {{"WHuwDatum", "00-00-1846"}});
  EXPECT_THAT(Regels(), ElementsAre("Relatie 2: Leeftijdsverschil Partners is meer dan 15 jaar"));
  EXPECT_THAT(Regels(Zonder(kVerschil)), IsEmpty());
  bouw_.WijzigPersoon(2, {{"GebDatum", "00-00-1832"}});
  bouw_.WijzigRelatie(2, {{"WHuwDatum", ""}});
  EXPECT_THAT(Regels(), ElementsAre("Relatie 2: Leeftijdsverschil Partners is meer dan 15 jaar"));
  bouw_.WijzigPersoon(2, {{"GebDatum", ""}});
  EXPECT_THAT(Regels(), IsEmpty());
}

TEST_F(ControleRel, EenKindDatErNietIsOfAndereOudersHeeft) {
  const std::int16_t goed = bouw_.Man("Goed", "Kind");
  const std::int16_t elders = bouw_.Man("Elders", "Kind");
  bouw_.Relatie(0, 0, {goed, elders});
  bouw_.WijzigPersoon(elders, {{"Ouders", "7"}});
  bouw_.WijzigRelatie(2, {{"Kind3", "99"}, {"Kind4", "-5"}});
  EXPECT_THAT(Regels(), ElementsAre("Relatie 2: Verwijzing naar kind 3 klopt niet",
                                    "Relatie 2: Verwijzing naar kind (P99) klopt niet"));
  EXPECT_THAT(Regels(Zonder(kKinderen)), IsEmpty());
}

TEST_F(ControleRel, KinderenAchterEenGatEnInEenVervolgrecordTellenMee) {
  std::vector<std::int16_t> kinderen;
  for (int i = 0; i < 16; ++i) kinderen.push_back(bouw_.Man("Kind", "Veel"));
  bouw_.Relatie(0, 0, kinderen);
  EXPECT_THAT(Regels(), IsEmpty());
  bouw_.WijzigRelatie(2, {{"Kind1", "0"}});
  bouw_.WijzigPersoon(kinderen.back(), {{"Ouders", "0"}});
  EXPECT_THAT(Regels(), ElementsAre("Relatie 2: Verwijzing naar kind 17 klopt niet"));
}

TEST_F(ControleRel, VervolgrecordsWordenOvergeslagen) {
  bouw_.Relatie(0, 0, {}, {{"ManNr", "99"}, {"HuwCorr", "Z"}});
  bouw_.Relatie(0, 0, {}, {{"ManNr", "99"}});
  EXPECT_THAT(Regels(), ElementsAre("Relatie 3: Verwijzing naar man klopt niet"));
}

TEST_F(ControleRel, DeToetsenKomenInVasteVolgorde) {
  BouwPaar("00-00-1840", "00-00-1816",
           {{"OtrDatum", "00-00-1831"}, {"WHuwDatum", "00-00-1830"}, {"Kind1", "99"}});
  bouw_.WijzigPersoon(2, {{"Relatie1", "0"}});
  bouw_.WijzigPersoon(3, {{"Relatie1", "0"}});
  EXPECT_THAT(Regels(), ElementsAre("Relatie 2: Ondertrouw is na wettig huwelijk",
                                    "Relatie 2: Relatie komt niet voor bij persoon 2",
                                    "Relatie 2: Relatie komt niet voor bij persoon 3",
                                    "Relatie 2: Man is pas geboren na huwelijk !!",
                                    "Relatie 2: Vrouw jonger dan 18 jaar",
                                    "Relatie 2: Leeftijdsverschil Partners is meer dan 15 jaar",
                                    "Relatie 2: Verwijzing naar kind (P99) klopt niet"));
}

}  // namespace
}  // namespace lb77
