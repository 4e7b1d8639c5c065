// A long walk over the cards, by a user who only clicks.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "entry/KaartToets.h"

namespace lb77 {
namespace {

// Presses the next button of a round on the card on top; after so many steps only BackButton.
class Wandelaar final : public Gesprek {
 public:
  Wandelaar(std::vector<std::string> ronde, int stappen)
      : ronde_(std::move(ronde)), stappen_(stappen) {}

  int stappen = 0;                      // taken, the way back included
  int geopend = 0;                      // cards that came on the screen
  int meest = 0;                        // most of them at once
  const void* eersteKader = nullptr;    // the stack at the first card
  std::ptrdiff_t diepst = 0;            // the furthest that it lay from there
  std::vector<std::string> onverwacht;  // boxes, and buttons that are not there

  Antwoord Bericht(BerichtSoort, Knoppen, std::string_view tekst) override {
    onverwacht.emplace_back(tekst);
    return Antwoord::Nee;
  }
  bool BerichtMetVinkje(std::string_view, std::string_view) override { return false; }
  std::optional<std::filesystem::path> VraagBestand(const BestandsVraag&) override { return {}; }
  bool DrukAf(const Afdruk&) override { return false; }
  void Ververs(Formulier&) override {}
  [[nodiscard]] bool StopGevraagd(Formulier&) override { return false; }

 protected:
  void Open(Formulier&) override {
    ++geopend;
    meest = std::max(meest, ++open_);
  }
  void Voer(Formulier& formulier) override {
    const auto* kader = static_cast<const char*>(__builtin_frame_address(0));
    if (eersteKader == nullptr) eersteKader = kader;
    diepst = std::max(diepst, static_cast<const char*>(eersteKader) - kader);
    while (!formulier.Gesloten()) Stap(formulier);
  }
  void Dicht(Formulier&) override { --open_; }

 private:
  void Stap(Formulier& formulier) {
    const std::string naam =
        stappen++ < stappen_ ? ronde_[plaats_++ % ronde_.size()] : std::string("BackButton");
    Bediening* const knop = formulier.Zoek(naam);
    if (knop != nullptr && formulier.Klik(*knop)) return;
    onverwacht.push_back("geen " + naam + " op " + formulier.Naam());
    formulier.VraagSluiten();
  }

  std::vector<std::string> ronde_;
  std::size_t plaats_ = 0;
  int stappen_;
  int open_ = 0;
};

TEST_F(KaartToets, TienduizendStappenEnTerugBlijvenOpEenKaart) {
  Gezin();
  constexpr int kStappen = 10000;
  // Kees, his father on the same card; and by relation and children to Kees again.
  Wandelaar gebruiker({"RecordNrPa", "RelNrP(1)", "NaarKind", "NaarKind(1)"}, kStappen);
  Sessie(Loop(ToonPersoonVraag, 4))(gebruiker);
  EXPECT_TRUE(gebruiker.onverwacht.empty()) << gebruiker.onverwacht.front();
  EXPECT_EQ(gebruiker.meest, 1);
  EXPECT_EQ(gebruiker.diepst, 0);
  // Three of four steps open another card, and each of those returns.
  constexpr int kKaarten = kStappen / 4 * 3;
  EXPECT_EQ(gebruiker.geopend, 1 + 2 * kKaarten);
  EXPECT_EQ(gebruiker.stappen, kStappen + kKaarten + 1);
}

}  // namespace
}  // namespace lb77
