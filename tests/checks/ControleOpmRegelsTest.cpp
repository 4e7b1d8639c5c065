// The rule of the check of remarks: what is found from its owner, and what is not.
#include "checks/ControleOpmRegels.h"
#include "checks/ControleToets.h"
#include "store/Rubrieken.h"

namespace lb77 {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ControleOpm : public ControleToets {
 protected:
  ControleOpm() {
    bouw_.Man("Eigenaar", "Een");
    bouw_.Relatie(2, 0);
  }
  // Remarks of one and of two lines, at the person (records 2 to 4) and at the relation (5, 6).
  void BouwOpmerkingen() {
    bouw_.OpmerkingBijPersoon(2, persoonrubriek::kBeroep, {"een"});
    bouw_.OpmerkingBijPersoon(2, persoonrubriek::kAlgemeen, {"twee", "drie"});
    bouw_.OpmerkingBijRelatie(2, relatierubriek::kOtrDatum, {"vier", "vijf"});
  }
  void WijzigOpm(std::int16_t nr, VeldWaarden velden) {
    EXPECT_TRUE(set_.Opmerking.Wijzig(nr, velden));
  }
  Zinnenlijst Regels() {
    ControleOpmRegels regels(DeGegevens());
    Zinnenlijst uit;
    for (const Bevinding& een : Bevindingen(regels)) uit.push_back(een.tekst);
    return uit;
  }
};

TEST_F(ControleOpm, WatBijZijnEigenaarStaatIsGoed) {
  BouwOpmerkingen();
  EXPECT_THAT(Regels(), IsEmpty());
}

TEST_F(ControleOpm, EenEigenaarZonderBeginGeeftEenRegelVoorElkRecord) {
  BouwOpmerkingen();
  bouw_.WijzigPersoon(2, {{"OpmRecord", "0"}});
  EXPECT_THAT(Regels(),
              ElementsAre("Opmerking 2 verwijst niet naar P2", "Opmerking 3 verwijst niet naar P2",
                          "Opmerking 4 verwijst niet naar P2"));
  bouw_.WijzigRelatie(2, {{"OpmRecord", "0"}});
  EXPECT_EQ(Regels().size(), 5u);
  EXPECT_EQ(Regels().back(), "Opmerking 6 verwijst niet naar R2");
}

TEST_F(ControleOpm, EenVrijRecordWordtOvergeslagen) {
  BouwOpmerkingen();
  WijzigOpm(2, {{"Rubriek", "0"}, {"BijRecord", "77"}});
  EXPECT_THAT(Regels(), IsEmpty());
}

TEST_F(ControleOpm, EenCodeZonderDeRubriekVindtDeOpmerkingNiet) {
  BouwOpmerkingen();
  bouw_.WijzigPersoon(2, {{"OpmCode", std::to_string(persoonrubriek::kBeroep)}});
  EXPECT_THAT(Regels(), ElementsAre("Opmerking 3 verwijst niet naar P2",
                                    "Opmerking 4 verwijst niet naar P2"));
}

TEST_F(ControleOpm, EenEigenaarDieErNietIsOfEenVervolgrecordIs) {
  BouwOpmerkingen();
  WijzigOpm(2, {{"BijRecord", "99"}});
  WijzigOpm(6, {{"BijRecord", "-3"}});
  EXPECT_THAT(Regels(), ElementsAre("Opmerking 2 verwijst niet naar P99",
                                    "Opmerking 6 verwijst niet naar R-3"));
  bouw_.WijzigPersoon(2, {{"GebCorr", "Z"}});
  EXPECT_EQ(Regels().size(), 4u);
}

TEST_F(ControleOpm, EenRegelVanEenAndereRubriekHoortErNietBij) {
  BouwOpmerkingen();
  WijzigOpm(4, {{"Rubriek", std::to_string(persoonrubriek::kBeroep)}});
  EXPECT_THAT(Regels(), ElementsAre("Opmerking 4 verwijst niet naar P2"));
}

TEST_F(ControleOpm, DeElfdeRegelIsErGeenMeer) {
  bouw_.OpmerkingBijPersoon(2, persoonrubriek::kBeroep,
                            {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"});
  EXPECT_THAT(Regels(), IsEmpty());
  bouw_.OpmerkingBijPersoon(2, persoonrubriek::kBeroep, {"elf"});
  EXPECT_THAT(Regels(), IsEmpty());
  WijzigOpm(2, {{"BijZelfde", "0"}});
  WijzigOpm(11, {{"VolgRegel", "12"}});
  EXPECT_THAT(Regels(), ElementsAre("Opmerking 12 verwijst niet naar P2"));
}

TEST_F(ControleOpm, EenTweedeOpmerkingVanDezelfdeRubriekWordtGevonden) {
  bouw_.OpmerkingBijPersoon(2, persoonrubriek::kBeroep, {"een"});
  bouw_.OpmerkingBijPersoon(2, persoonrubriek::kBeroep, {"twee", "drie"});
  EXPECT_THAT(Regels(), IsEmpty());
  WijzigOpm(2, {{"BijZelfde", "0"}});
  EXPECT_THAT(Regels(), ElementsAre("Opmerking 3 verwijst niet naar P2",
                                    "Opmerking 4 verwijst niet naar P2"));
}

TEST_F(ControleOpm, EenKringEnEenVerkeerdeSchakelEindigen) {
  BouwOpmerkingen();
  WijzigOpm(3, {{"BijZelfde", "2"}, {"VolgRegel", "3"}});
  EXPECT_THAT(Regels(), ElementsAre("Opmerking 4 verwijst niet naar P2"));
  WijzigOpm(2, {{"BijZelfde", "999"}});
  EXPECT_THAT(Regels(), ElementsAre("Opmerking 3 verwijst niet naar P2",
                                    "Opmerking 4 verwijst niet naar P2"));
  WijzigOpm(2, {{"BijZelfde", "-7"}, {"VolgRegel", "-7"}});
  EXPECT_EQ(Regels().size(), 2u);
}

TEST_F(ControleOpm, DeKaartVanEenBevindingIsDieVanDeEigenaar) {
  BouwOpmerkingen();
  bouw_.WijzigRelatie(2, {{"OpmRecord", "6"}});
  ControleOpmRegels regels(DeGegevens());
  EXPECT_THAT(Bevindingen(regels), ElementsAre(Bevinding{{BestandSoort::Opmerkingen, 5},
                                                         {BestandSoort::Relaties, 2},
                                                         BevindingSoort::LosseOpmerking,
                                                         "Opmerking 5 verwijst niet naar R2"}));
}

// Beside a walk line by line, as the fields of a record show their remarks.
TEST_F(ControleOpm, GeeftHetzelfdeAlsRegelVoorRegelZoeken) {
  for (int i = 0; i < 3; ++i) bouw_.Man("Nog", "Een");
  for (int i = 0; i < 12; ++i) {
    bouw_.OpmerkingBijPersoon(static_cast<std::int16_t>(2 + i % 4), std::int16_t(1 << (i % 3)),
                              {"a", "b", "c"});
  }
  std::uint32_t toeval = 1;
  const auto dobbel = [&toeval](std::uint32_t n) {
    toeval = toeval * 1664525u + 1013904223u;
    return static_cast<std::int16_t>((toeval >> 16) % n);
  };
  for (int ronde = 0; ronde < 60; ++ronde) {
    const auto nr = static_cast<std::int16_t>(2 + dobbel(36));
    const std::string_view velden[] = {"BijZelfde", "VolgRegel", "BijRecord", "Rubriek"};
    const std::int16_t grenzen[] = {40, 40, 7, 5};
    const auto keus = static_cast<std::size_t>(dobbel(4));
    WijzigOpm(nr,
              {{velden[keus], std::to_string(dobbel(static_cast<std::uint32_t>(grenzen[keus])))}});
    Zinnenlijst verwacht;
    for (std::int16_t een = 2; een <= 37; ++een) {
      ASSERT_TRUE(set_.Opmerking.Lees(een));
      const std::int16_t rubriek = set_.Opmerking.Rubriek();
      const std::int16_t eigenaar = set_.Opmerking.BijRecord();
      if (rubriek == 0) continue;
      bool gevonden = false;
      if (set_.Persoon.Lees(eigenaar)) {
        const std::int16_t code = set_.Persoon.OpmCode();
        const std::int16_t begin = set_.Persoon.OpmRecord();
        for (std::int16_t regel = 1; regel <= 400 && !gevonden; ++regel) {
          gevonden = set_.Opmerking.OpmRecordNr(code, begin, rubriek, regel, false).Nr == een;
        }
      }
      if (!gevonden) {
        verwacht.push_back("Opmerking " + std::to_string(een) + " verwijst niet naar P" +
                           std::to_string(eigenaar));
      }
    }
    ASSERT_EQ(Regels(), verwacht) << "ronde " << ronde;
  }
}

}  // namespace
}  // namespace lb77
