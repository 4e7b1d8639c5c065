// A form that shows a text to read: what the usual keys of a reader do in it.
#pragma once

#include "forms/Bediening.h"
#include "forms/Weergave.h"

namespace lb77 {

// A base beside Formulier. A front end asks first whether a form is one.
class Leesformulier {
 public:
  Leesformulier() = default;
  virtual ~Leesformulier() = default;
  Leesformulier(const Leesformulier&) = delete;
  Leesformulier& operator=(const Leesformulier&) = delete;

  // The control that Ctrl with this capital stands for: a button is pressed, a field gets the focus.
  // Null for a letter that means nothing here.
  [[nodiscard]] virtual Bediening* BijCtrl(char letter) = 0;
};

// A page on which a word has been found.
class Vindpagina final : public Tekstpagina {
 public:
  using Tekstpagina::Tekstpagina;

  // Line and column on this page, from 0.
  struct Plek {
    int regel = 0;
    int kolom = 0;
    int lengte = 0;  // 0: nothing is marked
    [[nodiscard]] bool operator==(const Plek&) const = default;
  };
  [[nodiscard]] const Plek& Gemerkt() const { return gemerkt_; }
  void Merk(const Plek& plek) { gemerkt_ = plek; }

 private:
  Plek gemerkt_;
};

}  // namespace lb77
