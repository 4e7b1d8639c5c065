// A user for tests below the dialogs: keeps what is shown, and answers what was held ready.
#pragma once

#include <deque>
#include <set>
#include <string>
#include <vector>

#include "forms/Gesprek.h"

namespace lb77 {

// A question without an answer fails the test (and gets No), as does an answer that is left over
// at the end. Forms can't be shown.
class NepGesprek final : public Gesprek {
 public:
  NepGesprek() = default;
  ~NepGesprek() override;

  // Holds an answer ready for the next question that has none.
  void Antwoordt(Antwoord antwoord) { antwoorden_.push_back(antwoord); }

  // What was shown so far, as in a transcript: `! stop "..."`, `? vraag Ja/Nee "..." -> Ja`.
  const std::vector<std::string>& Regels() const { return regels_; }
  // The same, and forgets it.
  std::vector<std::string> Neem();

  Antwoord Bericht(BerichtSoort soort, Knoppen knoppen, std::string_view tekst) override;
  bool BerichtMetVinkje(std::string_view tekst, std::string_view vinkje) override;
  std::optional<std::filesystem::path> VraagBestand(const BestandsVraag& vraag) override;
  bool DrukAf(const Afdruk& afdruk) override;
  void Ververs(Formulier&) override {}
  [[nodiscard]] bool StopGevraagd(Formulier&) override { return false; }

 protected:
  void Open(Formulier& formulier) override;
  void Voer(Formulier&) override {}
  void Dicht(Formulier&) override {}

 private:
  void Noteer(std::string_view windows);

  std::deque<Antwoord> antwoorden_;
  std::vector<std::string> regels_;
  std::set<std::string> genoteerd_;
};

}  // namespace lb77
