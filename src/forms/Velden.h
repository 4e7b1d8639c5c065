// The controls that the user types in: text field, multi-line text, path field.
#pragma once

#include <filesystem>

#include "forms/Bediening.h"

namespace lb77 {

// What Enter does in a field: run the leave check and stay, go on to the next field, or press OK.
enum class EnterSoort { Controle, Door, OK };

// A field with a text. Its caption is the prompt that stands before it.
class Invoerveld : public Bediening {
 public:
  // A key-press filter: gives the character to type, 0 to drop it.
  using Filter = char (*)(char);

  [[nodiscard]] const std::string& Tekst() const { return tekst_; }
  // From code: no filter, no event. A longer text than the maximum is kept as it is.
  virtual void ZetTekst(std::string_view tekst) { tekst_ = tekst; }

  // Longest text that can be typed; 0 is no limit.
  [[nodiscard]] std::size_t MaxLengte() const { return maxLengte_; }
  void ZetMaxLengte(std::size_t lengte) { maxLengte_ = lengte; }
  [[nodiscard]] EnterSoort Enter() const { return enter_; }
  void ZetEnter(EnterSoort enter) { enter_ = enter; }
  void ZetFilter(Filter filter) { filter_ = filter; }
  // A field that shows and cannot be typed in; it takes no focus.
  [[nodiscard]] bool AlleenLezen() const { return alleenLezen_; }
  void ZetAlleenLezen(bool alleenLezen) { alleenLezen_ = alleenLezen; }

  // The character as it would be typed, 0 when the filter drops it.
  [[nodiscard]] char Gefilterd(char teken) const { return filter_ ? filter_(teken) : teken; }

  [[nodiscard]] bool KanFocus() const override { return !alleenLezen_; }
  [[nodiscard]] std::string Prompt() const override { return Bijschrift(); }
  [[nodiscard]] std::string Waarde() const override { return tekst_; }

 protected:
  using Bediening::Bediening;

 private:
  std::string tekst_;
  std::size_t maxLengte_ = 0;
  EnterSoort enter_ = EnterSoort::Door;
  Filter filter_ = nullptr;
  bool alleenLezen_ = false;
};

// Filters for ZetFilter.
[[nodiscard]] char AlleenCijfers(char teken);
[[nodiscard]] char InHoofdletters(char teken);

// One line of text, at most `maxLengte` characters (0: no limit).
class Tekstvak : public Invoerveld {
 public:
  Tekstvak(Formulier& formulier, std::string_view naam, std::string_view bijschrift = {},
           std::size_t maxLengte = 0)
      : Invoerveld(formulier, BedieningSoort::Tekstvak, naam, bijschrift) {
    ZetMaxLengte(maxLengte);
  }
};

// Text of several lines; Enter types a line end here.
class Tekstblok : public Invoerveld {
 public:
  Tekstblok(Formulier& formulier, std::string_view naam, std::string_view bijschrift = {},
            std::size_t maxLengte = 0)
      : Invoerveld(formulier, BedieningSoort::Tekstblok, naam, bijschrift) {
    ZetMaxLengte(maxLengte);
  }
};

// A path. It shows the path in Windows-1252 as well as it can, and keeps the path itself, so that a
// name outside that set survives as long as the user does not change the text.
class Padvak : public Invoerveld {
 public:
  Padvak(Formulier& formulier, std::string_view naam, std::string_view bijschrift = {})
      : Invoerveld(formulier, BedieningSoort::Padvak, naam, bijschrift) {}

  [[nodiscard]] std::filesystem::path Pad() const;
  void ZetPad(const std::filesystem::path& pad);

 private:
  std::filesystem::path pad_;
  std::string getoond_;  // the text that stands for pad_
};

}  // namespace lb77
