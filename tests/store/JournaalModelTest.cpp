// Random edits, undos, crashes and reopenings, against a plain copy of the bytes in memory.
#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "store/JournaalToets.h"

using namespace lb77;

namespace {

class JournaalModelTest : public JournaalToets {
 protected:
  int Tot(int grens) { return static_cast<int>(toeval_() % static_cast<unsigned>(grens)); }

  void Stap() {
    switch (Tot(8)) {
      case 0:
        Heropen();
        break;
      case 1:
        Ongedaan();
        break;
      case 2:
        SterfEnHerstel(false);
        break;
      case 3:
        SterfEnHerstel(true);
        break;
      default:
        Bewerk();
    }
  }

  // One to six records of one action; the failures are those of a disk that died.
  void Bewerk() {
    Handeling handeling(*bestanden, "Bewerking");
    for (int i = 0, aantal = 1 + Tot(6); i < aantal; ++i) {
      const auto soort = kBestandSoorten.at(static_cast<std::size_t>(Tot(4)));
      static_cast<void>(Schrijf(soort, 1 + Tot(12), static_cast<char>('a' + Tot(26))));
    }
    const SysteemFout fout = handeling.Voltooi();
    // What came of it on a disk that is about to die is seen after the restart.
    if (schijf.bij == 0) {
      ASSERT_FALSE(fout);
      Noteer();
    }
  }
  void Noteer() {
    standen_.push_back(Stand());
    const auto regels = Dagboek().Geschiedenis();
    nummers_.push_back(regels.empty() ? 0 : regels.back().nummer);
  }

  // The state before any action of the last ten, an undo of an undo among them.
  void Ongedaan() {
    const int terug = 1 + Tot(10);
    if (static_cast<int>(standen_.size()) <= terug) return;
    const std::size_t doel = standen_.size() - 1 - static_cast<std::size_t>(terug);
    const OngedaanUitslag uitslag = Dagboek().MaakOngedaan(nummers_[doel + 1]);
    ASSERT_TRUE(uitslag) << OngedaanTekst(uitslag);
    ASSERT_EQ(Stand(), standen_[doel]);
    Noteer();
  }

  void SterfEnHerstel(bool stroom) {
    schijf.bij = schijf.teller + 1 + Tot(40);
    schijf.wijze = ProefSchijf::Wijze::Dood;
    Bewerk();
    const bool gestorven = schijf.Geweest();
    bestanden.reset();
    if (stroom) {
      schijf.Stroomuitval(toeval_);
    } else {
      schijf.Herstart();
    }
    Open();
    if (Dagboek().Onvoltooid()) {
      ASSERT_FALSE(Dagboek().Herstel());
    }
    // Dead between the end and its telling, an action has come without the test's hearing of it.
    const auto regels = Dagboek().Geschiedenis();
    const bool erbij = !regels.empty() && regels.back().nummer != nummers_.back();
    ASSERT_TRUE(erbij || gestorven);
    if (erbij) {
      Noteer();
    }
    ASSERT_EQ(Stand(), standen_.back());
  }

  std::mt19937 toeval_{77};
  std::vector<VierBestanden> standen_;
  std::vector<std::uint32_t> nummers_;  // of the action that led to each state
};

}  // namespace

TEST_F(JournaalModelTest, DuizendenStappenZonderVerschil) {
  Vul();
  Noteer();
  for (int stap = 0; stap < 4000 && !HasFatalFailure(); ++stap) {
    Stap();
    ASSERT_EQ(Stand(), standen_.back()) << stap;
  }
  EXPECT_GT(standen_.size(), 2500U);
}
