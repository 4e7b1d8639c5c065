// A user who fills in a form, starts its work, and looks whether it still shows that it is at work
// when the next form lies on it.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "forms/Formulier.h"
#include "forms/Gesprek.h"
#include "forms/Velden.h"

namespace lb77 {

class BezigKijker final : public Gesprek {
 public:
  using Vulling = std::vector<std::pair<std::string, std::string>>;

  // Gives these fields their texts, then presses OK.
  explicit BezigKijker(Vulling vulling = {}) : vulling_(std::move(vulling)) {}

  // The forms on top of it, in order: "ToonTekst ", or "ToonTekst(bezig) ".
  [[nodiscard]] const std::string& Gezien() const { return gezien_; }

  Antwoord Bericht(BerichtSoort, Knoppen, std::string_view) override { return Antwoord::OK; }
  bool BerichtMetVinkje(std::string_view, std::string_view) override { return false; }
  std::optional<std::filesystem::path> VraagBestand(const BestandsVraag&) override { return {}; }
  bool DrukAf(const Afdruk&) override { return false; }
  void Ververs(Formulier&) override {}
  [[nodiscard]] bool StopGevraagd(Formulier&) override { return false; }

 protected:
  void Open(Formulier& formulier) override {
    if (!onderste_) {
      onderste_ = &formulier;
    } else {
      gezien_ += formulier.Naam() + (onderste_->Bezig() ? "(bezig) " : " ");
    }
  }
  void Voer(Formulier& formulier) override {
    if (&formulier == onderste_) {
      for (const auto& [veld, tekst] : vulling_) {
        formulier.Bewerkt(dynamic_cast<Invoerveld&>(*formulier.Zoek(veld)), tekst);
      }
      formulier.Klik(*formulier.Zoek("OKButton"));
    }
    if (!formulier.Gesloten()) formulier.VraagSluiten();
  }
  void Dicht(Formulier&) override {}

 private:
  Vulling vulling_;
  Formulier* onderste_ = nullptr;
  std::string gezien_;
};

}  // namespace lb77
