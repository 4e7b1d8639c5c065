// A user who sees nothing and is asked nothing.
#pragma once

#include "forms/Gesprek.h"

namespace lb77 {

// Questions get No or Cancel; forms are not shown.
class StilGesprek final : public Gesprek {
 public:
  Antwoord Bericht(BerichtSoort, Knoppen knoppen, std::string_view) override {
    return knoppen == Knoppen::OK ? Antwoord::OK : Antwoord::Nee;
  }
  bool BerichtMetVinkje(std::string_view, std::string_view) override { return false; }
  std::optional<std::filesystem::path> VraagBestand(const BestandsVraag&) override { return {}; }
  bool DrukAf(const Afdruk&) override { return false; }
  void Ververs(Formulier&) override {}
  [[nodiscard]] bool StopGevraagd(Formulier&) override { return false; }

 protected:
  void Open(Formulier&) override {}
  void Voer(Formulier&) override {}
  void Dicht(Formulier&) override {}
};

}  // namespace lb77
