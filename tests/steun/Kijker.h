// A user who fills in the prompt of a report, takes every form behind it as it is, and looks whether
// the prompt is still there.
#pragma once

#include <optional>
#include <string>
#include <utility>

#include "forms/Formulier.h"
#include "forms/Gesprek.h"
#include "forms/Velden.h"

namespace lb77 {

class Kijker final : public Gesprek {
 public:
  explicit Kijker(std::string persoonNr) : persoonNr_(std::move(persoonNr)) {}

  // The forms behind the prompt, in order: "+Form " while the prompt is on the screen, "-Form " when
  // it is hidden.
  [[nodiscard]] const std::string& Gezien() const { return gezien_; }

  Antwoord Bericht(BerichtSoort, Knoppen, std::string_view) override { return Antwoord::OK; }
  bool BerichtMetVinkje(std::string_view, std::string_view) override { return false; }
  std::optional<std::filesystem::path> VraagBestand(const BestandsVraag&) override { return {}; }
  bool DrukAf(const Afdruk&) override { return false; }
  void Ververs(Formulier&) override {}
  [[nodiscard]] bool StopGevraagd(Formulier&) override { return false; }

 protected:
  void Open(Formulier& formulier) override {
    if (!prompt_) {
      prompt_ = &formulier;
    } else {
      gezien_ += (prompt_->Verborgen() ? "-" : "+") + formulier.Naam() + " ";
    }
  }
  void Voer(Formulier& formulier) override {
    if (&formulier == prompt_) {
      formulier.Bewerkt(dynamic_cast<Invoerveld&>(*formulier.Zoek("RecordNr")), persoonNr_);
    }
    Bediening* knop = formulier.Zoek("OKButton");
    formulier.Klik(knop ? *knop : *formulier.TerugKnop());
  }
  void Dicht(Formulier&) override {}

 private:
  std::string persoonNr_;
  std::string gezien_;
  const Formulier* prompt_ = nullptr;
};

}  // namespace lb77
