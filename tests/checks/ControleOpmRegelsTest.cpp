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
    ControleOpmRegels regels(bron_);
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
  bouw_.WijzigRelatie(2, {{"HuwCorr", "Z"}});
  EXPECT_THAT(Regels(),
              ElementsAre("Opmerking 2 verwijst niet naar P99", "Opmerking 3 verwijst niet naar P2",
                          "Opmerking 4 verwijst niet naar P2", "Opmerking 5 verwijst niet naar R2",
                          "Opmerking 6 verwijst niet naar R-3"));
}

TEST_F(ControleOpm, EenEigenaarOnderNulIsErGeen) {
  BouwOpmerkingen();
  WijzigOpm(2, {{"BijRecord", "-2"}});
  EXPECT_THAT(Regels(), ElementsAre("Opmerking 2 verwijst niet naar P-2"));
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

// As when records of the list are tested again on a file that was cut meanwhile.
TEST_F(ControleOpm, AchterHetLaatsteRecordIsNietsOpgezocht) {
  for (int i = 0; i < 90; ++i) bouw_.OpmerkingBijPersoon(2, persoonrubriek::kBeroep, {"een"});
  ControleOpmRegels regels(bron_);
  regels.Begin(3);
  Zinnenlijst gevonden;
  for (const std::int16_t nr : {std::int16_t{3}, std::int16_t{91}}) {
    regels.Toets(nr, [&](const Bevinding& een) { gevonden.push_back(een.tekst); });
  }
  EXPECT_THAT(gevonden, ElementsAre("Opmerking 91 verwijst niet naar P2"));
}

TEST_F(ControleOpm, DeKaartVanEenBevindingIsDieVanDeEigenaar) {
  BouwOpmerkingen();
  bouw_.WijzigRelatie(2, {{"OpmRecord", "6"}});
  ControleOpmRegels regels(bron_);
  EXPECT_THAT(Bevindingen(regels), ElementsAre(Bevinding{{BestandSoort::Opmerkingen, 5},
                                                         {BestandSoort::Relaties, 2},
                                                         BevindingSoort::LosseOpmerking,
                                                         "Opmerking 5 verwijst niet naar R2"}));
}

// Is the record one of the lines that the fields of its owner show?
template <class Eigenaar>
bool StaatErbij(OpmLB77& opmerking, Eigenaar& eigenaar, std::int16_t wie, std::int16_t rubriek,
                std::int16_t nr) {
  if (!eigenaar.Lees(wie) || eigenaar.IsVolgRecord()) return false;
  const std::int16_t code = eigenaar.OpmCode();
  const std::int16_t begin = eigenaar.OpmRecord();
  for (std::int16_t regel = 1; regel <= 400; ++regel) {
    if (opmerking.OpmRecordNr(code, begin, rubriek, regel, false).Nr == nr) return true;
  }
  return false;
}

// Beside a walk line by line, at persons and at relations.
TEST_F(ControleOpm, GeeftHetzelfdeAlsRegelVoorRegelZoeken) {
  for (int i = 0; i < 3; ++i) bouw_.Man("Nog", "Een");
  for (int i = 0; i < 2; ++i) bouw_.Relatie(0, 0);
  for (int i = 0; i < 12; ++i) {
    const auto rubriek = static_cast<std::int16_t>(1 << (i % 3));
    if (i % 2 == 0) {
      bouw_.OpmerkingBijPersoon(static_cast<std::int16_t>(2 + i % 4), rubriek, {"a", "b", "c"});
    } else {
      bouw_.OpmerkingBijRelatie(static_cast<std::int16_t>(2 + i % 3),
                                static_cast<std::int16_t>(-rubriek), {"a", "b", "c"});
    }
  }
  std::uint32_t toeval = 1;
  const auto dobbel = [&toeval](std::uint32_t n) {
    toeval = toeval * 1664525u + 1013904223u;
    return static_cast<std::int16_t>((toeval >> 16) % n);
  };
  struct Greep {
    std::string_view veld;
    int laagste;
    std::uint32_t aantal;
  };
  constexpr Greep kGrepen[] = {
      {"BijZelfde", 0, 40}, {"VolgRegel", 0, 40}, {"BijRecord", 0, 7}, {"Rubriek", -4, 9}};
  std::size_t bijRelaties = 0;
  for (int ronde = 0; ronde < 90; ++ronde) {
    const auto nr = static_cast<std::int16_t>(2 + dobbel(36));
    const Greep& greep = kGrepen[dobbel(4)];
    WijzigOpm(nr, {{greep.veld, std::to_string(greep.laagste + dobbel(greep.aantal))}});
    Zinnenlijst verwacht;
    for (std::int16_t een = 2; een <= 37; ++een) {
      ASSERT_TRUE(set_.Opmerking.Lees(een));
      const std::int16_t rubriek = set_.Opmerking.Rubriek();
      const std::int16_t wie = set_.Opmerking.BijRecord();
      if (rubriek == 0) continue;
      const bool erbij = rubriek > 0 ? StaatErbij(set_.Opmerking, set_.Persoon, wie, rubriek, een)
                                     : StaatErbij(set_.Opmerking, set_.Relatie, wie, rubriek, een);
      bijRelaties += erbij && rubriek < 0 ? 1 : 0;
      if (erbij) continue;
      verwacht.push_back("Opmerking " + std::to_string(een) + " verwijst niet naar " +
                         (rubriek > 0 ? "P" : "R") + std::to_string(wie));
    }
    ASSERT_EQ(Regels(), verwacht) << "ronde " << ronde;
  }
  EXPECT_GT(bijRelaties, 200u);
}

}  // namespace
}  // namespace lb77
