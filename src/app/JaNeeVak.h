// The pick box of every report option: "Ja" or "Nee".
#pragma once

#include <string_view>

#include "forms/Keuzen.h"

namespace lb77 {

class JaNeeVak : public Keuzevak {
 public:
  JaNeeVak(Formulier& formulier, std::string_view naam, std::string_view bijschrift)
      : Keuzevak(formulier, naam, bijschrift, {"Ja", "Nee"}) {}

  [[nodiscard]] bool Ja() const { return Index() == 0; }
  void ZetJa(bool ja) { ZetIndex(ja ? 0 : 1); }
};

}  // namespace lb77
