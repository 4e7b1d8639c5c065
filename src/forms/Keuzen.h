// The controls that the user presses or chooses with: button, tick box, option, pick box, pick list.
#pragma once

#include <vector>

#include "forms/Bediening.h"

namespace lb77 {

class Knop : public Bediening {
 public:
  Knop(Formulier& formulier, std::string_view naam, std::string_view bijschrift)
      : Bediening(formulier, BedieningSoort::Knop, naam, bijschrift) {}
  [[nodiscard]] bool KanFocus() const override { return true; }
};

// A button that shows the number of a record and leads to it, with a prompt before it.
class Verwijzing : public Knop {
 public:
  // `leesnaam` is for the ear, where the prompt is too short or there is none.
  Verwijzing(Formulier& formulier, std::string_view naam, std::string_view prompt = {},
             std::string_view leesnaam = {})
      : Knop(formulier, naam, {}), prompt_(prompt) {
    ZetLeesnaam(leesnaam);
  }
  [[nodiscard]] int Nr() const { return nr_; }
  // Number 0 is shown as `bijNul`.
  void ZetNr(int nr, std::string_view bijNul = {});
  [[nodiscard]] std::string Prompt() const override { return prompt_; }
  // The name and what the button shows.
  [[nodiscard]] std::string Leesnaam() const override;

 private:
  std::string prompt_;
  int nr_ = 0;
};

// On or off.
class Schakelaar : public Bediening {
 public:
  [[nodiscard]] bool Gekozen() const { return gekozen_; }
  virtual void Zet(bool gekozen) { gekozen_ = gekozen; }
  [[nodiscard]] bool KanFocus() const override { return true; }
  [[nodiscard]] std::string Waarde() const override { return gekozen_ ? "aan" : "uit"; }

 protected:
  using Bediening::Bediening;

 private:
  bool gekozen_ = false;
};

class Vinkje : public Schakelaar {
 public:
  Vinkje(Formulier& formulier, std::string_view naam, std::string_view bijschrift)
      : Schakelaar(formulier, BedieningSoort::Vinkje, naam, bijschrift) {}
};

// One of a group: choosing it clears the others of the same form and group.
class Optie : public Schakelaar {
 public:
  Optie(Formulier& formulier, std::string_view naam, std::string_view bijschrift, int groep = 0)
      : Schakelaar(formulier, BedieningSoort::Optie, naam, bijschrift),
        formulier_(formulier),
        groep_(groep) {}
  [[nodiscard]] int Groep() const { return groep_; }
  void Zet(bool gekozen) override;

 private:
  Formulier& formulier_;
  int groep_;
};

// A choice of one from a list of texts; index from 0, -1 for none chosen.
class Lijst : public Bediening {
 public:
  [[nodiscard]] const std::vector<std::string>& Rijen() const { return rijen_; }
  // Replaces the items; nothing is chosen then.
  void ZetRijen(std::vector<std::string> rijen);
  void VoegToe(std::string_view rij) { rijen_.emplace_back(rij); }
  void MaakLeeg() { ZetRijen({}); }

  [[nodiscard]] int Index() const { return index_; }
  // An index outside the list chooses nothing.
  void ZetIndex(int index);
  // The chosen item, empty when none is chosen.
  [[nodiscard]] std::string Tekst() const;

  [[nodiscard]] bool KanFocus() const override { return true; }
  [[nodiscard]] std::string Prompt() const override { return Bijschrift(); }
  [[nodiscard]] std::string Waarde() const override { return Tekst(); }

 protected:
  using Bediening::Bediening;

 private:
  std::vector<std::string> rijen_;
  int index_ = -1;
};

// A pick box: one line, unfolds.
class Keuzevak : public Lijst {
 public:
  Keuzevak(Formulier& formulier, std::string_view naam, std::string_view bijschrift = {},
           std::vector<std::string> rijen = {})
      : Lijst(formulier, BedieningSoort::Keuzevak, naam, bijschrift) {
    ZetRijen(std::move(rijen));
  }
};

// A pick list: all its rows in view.
class Keuzelijst : public Lijst {
 public:
  Keuzelijst(Formulier& formulier, std::string_view naam, std::string_view bijschrift = {})
      : Lijst(formulier, BedieningSoort::Keuzelijst, naam, bijschrift) {}
};

}  // namespace lb77
