// The steps of a form that works: which one is going on, and which are done.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Keuzen.h"
#include "forms/Weergave.h"
#include "text/Getallen.h"

namespace lb77 {

// One step: "Pass1Label" stands there while it goes on, and "Pass1box" is set when it is done.
struct Gang {
  Gang(Formulier& formulier, int nummer, std::string_view tekst)
      : Bezig(formulier, "Pass" + GetalTekst(nummer) + "Label", "Bezig met ... ==>"),
        Klaar(formulier, "Pass" + GetalTekst(nummer) + "box", tekst) {
    Klaar.ZetIngeschakeld(false);
  }

  Label Bezig;
  Vinkje Klaar;
};

// All steps of a form, in their order. The steps outlive it.
class Gangen {
 public:
  Gangen(std::initializer_list<Gang*> gangen) : gangen_(gangen) {}

  // Step `nummer`, from 1, goes on now, and those ahead of it are done.
  void Toon(int nummer) {
    int deze = 0;
    for (Gang* gang : gangen_) {
      ++deze;
      gang->Bezig.ZetZichtbaar(deze == nummer);
      gang->Klaar.Zet(deze < nummer);
    }
  }
  // Nothing goes on.
  void Rust() {
    for (Gang* gang : gangen_) gang->Bezig.ZetZichtbaar(false);
  }
  // Nothing has been done.
  void Wis() {
    for (Gang* gang : gangen_) gang->Klaar.Zet(false);
  }

 private:
  std::vector<Gang*> gangen_;
};

}  // namespace lb77
