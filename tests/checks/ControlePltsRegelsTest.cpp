// The rules of the check of places: each line, and what lies just beside it.
#include "checks/ControlePltsRegels.h"
#include "checks/ControleToets.h"

namespace lb77 {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::size_t kDubbel = 0;
constexpr std::size_t kOngebruikt = 1;

class ControlePlts : public ControleToets {
 protected:
  Zinnenlijst Regels(const ControleKeuzen& keuzen) {
    return Regelteksten<ControlePltsRegels>(keuzen);
  }
};

TEST_F(ControlePlts, EenPlaatsZonderNaam) {
  bouw_.Plaats("Delft", "ZH");
  bouw_.Plaats("", "ZH");
  EXPECT_THAT(Regels({}), ElementsAre("Plaats 3 heeft geen naam"));
}

TEST_F(ControlePlts, DezelfdeNaamEnProvincieKomtOokElders) {
  bouw_.Plaats("Delft", "ZH");
  bouw_.Plaats("Delfzijl", "ZH");
  bouw_.Plaats("Delft", "ZH");
  bouw_.Plaats("Delft", "ZH");
  EXPECT_THAT(Regels(Alleen(kDubbel)),
              ElementsAre("Plaats 2(Delft,ZH) komt ook voor bij plaatscode 4",
                          "Plaats 4(Delft,ZH) komt ook voor bij plaatscode 5"));
  EXPECT_THAT(Regels({}), IsEmpty());
}

TEST_F(ControlePlts, DezelfdeNaamInEenAndereProvincieLijktErop) {
  bouw_.Plaats("Bergen", "NH");
  bouw_.Plaats("Bergen", "LB");
  bouw_.Plaats("Bergen", "");
  EXPECT_THAT(Regels(Alleen(kDubbel)),
              ElementsAre("Plaats 2(Bergen,NH) lijkt op plaatscode 3(Bergen,LB)",
                          "Plaats 2(Bergen,NH) lijkt op plaatscode 4(Bergen,)",
                          "Plaats 3(Bergen,LB) lijkt op plaatscode 4(Bergen,)"));
}

TEST_F(ControlePlts, DeVergelijkingEindigtBijDeEersteDieGelijkIs) {
  bouw_.Plaats("Bergen", "NH");
  bouw_.Plaats("Bergen", "LB");
  bouw_.Plaats("Bergen", "NH");
  bouw_.Plaats("Bergen", "GD");
  EXPECT_THAT(Regels(Alleen(kDubbel)),
              ElementsAre("Plaats 2(Bergen,NH) lijkt op plaatscode 3(Bergen,LB)",
                          "Plaats 2(Bergen,NH) komt ook voor bij plaatscode 4",
                          "Plaats 3(Bergen,LB) lijkt op plaatscode 4(Bergen,NH)",
                          "Plaats 3(Bergen,LB) lijkt op plaatscode 5(Bergen,GD)",
                          "Plaats 4(Bergen,NH) lijkt op plaatscode 5(Bergen,GD)"));
}

TEST_F(ControlePlts, HoofdlettersMakenEenAndereNaam) {
  bouw_.Plaats("Delft", "ZH");
  bouw_.Plaats("DELFT", "ZH");
  bouw_.Plaats("Delf", "ZH");
  EXPECT_THAT(Regels(Alleen(kDubbel)), IsEmpty());
}

TEST_F(ControlePlts, OokPlaatsenZonderNaamKrijgenDeAndereToetsen) {
  bouw_.Plaats("", "ZH");
  bouw_.Plaats("", "ZH");
  EXPECT_THAT(
      Regels(kAlles),
      ElementsAre("Plaats 2 heeft geen naam", "Plaats 2(,ZH) komt ook voor bij plaatscode 3",
                  "Plaats 2(,ZH) wordt niet gebruikt", "Plaats 3 heeft geen naam",
                  "Plaats 3(,ZH) wordt niet gebruikt"));
}

TEST_F(ControlePlts, ElkVeldMetEenPlaatsIsGebruik) {
  const auto voegToe = [this] {
    return std::to_string(bouw_.Plaats("P" + std::to_string(set_.Plaats.AantalRecords()), "ZH"));
  };
  for (const std::string_view veld : {"GebPlaats", "DoopPlaats", "OvlPlaats", "BegrPlaats"}) {
    bouw_.Man("Hier", "Was", {{veld, voegToe()}});
  }
  for (const std::string_view veld : {"OtrPlaats", "WHuwPlaats", "KHuwPlaats"}) {
    bouw_.Relatie(0, 0, {}, {{veld, voegToe()}});
  }
  EXPECT_THAT(Regels(Alleen(kOngebruikt)), IsEmpty());
  bouw_.Plaats("Nergens", "NH");
  EXPECT_THAT(Regels(Alleen(kOngebruikt)), ElementsAre("Plaats 9(Nergens,NH) wordt niet gebruikt"));
  EXPECT_THAT(Regels({}), IsEmpty());
}

TEST_F(ControlePlts, EenVermoedelijkePlaatsIsGeenGebruik) {
  bouw_.Plaats("Vermoed", "ZH");
  bouw_.Plaats("Twijfel", "ZH");
  bouw_.Man("Hier", "Was", {{"GebPlaats", "10002"}, {"OvlPlaats", "20003"}, {"DoopPlaats", "-2"}});
  EXPECT_THAT(Regels(Alleen(kOngebruikt)), ElementsAre("Plaats 2(Vermoed,ZH) wordt niet gebruikt",
                                                       "Plaats 3(Twijfel,ZH) wordt niet gebruikt"));
}

TEST_F(ControlePlts, GebruikInEenVervolgrecordTelt) {
  bouw_.Plaats("Delft", "ZH");
  bouw_.Man("Vervolg", "Record", {{"BegrPlaats", "2"}, {"GebCorr", "Z"}});
  EXPECT_THAT(Regels(Alleen(kOngebruikt)), IsEmpty());
}

// Beside the comparison of each place with all that lie behind it.
TEST_F(ControlePlts, GeeftHetzelfdeAlsElkPaarVergelijken) {
  struct Plaats {
    std::string naam;
    std::string prov;
  };
  std::vector<Plaats> plaatsen(2);
  std::uint32_t toeval = 3;
  const auto dobbel = [&toeval](std::uint32_t n) {
    toeval = toeval * 1664525u + 1013904223u;
    return (toeval >> 16) % n;
  };
  for (int i = 0; i < 80; ++i) {
    plaatsen.push_back({std::string(1, static_cast<char>('A' + dobbel(12))),
                        std::string(1, static_cast<char>('K' + dobbel(4)))});
    bouw_.Plaats(plaatsen.back().naam, plaatsen.back().prov);
  }
  Zinnenlijst verwacht;
  for (std::size_t een = 2; een < plaatsen.size(); ++een) {
    const std::string zelf =
        "Plaats " + std::to_string(een) + "(" + plaatsen[een].naam + "," + plaatsen[een].prov + ")";
    for (std::size_t ander = een + 1; ander < plaatsen.size(); ++ander) {
      if (plaatsen[ander].naam != plaatsen[een].naam) continue;
      const std::string code = " plaatscode " + std::to_string(ander);
      if (plaatsen[ander].prov == plaatsen[een].prov) {
        verwacht.push_back(zelf + " komt ook voor bij" + code);
        break;
      }
      verwacht.push_back(zelf + " lijkt op" + code + "(" + plaatsen[ander].naam + "," +
                         plaatsen[ander].prov + ")");
    }
  }
  EXPECT_EQ(Regels(Alleen(kDubbel)), verwacht);
}

TEST_F(ControlePlts, EenVolgendeGangZietDeBestandenZoalsZeDanZijn) {
  bouw_.Plaats("Delft", "ZH");
  ControlePltsRegels regels(bron_, kAlles);
  EXPECT_EQ(Bevindingen(regels).size(), 1u);
  bouw_.Man("Hier", "Was", {{"GebPlaats", "2"}});
  EXPECT_THAT(Bevindingen(regels), IsEmpty());
}

TEST_F(ControlePlts, EenVolgendeGangKentDeOudeNamenNietMeer) {
  bouw_.Plaats("Delft", "ZH");
  bouw_.Plaats("Delft", "NH");
  ControlePltsRegels regels(bron_, Alleen(kDubbel));
  EXPECT_EQ(Bevindingen(regels).size(), 1u);
  EXPECT_TRUE(set_.Plaats.Wijzig(3, {{"Plaatsnaam", "Leiden"}}));
  EXPECT_THAT(Bevindingen(regels), IsEmpty());
}

}  // namespace
}  // namespace lb77
