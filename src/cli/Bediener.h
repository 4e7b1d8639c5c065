// The user's place in an everyday command: it works the same forms as the window.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "forms/Formulier.h"
#include "forms/Gesprek.h"

namespace lb77 {

// Each form that opens is worked by the action that was set for its name, once, and left by its
// Terug when it is still open then. Boxes are told on standard error; questions are answered with
// No or Cancel.
class Bediener final : public Gesprek {
 public:
  using Meld = std::function<void(std::string_view utf8)>;
  using Handeling = std::function<void(Formulier&)>;

  // `meld` gets what the user must know, a line at a time, in UTF-8.
  explicit Bediener(Meld meld) : meld_(std::move(meld)) {}

  void Bij(std::string_view formulier, Handeling handeling);
  // The command did not do what it was asked to do.
  void Mislukt(std::string_view reden);
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
  Meld meld_;
  std::map<std::string, Handeling, std::less<>> handelingen_;
  bool vinkjeGemeld_ = false;
  int status_ = 0;
};

// What a user does on a form, by the names of its controls; each tells a failure to `bediener`.
class Werk {
 public:
  Werk(Bediener& bediener, Formulier& formulier) : bediener_(bediener), formulier_(formulier) {}

  // Text in a field, as if typed; an item of a pick box or list by its text; "aan" or "uit" of a
  // tick box or option. `waarde` is Windows-1252. False, and told, when the control did not take
  // all of it; also when the form has closed.
  [[nodiscard]] bool Zet(std::string_view naam, std::string_view waarde);
  void Druk(std::string_view naam);
  void Kies(std::string_view menuKeuze) { Druk(menuKeuze); }

 private:
  [[nodiscard]] Bediening* Vind(std::string_view naam);
  [[nodiscard]] bool ZetLijst(Lijst& lijst, std::string_view waarde);
  [[nodiscard]] bool ZetSchakelaar(Schakelaar& schakelaar, std::string_view waarde);
  [[nodiscard]] bool Vul(Invoerveld& veld, std::string_view waarde);
  [[nodiscard]] bool Weiger(std::string_view naam, std::string_view reden);

  Bediener& bediener_;
  Formulier& formulier_;
};

}  // namespace lb77
