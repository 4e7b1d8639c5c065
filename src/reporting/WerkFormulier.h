// A form that works by itself when it becomes active, shows its counters, and can be stopped.
#pragma once

#include "forms/Formulier.h"

namespace lb77 {

class Hoofdmodule;

// A derived form declares its counters and its buttons, says which buttons those are, and works in
// Werk(). Its end is either Sluit(), or staying open until the user leaves it.
class WerkFormulier : public Formulier {
 protected:
  WerkFormulier(std::string_view naam, std::string_view titel, Hoofdmodule& hoofd)
      : Formulier(naam, titel), hoofd_(hoofd) {}

  // OK closes; Terug sets HuidigPersoonNr to -1, so that the chain stops, and closes.
  void Koppel(Knop& ok, Knop& terug);
  // The work. The form is busy meanwhile.
  virtual void Werk() = 0;
  void BijActiveren() final;

  // The loop's test: True when a stop was asked for and the user confirmed it. HuidigPersoonNr is
  // -1 then. A No forgets the request.
  [[nodiscard]] bool Afbreken();
  // Repaints the counters.
  void Ververs();
  // The chain must not go on.
  void StopKeten();

  [[nodiscard]] Hoofdmodule& Hoofd() { return hoofd_; }

 private:
  Hoofdmodule& hoofd_;
};

}  // namespace lb77
