// A door to the user that shows the same message once.
#pragma once

#include <set>
#include <string>

#include "forms/Gesprek.h"

namespace lb77 {

// For a record class that works through thousands of lines: what it told of one it need not tell
// of all. Messages are the same when their first lines are; questions are always asked.
class EenmaalGesprek final : public Gesprek {
 public:
  // `echt` is the door that shows.
  explicit EenmaalGesprek(Gesprek& echt) : echt_(echt) {}

  Antwoord Bericht(BerichtSoort soort, Knoppen knoppen, std::string_view tekst) override;
  bool BerichtMetVinkje(std::string_view tekst, std::string_view vinkje) override;
  std::optional<std::filesystem::path> VraagBestand(const BestandsVraag& vraag) override;
  bool DrukAf(const Afdruk& afdruk) override;
  void Ververs(Formulier& formulier) override;
  [[nodiscard]] bool StopGevraagd(Formulier& formulier) override;

 protected:
  // Record classes show no forms.
  void Open(Formulier&) override {}
  void Voer(Formulier&) override {}
  void Dicht(Formulier&) override {}

 private:
  Gesprek& echt_;
  std::set<std::string, std::less<>> getoond_;
};

}  // namespace lb77
