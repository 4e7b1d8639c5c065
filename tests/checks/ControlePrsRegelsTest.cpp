// The rules of the check of persons: each line, and what lies just beside it.
#include "checks/ControlePrsRegels.h"
#include "checks/ControleToets.h"

namespace lb77 {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// The places of the options in the row of tick boxes.
constexpr std::size_t kOuders = 0;
constexpr std::size_t kVolgorde = 1;
constexpr std::size_t kMaxLeeftijd = 2;
constexpr std::size_t kLeeftijdOuders = 3;
constexpr std::size_t kRelaties = 4;

class ControlePrs : public ControleToets {
 protected:
  Zinnenlijst Regels(const ControleKeuzen& keuzen = kAlles) {
    return Regelteksten<ControlePrsRegels>(keuzen);
  }
  std::int16_t Kind(std::string_view geboren) {
    return bouw_.Man("Kind", "Proef", {{"GebDatum", geboren}});
  }
  // A child of 1800 with parents of these years; the relation is 2.
  void BouwGezin(std::string_view vader, std::string_view moeder) {
    const std::int16_t kind = Kind("01-01-1800");
    const std::int16_t man = bouw_.Man("Vader", "Proef", {{"GebDatum", vader}});
    const std::int16_t vrouw = bouw_.Vrouw("Moeder", "Proef", {{"GebDatum", moeder}});
    bouw_.Relatie(man, vrouw, {kind});
  }
};

TEST_F(ControlePrs, ElkPaarDatumsHeeftZijnEigenRegel) {
  struct Paar {
    std::string_view eerst;
    std::string_view dan;
    std::string_view tekst;
  };
  const Paar paren[] = {
      {"GebDatum", "DoopDatum", "Geboorte is na de doop"},
      {"GebDatum", "OvlDatum", "Geboorte is na het overlijden"},
      {"GebDatum", "BegrDatum", "Geboorte is na het begraven"},
      {"DoopDatum", "OvlDatum", "Doop is na het overlijden"},
      {"DoopDatum", "BegrDatum", "Doop is na het begraven"},
      {"OvlDatum", "BegrDatum", "Overlijden is na het begraven"},
  };
  Zinnenlijst verwacht;
  for (const Paar& paar : paren) {
    bouw_.Man("Op", "Volgorde", {{paar.eerst, "02-02-1800"}, {paar.dan, "02-02-1800"}});
    bouw_.Man("Half", "Bekend", {{paar.eerst, "02-02-1800"}, {paar.dan, "00-00-1800"}});
    const std::int16_t nr =
        bouw_.Man("Uit", "Volgorde", {{paar.eerst, "02-02-1800"}, {paar.dan, "01-02-1800"}});
    verwacht.push_back("Persoon " + std::to_string(nr) + ": " + std::string(paar.tekst));
  }
  EXPECT_EQ(Regels(), verwacht);
  EXPECT_THAT(Regels(Zonder(kVolgorde)), IsEmpty());
}

TEST_F(ControlePrs, AlleZesParenWordenBijEenPersoonGetoetst) {
  bouw_.Man("Alles", "Om",
            {{"GebDatum", "01-01-1804"},
             {"DoopDatum", "01-01-1803"},
             {"OvlDatum", "01-01-1802"},
             {"BegrDatum", "01-01-1801"}});
  EXPECT_THAT(
      Regels(),
      ElementsAre("Persoon 2: Geboorte is na de doop", "Persoon 2: Geboorte is na het overlijden",
                  "Persoon 2: Geboorte is na het begraven", "Persoon 2: Doop is na het overlijden",
                  "Persoon 2: Doop is na het begraven",
                  "Persoon 2: Overlijden is na het begraven"));
}

TEST_F(ControlePrs, MeerDanHonderdJaarIsTeOud) {
  bouw_.Man("Honderd", "Een", {{"GebDatum", "00-00-1800"}, {"BegrDatum", "00-00-1901"}});
  bouw_.Man("Honderd", "Precies", {{"GebDatum", "00-00-1800"}, {"BegrDatum", "00-00-1900"}});
  bouw_.Man("Gedoopt", "Een", {{"DoopDatum", "00-00-1800"}, {"BegrDatum", "00-00-1901"}});
  bouw_.Man("Zonder", "Begin", {{"BegrDatum", "00-00-1901"}});
  EXPECT_THAT(Regels(), ElementsAre("Persoon 2: Leeftijd is meer dan 100 jaar",
                                    "Persoon 4: Leeftijd is meer dan 100 jaar"));
}

TEST_F(ControlePrs, DeLeeftijdWordtAlleenMetDeVolgordeSamenGetoetst) {
  bouw_.Man("Honderd", "Een", {{"GebDatum", "00-00-1800"}, {"BegrDatum", "00-00-1901"}});
  EXPECT_THAT(Regels(Alleen(kMaxLeeftijd)), IsEmpty());
  EXPECT_THAT(Regels(Alleen(kVolgorde)), IsEmpty());
  EXPECT_THAT(Regels(Zonder(kMaxLeeftijd)), IsEmpty());
  bouw_.WijzigPersoon(2, {{"DoopDatum", "00-00-1799"}});
  EXPECT_THAT(Regels(), ElementsAre("Persoon 2: Geboorte is na de doop"));
}

TEST_F(ControlePrs, ZonderBegrafenisIsNiemandTeOud) {
  bouw_.Man("Niet", "Begraven", {{"GebDatum", "00-00-1800"}, {"OvlDatum", "00-00-1905"}});
  EXPECT_THAT(Regels(), IsEmpty());
}

TEST_F(ControlePrs, EenVaderVanAchttienIsGeenFout) {
  BouwGezin("00-00-1782", "00-00-1782");
  EXPECT_THAT(Regels(), IsEmpty());
}

TEST_F(ControlePrs, EenVaderVanZeventienIsTeJong) {
  BouwGezin("00-00-1783", "00-00-1783");
  EXPECT_THAT(Regels(),
              ElementsAre("Persoon 2: Leeftijd vader bij geboorte is minder dan 18 jaar",
                          "Persoon 2: Leeftijd moeder bij geboorte is minder dan 18 jaar"));
  EXPECT_THAT(Regels(Zonder(kLeeftijdOuders)), IsEmpty());
}

TEST_F(ControlePrs, EenOuderVanHetzelfdeJaarIsTeJongEnNietJonger) {
  BouwGezin("00-00-1800", "00-00-1800");
  EXPECT_THAT(Regels(),
              ElementsAre("Persoon 2: Leeftijd vader bij geboorte is minder dan 18 jaar",
                          "Persoon 2: Leeftijd moeder bij geboorte is minder dan 18 jaar"));
}

TEST_F(ControlePrs, EenKindOuderDanZijnOuders) {
  BouwGezin("00-00-1801", "00-00-1801");
  EXPECT_THAT(Regels(), ElementsAre("Persoon 2: Kind is ouder dan vader",
                                    "Persoon 2: Kind is ouder dan moeder"));
}

TEST_F(ControlePrs, EenDoopjaarTeltAlsErGeenGeboortejaarIs) {
  BouwGezin("", "00-00-1750");
  bouw_.WijzigPersoon(3, {{"DoopDatum", "00-00-1790"}});
  EXPECT_THAT(Regels(),
              ElementsAre("Persoon 2: Leeftijd vader bij geboorte is minder dan 18 jaar"));
  bouw_.WijzigPersoon(2, {{"GebDatum", ""}});
  EXPECT_THAT(Regels(), IsEmpty());
  bouw_.WijzigPersoon(2, {{"DoopDatum", "00-00-1789"}});
  EXPECT_THAT(Regels(), ElementsAre("Persoon 2: Kind is ouder dan vader"));
}

TEST_F(ControlePrs, EenOnbekendeOfOnleesbareOuderGeeftGeenRegel) {
  BouwGezin("", "");
  bouw_.WijzigRelatie(2, {{"ManNr", "77"}, {"VrouwNr", "0"}});
  EXPECT_THAT(Regels(Alleen(kLeeftijdOuders)), IsEmpty());
}

// Damaged: such a year tells no age.
TEST_F(ControlePrs, EenJaarOnderNulIsGeenLeeftijd) {
  BouwGezin("", "");
  bouw_.WijzigPersoon(2, {{"GebJaar", "-100"}});
  bouw_.WijzigPersoon(3, {{"GebJaar", "-110"}});
  bouw_.WijzigPersoon(4, {{"GebJaar", "-90"}});
  EXPECT_THAT(Regels(Alleen(kLeeftijdOuders)), IsEmpty());
  bouw_.WijzigPersoon(2, {{"BegrDatum", "00-00-1850"}});
  EXPECT_THAT(Regels(), IsEmpty());
}

TEST_F(ControlePrs, EenRelatieVanDeOudersDieErNietIs) {
  Kind("00-00-1800");
  Kind("");
  bouw_.WijzigPersoon(2, {{"Ouders", "99"}});
  bouw_.WijzigPersoon(3, {{"Ouders", "99"}});
  EXPECT_THAT(Regels(), ElementsAre("Persoon 2: Verwijzing naar ouders klopt niet"));
  EXPECT_THAT(Regels(Alleen(kOuders)), IsEmpty());
  bouw_.WijzigPersoon(2, {{"Ouders", "-99"}});
  EXPECT_THAT(Regels(), IsEmpty());
}

TEST_F(ControlePrs, EenKindDatZijnOudersNietKennen) {
  BouwGezin("", "");
  const std::int16_t ander = Kind("");
  bouw_.WijzigPersoon(ander, {{"Ouders", "2"}});
  EXPECT_THAT(Regels(), ElementsAre("Persoon 5: Kind komt niet voor bij ouders"));
  EXPECT_THAT(Regels(Zonder(kOuders)), IsEmpty());
  bouw_.WijzigRelatie(2, {{"Kind1", "0"}});
  EXPECT_THAT(Regels(), ElementsAre("Persoon 2: Kind komt niet voor bij ouders",
                                    "Persoon 5: Kind komt niet voor bij ouders"));
}

TEST_F(ControlePrs, EenKindAchterEenGatWordtNietGevonden) {
  BouwGezin("", "");
  bouw_.WijzigRelatie(2, {{"Kind1", "0"}, {"Kind2", "2"}});
  EXPECT_THAT(Regels(), ElementsAre("Persoon 2: Kind komt niet voor bij ouders"));
}

TEST_F(ControlePrs, OokInEenVervolgrecordStaanKinderen) {
  std::vector<std::int16_t> kinderen;
  for (int i = 0; i < 29; ++i) kinderen.push_back(Kind(""));
  bouw_.Relatie(bouw_.Man("Vader", "Veel"), 0, kinderen);
  EXPECT_THAT(Regels(), IsEmpty());
}

TEST_F(ControlePrs, EenRelatieDieDePersoonNietNoemt) {
  BouwGezin("", "");
  bouw_.WijzigPersoon(2, {{"Relatie2", "2"}, {"Relatie3", "99"}});
  EXPECT_THAT(Regels(), ElementsAre("Persoon 2: Persoon komt niet voor bij eigen relatie 2"));
  EXPECT_THAT(Regels(Zonder(kRelaties)), IsEmpty());
}

TEST_F(ControlePrs, OokDeVijfdeRelatieWordtGetoetst) {
  const std::int16_t man = bouw_.Man("Vijf", "Maal");
  for (int i = 0; i < 5; ++i) bouw_.Relatie(man, bouw_.Vrouw("Vrouw", "Van"));
  EXPECT_THAT(Regels(), IsEmpty());
  bouw_.WijzigRelatie(6, {{"ManNr", "0"}});
  EXPECT_THAT(Regels(), ElementsAre("Persoon 2: Persoon komt niet voor bij eigen relatie 6"));
}

TEST_F(ControlePrs, VervolgrecordsEnOnleesbarePersonenWordenOvergeslagen) {
  bouw_.Man("Om", "Datum", {{"GebDatum", "01-01-1801"}, {"DoopDatum", "01-01-1800"}});
  bouw_.Man("Om", "Datum", {{"GebDatum", "01-01-1801"}, {"DoopDatum", "01-01-1800"}});
  bouw_.WijzigPersoon(2, {{"GebCorr", "Z"}});
  EXPECT_THAT(Regels(), ElementsAre("Persoon 3: Geboorte is na de doop"));
}

TEST_F(ControlePrs, DeToetsenKomenInVasteVolgorde) {
  BouwGezin("00-00-1801", "00-00-1801");
  bouw_.WijzigRelatie(2, {{"Kind1", "0"}});
  bouw_.WijzigPersoon(2, {{"DoopDatum", "00-00-1799"}, {"Relatie1", "2"}});
  EXPECT_THAT(Regels(),
              ElementsAre("Persoon 2: Geboorte is na de doop", "Persoon 2: Kind is ouder dan vader",
                          "Persoon 2: Kind is ouder dan moeder",
                          "Persoon 2: Kind komt niet voor bij ouders",
                          "Persoon 2: Persoon komt niet voor bij eigen relatie 2"));
}

TEST_F(ControlePrs, EenBevindingIsEenWaarde) {
  bouw_.Man("Om", "Datum", {{"GebDatum", "01-01-1801"}, {"DoopDatum", "01-01-1800"}});
  ControlePrsRegels regels(bron_, kAlles);
  const RecordPlek plek{BestandSoort::Personen, 2};
  EXPECT_THAT(Bevindingen(regels), ElementsAre(Bevinding{plek, plek, BevindingSoort::GeboorteNaDoop,
                                                         "Persoon 2: Geboorte is na de doop"}));
}

}  // namespace
}  // namespace lb77
