// The list of findings: its order, its kinds, and what is mended.
#include "checks/BevindingLijst.h"
#include "checks/ControlePrsRegels.h"
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
  BevindingLijst Lijst(Controleur& regels) {
    std::vector<Bevinding> gevonden = Bevindingen(regels);
    return {gevonden, gevonden.size()};
  }
};

TEST_F(BevindingLijstToets, StaatOpSoortEnDaarbinnenOpNummer) {
  bouw_.Man("Twee", "Proef", {{"OvlDatum", "01-01-1803"}, {"BegrDatum", "01-01-1802"}});
  bouw_.Man("Drie", "Proef",
            {{"GebDatum", "01-01-1801"}, {"DoopDatum", "01-01-1800"}, {"OvlDatum", "01-01-1800"}});
  bouw_.Man("Vier", "Proef", {{"GebDatum", "01-01-1801"}, {"DoopDatum", "01-01-1800"}});
  ControlePrsRegels regels(DeGegevens(), kAlles);
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
  ControlePrsRegels regels(DeGegevens(), kAlles);
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

TEST_F(BevindingLijstToets, WatAlleenInHetVerslagStaatIsGeteld) {
  EXPECT_EQ(BevindingLijst({Bevinding{}}, 5).NietInLijst(), 4u);
}

}  // namespace
}  // namespace lb77
