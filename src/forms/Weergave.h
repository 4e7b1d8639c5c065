// The controls that show: label, toggling label, counter, fixed-pitch page, status bar; and the menu
// entry.
#pragma once

#include <vector>

#include "forms/Bediening.h"

namespace lb77 {

// A text on the form. With a handler of its own it can be clicked.
class Label : public Bediening {
 public:
  Label(Formulier& formulier, std::string_view naam, std::string_view bijschrift = {})
      : Bediening(formulier, BedieningSoort::Label, naam, bijschrift) {}
};

// A text that the user changes to the next of a few by a double click or the blank.
class Wissellabel : public Bediening {
 public:
  // Precondition: at least one text.
  Wissellabel(Formulier& formulier, std::string_view naam, std::vector<std::string> teksten)
      : Bediening(formulier, BedieningSoort::Wissellabel, naam, teksten.front()),
        teksten_(std::move(teksten)) {}
  [[nodiscard]] const std::vector<std::string>& Teksten() const { return teksten_; }
  // Which of the texts it shows, from 0.
  [[nodiscard]] int Index() const { return index_; }
  // An index outside the texts shows the first.
  void ZetIndex(int index);
  [[nodiscard]] bool KanFocus() const override { return true; }
  [[nodiscard]] bool HeeftDubbelklik() const override { return true; }

 private:
  std::vector<std::string> teksten_;
  int index_ = 0;
};

// A value that the program shows: a running count, a name found. Its caption stands before it.
class Teller : public Bediening {
 public:
  Teller(Formulier& formulier, std::string_view naam, std::string_view bijschrift = {})
      : Bediening(formulier, BedieningSoort::Teller, naam, bijschrift) {}
  [[nodiscard]] const std::string& Tekst() const { return tekst_; }
  void ZetTekst(std::string_view tekst) { tekst_ = tekst; }
  [[nodiscard]] std::string Prompt() const override { return Bijschrift(); }
  [[nodiscard]] std::string Waarde() const override { return tekst_; }

 private:
  std::string tekst_;
};

// A page of fixed-pitch text, line by line.
class Tekstpagina : public Bediening {
 public:
  Tekstpagina(Formulier& formulier, std::string_view naam)
      : Bediening(formulier, BedieningSoort::Tekstpagina, naam, {}) {}
  [[nodiscard]] const std::vector<std::string>& Regels() const { return regels_; }
  void ZetRegels(std::vector<std::string> regels) { regels_ = std::move(regels); }
  // The lines joined by line feeds.
  [[nodiscard]] std::string Waarde() const override;

 private:
  std::vector<std::string> regels_;
};

class Statusbalk : public Bediening {
 public:
  Statusbalk(Formulier& formulier, std::string_view naam)
      : Bediening(formulier, BedieningSoort::Statusbalk, naam, {}) {}
  [[nodiscard]] const std::string& Tekst() const { return tekst_; }
  void ZetTekst(std::string_view tekst) { tekst_ = tekst; }
  [[nodiscard]] std::string Waarde() const override { return tekst_; }

 private:
  std::string tekst_;
};

// A menu or an entry of one. `menu` names the control of the menu that it stands in, empty for a
// menu of the menu bar.
class MenuKeuze : public Bediening {
 public:
  MenuKeuze(Formulier& formulier, std::string_view naam, std::string_view bijschrift,
            std::string_view menu)
      : Bediening(formulier, BedieningSoort::MenuKeuze, naam, bijschrift), menu_(menu) {}
  [[nodiscard]] const std::string& Menu() const { return menu_; }

  // What it would do now, for the status line; empty when its caption says it all.
  [[nodiscard]] const std::string& Toelichting() const { return toelichting_; }
  void ZetToelichting(std::string_view toelichting) { toelichting_ = toelichting; }

 private:
  std::string menu_;
  std::string toelichting_;
};

}  // namespace lb77
