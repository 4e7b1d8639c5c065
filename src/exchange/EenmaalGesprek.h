// A door to the user that shows the same message once.
#pragma once

#include <set>
#include <string>

#include "forms/Gesprek.h"

namespace lb77 {

// When two messages are the same: by their first lines, or by these without the numbers in them.
enum class Gelijkenis { Regel, ZonderNummers };

// For a record class that works through thousands of lines: what it told of one it need not tell
// of all. Questions are always asked.
class EenmaalGesprek final : public Gesprek {
 public:
  // `echt` is the door that shows.
  explicit EenmaalGesprek(Gesprek& echt, Gelijkenis gelijkenis = Gelijkenis::Regel)
      : echt_(echt), gelijkenis_(gelijkenis) {}

  // What was shown so far may be shown again.
  void Opnieuw() { getoond_.clear(); }

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
  Gelijkenis gelijkenis_;
  std::set<std::string, std::less<>> getoond_;
};

}  // namespace lb77
