// Damaged files: every check comes to its end.
#include <filesystem>

#include "checks/ControleOpmRegels.h"
#include "checks/ControlePltsRegels.h"
#include "checks/ControlePrsRegels.h"
#include "checks/ControleRelRegels.h"
#include "checks/ControleToets.h"
#include "store/Rubrieken.h"

namespace lb77 {
namespace {

class ControleSchade : public ControleToets {
 protected:
  ControleSchade() {
    std::vector<std::int16_t> kinderen;
    for (int i = 0; i < 17; ++i) kinderen.push_back(bouw_.Man("Kind", "Proef"));
    const std::int16_t man = bouw_.Man("Vader", "Proef", {{"GebPlaats", "2"}});
    for (int i = 0; i < 5; ++i) {
      bouw_.Relatie(man, bouw_.Vrouw("Vrouw", "Proef"), i == 0 ? kinderen : std::vector{man});
    }
    for (int i = 0; i < 9; ++i) bouw_.Plaats("Plaats", "ZH");
    for (std::int16_t nr = 2; nr < 8; ++nr) {
      bouw_.OpmerkingBijPersoon(nr, persoonrubriek::kBeroep, {"een", "twee", "drie"});
      bouw_.OpmerkingBijPersoon(nr, persoonrubriek::kAlgemeen, {"vier"});
    }
  }
  [[nodiscard]] std::vector<std::filesystem::path> Bestanden() const {
    return {set_.paden.prs, set_.paden.rlt, set_.paden.plt, set_.paden.opm};
  }
  // The lines of all four checks, whatever boxes they tell of.
  std::size_t Controleer() {
    set_.Heropen();
    std::size_t regels = Regelteksten<ControlePrsRegels>().size() +
                         Regelteksten<ControleRelRegels>().size() +
                         Regelteksten<ControlePltsRegels>().size();
    ControleOpmRegels opm(bron_);
    regels += Bevindingen(opm).size();
    boxen_ += set_.Getoond().size();
    return regels;
  }
  std::uint32_t Dobbel(std::size_t n) {
    toeval_ = toeval_ * 1664525u + 1013904223u;
    return static_cast<std::uint32_t>((toeval_ >> 8) % n);
  }

  std::size_t boxen_ = 0;
  std::uint32_t toeval_ = 77;
};

TEST_F(ControleSchade, WillekeurigeBytesEindigenInEenVerslag) {
  std::size_t regels = 0;
  for (int ronde = 0; ronde < 60; ++ronde) {
    for (const auto& pad : Bestanden()) {
      std::string bytes = LeesBytes(pad);
      for (int i = 0; i < 8; ++i) bytes[Dobbel(bytes.size())] = static_cast<char>(Dobbel(256));
      SchrijfBytes(pad, bytes);
    }
    regels += Controleer();
  }
  EXPECT_GT(regels, 60u);
}

TEST_F(ControleSchade, BestandenVanElkeLengteEindigenInEenVerslag) {
  for (const auto& pad : Bestanden()) {
    const std::string heel = LeesBytes(pad);
    for (std::size_t lengte = 0; lengte < heel.size(); lengte += 37) {
      SchrijfBytes(pad, heel.substr(0, lengte));
      Controleer();
    }
    SchrijfBytes(pad, heel);
  }
  EXPECT_EQ(Controleer(), Controleer());
  EXPECT_GT(boxen_, 0u);
}

}  // namespace
}  // namespace lb77
