// The user's hand: one instruction carried out on the form that is on top.
#pragma once

#include <string>
#include <string_view>

#include "forms/Formulier.h"
#include "script/Instructie.h"

namespace lb77 {

// What cannot be done, in UTF-8: the control as "Formulier.Naam", and why. Thrown by Hand and caught
// by who lends it; it is no std::exception, so that nobody else takes it for a failure of the program.
struct SpeelFout {
  std::string wat;
  std::string reden;
};

// Acts as a user would: on what is visible and enabled only, and through the focus. What the form
// swallows is no error. Whatever the user could not do at all throws SpeelFout.
class Hand {
 public:
  explicit Hand(Formulier& formulier) : formulier_(formulier) {}

  // Carries out any instruction but `toon` and those that hold something ready.
  void Doe(const Instructie& instructie);
  // The control of that name, reachable or not.
  [[nodiscard]] Bediening& Vind(std::string_view naam) const;

 private:
  [[nodiscard]] Bediening& VindBruikbaar(std::string_view naam) const;
  [[nodiscard]] bool Betreed(Bediening& bediening);
  [[nodiscard]] bool StaatIn(const Bediening& bediening) const;
  void KiesMenu(std::string_view naam);
  void Vul(const Instructie& instructie);
  void TypTeken(Invoerveld& veld, ToetsGebeurtenis toets);
  void Druk(std::string_view naam);
  void Dubbelklik(std::string_view naam);
  void Toets(const Instructie& instructie);
  void Stel(const Instructie& instructie);
  void StelLijst(Lijst& lijst, const Instructie& instructie);
  void StelSchakelaar(Schakelaar& schakelaar, std::string_view waarde);
  [[noreturn]] void Weiger(std::string_view naam, std::string_view reden) const;

  Formulier& formulier_;
};

}  // namespace lb77
