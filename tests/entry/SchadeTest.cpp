// Cards on damaged records: each button on each of them comes to its end.
#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

#include "entry/KaartToets.h"
#include "entry/VreemdeSet.h"
#include "store/OpmVelden.h"
#include "store/PersoonVelden.h"
#include "store/RelatieVelden.h"
#include "store/SetPaden.h"

namespace lb77 {
namespace {

// Presses one button of the first form that is shown, and leaves all others.
class Drukker final : public Gesprek {
 public:
  Drukker(std::size_t knop, Antwoord antwoord) : knop_(knop), antwoord_(antwoord) {}

  bool gedrukt = false;  // there was such a button
  int gebeurd = 0;       // boxes and forms

  Antwoord Bericht(BerichtSoort, Knoppen knoppen, std::string_view) override {
    ++gebeurd;
    return knoppen == Knoppen::OK ? Antwoord::OK : antwoord_;
  }
  bool BerichtMetVinkje(std::string_view, std::string_view) override { return false; }
  std::optional<std::filesystem::path> VraagBestand(const BestandsVraag&) override { return {}; }
  bool DrukAf(const Afdruk&) override { return false; }
  void Ververs(Formulier&) override {}
  [[nodiscard]] bool StopGevraagd(Formulier&) override { return true; }

 protected:
  void Open(Formulier&) override { ++gebeurd; }
  void Voer(Formulier& formulier) override {
    if (eerste_) Druk(formulier);
    eerste_ = false;
    if (!formulier.Gesloten()) formulier.VraagSluiten();
  }
  void Dicht(Formulier&) override {}

 private:
  void Druk(Formulier& formulier) {
    std::size_t nummer = 0;
    for (Bediening* knop : formulier.Bedieningen()) {
      if (!knop->HeeftKlik() || nummer++ != knop_) continue;
      gedrukt = true;
      if (knop->Bruikbaar()) formulier.Klik(*knop);
      return;
    }
  }

  std::size_t knop_;
  Antwoord antwoord_;
  bool eerste_ = true;
};

class Schade : public KaartToets {
 protected:
  using Vraag = KaartVraag (*)(Hoofdmodule&, std::int16_t);

  void SetUp() override {
    Voeg(Paden().prs, VreemdeRecords(persoonveld::kLengte, persoonveld::Geslacht.plaats, 'M'));
    Voeg(Paden().rlt, VreemdeRecords(relatieveld::kLengte, relatieveld::HuwCorr.plaats, ' '));
    Voeg(Paden().opm, VreemdeRecords(opmveld::kLengte, opmveld::Staart.plaats, ' '));
    Tel(Paden().prs, persoonveld::GebPlaatsNr.plaats, kVreemden);
    Tel(Paden().rlt, relatieveld::ManNr.plaats, kVreemden);
    Tel(Paden().opm, opmveld::Rubriek.plaats, kVreemden + 1);
    VerwijsRond();
  }
  [[nodiscard]] SetPaden Paden() const { return SetPaden::Van(Map(), "PROEF"); }
  [[nodiscard]] std::vector<std::string> Bytes() const {
    return {LeesBytes(Paden().prs), LeesBytes(Paden().rlt), LeesBytes(Paden().opm),
            LeesBytes(Paden().plt)};
  }
  void ZetTerug(const std::vector<std::string>& bytes) const {
    SchrijfBytes(Paden().prs, bytes[0]);
    SchrijfBytes(Paden().rlt, bytes[1]);
    SchrijfBytes(Paden().opm, bytes[2]);
    SchrijfBytes(Paden().plt, bytes[3]);
  }
  int gedrukt_ = 0;

  // Presses every button of the card on every record; `na` looks at the files after each.
  void DrukAlles(Vraag vraag, Antwoord antwoord, const std::function<void()>& na) {
    for (std::int16_t nr = 2; nr < 2 + kVreemden; ++nr) {
      for (std::size_t knop = 0;; ++knop) {
        Drukker gebruiker(knop, antwoord);
        Sessie(Loop(vraag, nr))(gebruiker);
        // A card, what its button opened, and what both had to tell.
        EXPECT_LT(gebruiker.gebeurd, 60) << nr << " " << knop;
        gedrukt_ += gebruiker.gedrukt ? 1 : 0;
        na();
        if (!gebruiker.gedrukt || HasFailure()) break;
      }
      if (HasFailure()) return;
    }
  }

 private:
  static void Voeg(const std::filesystem::path& pad, const std::string& bytes) {
    SchrijfBytes(pad, LeesBytes(pad) + bytes);
  }
  static void Tel(const std::filesystem::path& pad, std::size_t plaats, int aantal) {
    std::string bytes = LeesBytes(pad);
    bytes.at(plaats) = static_cast<char>(aantal);
    bytes.at(plaats + 1) = 0;
    SchrijfBytes(pad, bytes);
  }
  // Half of the links go to records that are there: to others, to their own, and in a ring.
  void VerwijsRond() {
    for (int nr = 2; nr < 2 + kVreemden; nr += 2) {
      const std::string zelf = std::to_string(nr);
      const std::string ander = std::to_string(2 + (nr * 7) % kVreemden);
      Bouw().WijzigPersoon(static_cast<std::int16_t>(nr), {{"Relatie1", ander},
                                                           {"Relatie2", "0"},
                                                           {"Relatie3", "-" + zelf},
                                                           {"Ouders", ander},
                                                           {"OpmRecord", ander},
                                                           {"OpmCode", "8191"}});
      Bouw().WijzigRelatie(static_cast<std::int16_t>(nr), {{"ManNr", zelf},
                                                           {"VrouwNr", ander},
                                                           {"Kind1", "0"},
                                                           {"Kind2", zelf},
                                                           {"Kind15", "-" + ander},
                                                           {"OpmRecord", zelf},
                                                           {"OpmCode", "-511"}});
    }
  }
};

TEST_F(Schade, ElkeKnopKomtTenEindeEnNeeSchrijftNiets) {
  const auto voor = Bytes();
  const auto zelfde = [&] { EXPECT_EQ(Bytes(), voor); };
  DrukAlles(ToonPersoonVraag, Antwoord::Nee, zelfde);
  DrukAlles(ToonRelatieVraag, Antwoord::Nee, zelfde);
  DrukAlles(ToonKinderenVraag, Antwoord::Nee, zelfde);
  DrukAlles(MeerKinderenVraag, Antwoord::Nee, zelfde);
  EXPECT_GT(gedrukt_, 1000);
}

TEST_F(Schade, JaOpElkeVraagKomtOokTenEinde) {
  const auto voor = Bytes();
  const auto terug = [&] {
    if (Bytes() != voor) ZetTerug(voor);
  };
  DrukAlles(ToonPersoonVraag, Antwoord::Ja, terug);
  DrukAlles(ToonKinderenVraag, Antwoord::Ja, terug);
}

}  // namespace
}  // namespace lb77
