// What a user does on a form in an everyday command, by the names of its controls.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "cli/Bediener.h"
#include "forms/Formulier.h"
#include "script/Instructie.h"

namespace lb77 {

// The hand of the script, with failures told to `bediener` in the user's words: a control by its
// prompt, the form by its title.
class Werk {
 public:
  Werk(Bediener& bediener, Formulier& formulier) : bediener_(bediener), formulier_(formulier) {}

  // Text in a field, as if typed; an item of a pick box or list by its text; "aan" or "uit" of a
  // tick box or option. `waarde` is Windows-1252. False, and told, when the control did not take
  // all of it; also when the form has closed or another field holds the focus.
  [[nodiscard]] bool Zet(std::string_view naam, std::string_view waarde);
  // The same for texts of the form NAAM=WAARDE. False when one of them was not taken.
  [[nodiscard]] bool ZetAlle(std::span<const std::string> keuzen);
  void Druk(std::string_view naam);
  void Kies(std::string_view menuKeuze);

 private:
  // True when the hand could do it, which does not say that the form went along.
  [[nodiscard]] bool Doe(InstructieSoort soort, std::string_view naam, std::string_view waarde);
  [[nodiscard]] bool ZetVeld(Invoerveld& veld, std::string_view waarde);
  [[nodiscard]] bool Weiger(std::string_view naam, std::string_view redenUtf8);
  [[nodiscard]] std::string Aanduiding(std::string_view naam) const;

  Bediener& bediener_;
  Formulier& formulier_;
};

}  // namespace lb77
