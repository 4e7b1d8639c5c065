// The user's place in an everyday command: it works the same forms as the window.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/Formulier.h"
#include "forms/Gesprek.h"

namespace lb77 {

// Each form that opens is worked by the action that was set for its name, once each time, and left by
// its Terug when it is still open then. Boxes are told on standard error; questions are answered with
// No or Cancel, unless an answer is held ready for them.
class Bediener final : public Gesprek {
 public:
  using Meld = std::function<void(std::string_view utf8)>;
  using Handeling = std::function<void(Formulier&)>;

  // `meld` gets what the user must know, a line at a time, in UTF-8.
  explicit Bediener(Meld meld) : meld_(std::move(meld)) {}

  void Bij(std::string_view formulier, Handeling handeling);
  // There is a printer, which gives its pages to `neem`.
  void BijAfdruk(std::function<void(const Afdruk&)> neem) { neem_ = std::move(neem); }
  // The first question that offers this answer while that form is on top gets it; "" is no form at
  // all, as during the start-up. Answers for one form are given in their order.
  void HoudKlaar(std::string_view formulier, Antwoord antwoord);
  // Every question that offers this answer while that form is on top gets it, unless another is held
  // ready for it.
  void HoudSteeds(std::string_view formulier, Antwoord antwoord);
  // From here on a question that offers No gets it, also where Cancel would end more.
  void LieverNee() { lieverNee_ = true; }
  // The command did not do what it was asked to do.
  void Mislukt(std::string_view reden);
  void MisluktUtf8(std::string_view reden);
  // 0, or 1 after an error.
  [[nodiscard]] int Status() const { return status_; }

  Antwoord Bericht(BerichtSoort soort, Knoppen knoppen, std::string_view tekst) override;
  bool BerichtMetVinkje(std::string_view tekst, std::string_view vinkje) override;
  std::optional<std::filesystem::path> VraagBestand(const BestandsVraag& vraag) override;
  bool DrukAf(const Afdruk& afdruk) override;
  void Ververs(Formulier& formulier) override;
  [[nodiscard]] bool StopGevraagd(Formulier& formulier) override;

 protected:
  void Open(Formulier& formulier) override;
  void Voer(Formulier& formulier) override;
  void Dicht(Formulier& formulier) override;

 private:
  [[nodiscard]] Antwoord Kies(Knoppen knoppen);

  Meld meld_;
  std::map<std::string, Handeling, std::less<>> handelingen_;
  std::function<void(const Afdruk&)> neem_;
  std::map<std::string, std::vector<Antwoord>, std::less<>> klaar_;
  std::map<std::string, Antwoord, std::less<>> steeds_;
  std::vector<std::string> open_;  // the names of the open forms, the one on top last
  bool vinkjeGemeld_ = false;
  bool lieverNee_ = false;
  int status_ = 0;
};

}  // namespace lb77
