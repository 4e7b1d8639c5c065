// The list of findings: its order, its kinds, and what is mended.
#include <algorithm>

#include "checks/BevindingLijst.h"
#include "checks/ControlePrsRegels.h"
#include "checks/ControleRelRegels.h"
#include "checks/ControleToets.h"

namespace lb77 {
namespace {

using ::testing::ElementsAre;
using ::testing::Pair;

class BevindingLijstToets : public ControleToets {
 protected:
  [[nodiscard]] static std::vector<std::pair<std::string, bool>> Inhoud(
      const BevindingLijst& lijst) {
    std::vector<std::pair<std::string, bool>> uit;
    for (const auto& regel : lijst.Regels())
      uit.emplace_back(regel.bevinding.tekst, regel.hersteld);
    return uit;
  }
  BevindingLijst Lijst(Controleur& regels) { return BevindingLijst(Bevindingen(regels)); }
};

TEST_F(BevindingLijstToets, StaatOpSoortEnDaarbinnenOpNummer) {
  bouw_.Man("Twee", "Proef", {{"OvlDatum", "01-01-1803"}, {"BegrDatum", "01-01-1802"}});
  bouw_.Man("Drie", "Proef",
            {{"GebDatum", "01-01-1801"}, {"DoopDatum", "01-01-1800"}, {"OvlDatum", "01-01-1800"}});
  bouw_.Man("Vier", "Proef", {{"GebDatum", "01-01-1801"}, {"DoopDatum", "01-01-1800"}});
  ControlePrsRegels regels(bron_, kAlles);
  const BevindingLijst lijst = Lijst(regels);
  EXPECT_THAT(Inhoud(lijst), ElementsAre(Pair("Persoon 3: Geboorte is na de doop", false),
                                         Pair("Persoon 4: Geboorte is na de doop", false),
                                         Pair("Persoon 3: Geboorte is na het overlijden", false),
                                         Pair("Persoon 2: Overlijden is na het begraven", false)));
  const auto soorten = lijst.Soorten();
  ASSERT_EQ(soorten.size(), 3u);
  EXPECT_EQ(soorten[0].soort, BevindingSoort::GeboorteNaDoop);
  EXPECT_EQ(soorten[0].aantal, 2u);
  EXPECT_EQ(soorten[2].soort, BevindingSoort::OverlijdenNaBegraven);
  EXPECT_EQ(lijst.NietInLijst(), 0u);
}

TEST_F(BevindingLijstToets, WatErNietMeerIsHeetHersteldEnWatErBijKomtOok) {
  bouw_.Man("Twee", "Proef", {{"GebDatum", "01-01-1801"}, {"DoopDatum", "01-01-1800"}});
  bouw_.Man("Drie", "Proef", {{"GebDatum", "01-01-1801"}, {"DoopDatum", "01-01-1800"}});
  ControlePrsRegels regels(bron_, kAlles);
  BevindingLijst lijst = Lijst(regels);
  bouw_.WijzigPersoon(2, {{"DoopDatum", "01-01-1801"}, {"OvlDatum", "01-01-1800"}});
  lijst.Hertoets(regels);
  EXPECT_THAT(Inhoud(lijst), ElementsAre(Pair("Persoon 2: Geboorte is na de doop", true),
                                         Pair("Persoon 3: Geboorte is na de doop", false),
                                         Pair("Persoon 2: Geboorte is na het overlijden", false),
                                         Pair("Persoon 2: Doop is na het overlijden", false)));
  bouw_.WijzigPersoon(2, {{"DoopDatum", "01-01-1800"}, {"OvlDatum", ""}});
  lijst.Hertoets(regels);
  EXPECT_THAT(Inhoud(lijst), ElementsAre(Pair("Persoon 2: Geboorte is na de doop", false),
                                         Pair("Persoon 3: Geboorte is na de doop", false),
                                         Pair("Persoon 2: Geboorte is na het overlijden", true),
                                         Pair("Persoon 2: Doop is na het overlijden", true)));
}

// A relation that names an absent child twice has two lines that read alike.
TEST_F(BevindingLijstToets, GelijkeRegelsWordenElkVoorZichHersteld) {
  bouw_.Relatie(0, 0, {}, {{"Kind1", "97"}, {"Kind2", "97"}});
  ControleRelRegels regels(bron_, kAlles);
  BevindingLijst lijst = Lijst(regels);
  const std::string regel = "Relatie 2: Verwijzing naar kind (P97) klopt niet";
  lijst.Hertoets(regels);
  EXPECT_THAT(Inhoud(lijst), ElementsAre(Pair(regel, false), Pair(regel, false)));
  bouw_.WijzigRelatie(2, {{"Kind2", "0"}});
  lijst.Hertoets(regels);
  EXPECT_THAT(Inhoud(lijst), ElementsAre(Pair(regel, false), Pair(regel, true)));
  bouw_.WijzigRelatie(2, {{"Kind2", "97"}, {"Kind3", "97"}});
  lijst.Hertoets(regels);
  EXPECT_THAT(Inhoud(lijst),
              ElementsAre(Pair(regel, false), Pair(regel, false), Pair(regel, false)));
}

// A check that finds so many lines on records 2 and 3.
class Veelvuldig final : public Controleur {
 public:
  std::size_t opTwee = 0;
  std::size_t opDrie = 0;

  static Bevinding Maak(std::int16_t nr, std::size_t hoeveelste) {
    const RecordPlek plek{BestandSoort::Personen, nr};
    return {plek, plek, BevindingSoort::GeboorteNaDoop,
            std::to_string(nr) + "/" + std::to_string(hoeveelste)};
  }
  [[nodiscard]] std::int16_t Laatste() override { return 3; }
  void Begin(std::int16_t) override {}
  void Toets(std::int16_t nr, const Melding& meld) override {
    const std::size_t aantal = nr == 2 ? opTwee : opDrie;
    for (std::size_t i = 0; i < aantal; ++i) meld(Maak(nr, i));
  }
};

TEST_F(BevindingLijstToets, WatAlleenInHetVerslagStaatIsGeteld) {
  EXPECT_EQ(BevindingLijst({Bevinding{}}, {.opLaatste = 1, .erna = 3}).NietInLijst(), 4u);
}

TEST_F(BevindingLijstToets, DeLijstBlijftBinnenHaarGrensEnTeltWatErNaastStaat) {
  constexpr std::size_t kMeeste = BevindingLijst::kMeeste;
  std::vector<Bevinding> gevonden;
  for (std::size_t i = 0; i < kMeeste - 1; ++i) gevonden.push_back(Veelvuldig::Maak(2, i));
  BevindingLijst lijst(std::move(gevonden), {.opLaatste = 40, .erna = 7});
  Veelvuldig regels;
  regels.opTwee = kMeeste + 4;
  lijst.Hertoets(regels);
  EXPECT_EQ(lijst.Regels().size(), kMeeste);
  EXPECT_EQ(lijst.NietInLijst(), 4u + 7u);
  regels.opTwee = 10;
  lijst.Hertoets(regels);
  EXPECT_EQ(lijst.Regels().size(), kMeeste);
  EXPECT_EQ(lijst.NietInLijst(), 7u);
  EXPECT_EQ(std::ranges::count(lijst.Regels(), false, &BevindingLijst::Regel::hersteld), 10);
}

}  // namespace
}  // namespace lb77
