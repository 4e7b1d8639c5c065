// A form that works, shows its counters, and can be stopped.
#pragma once

#include <functional>

#include "reporting/KetenFormulier.h"
#include "reporting/Tijdelijk.h"
#include "reporting/Verloop.h"

namespace lb77 {

// Vanzelf: works when it becomes active, as a step of a chain. OpKnop: works at each press of its OK
// button, and is no part of a chain.
enum class WerkBegin { Vanzelf, OpKnop };

// A derived form declares its counters and its buttons, says which buttons those are, and works in
// Werk(). Its end is either Sluit(), or staying open until the user leaves it.
class WerkFormulier : public KetenFormulier {
 protected:
  WerkFormulier(std::string_view naam, std::string_view titel, Hoofdmodule& hoofd,
                WerkBegin begin = WerkBegin::Vanzelf)
      : KetenFormulier(naam, titel, hoofd), begin_(begin) {}

  // Of a form that works by itself OK closes, and Terug stops the chain and closes. Of another OK
  // works, and is disabled meanwhile; Terug closes.
  void Koppel(Knop& ok, Knop& terug);
  // The work. The form is busy meanwhile.
  virtual void Werk() = 0;
  void BijActiveren() final;

  // The loop's test: True when a stop was asked for and the user confirmed it; the chain is stopped
  // then. A No forgets the request.
  [[nodiscard]] bool Afbreken();
  // Repaints the counters.
  void Ververs();

  // Makes the report `bestand`. True when all of it was written. Otherwise what went wrong has been
  // told and the chain is stopped; the form closes, but for a stop of the user's own.
  [[nodiscard]] bool MaakVerslag(const VerslagBestand& bestand,
                                 const std::function<Uitslag(TekstSchrijver&)>& schrijf);
  // The same for the end of any work: Klaar and Vol go on.
  [[nodiscard]] bool GaatVerder(const Uitslag& uitslag);

 private:
  void OkKlik(Knop& ok);
  void Begin();
  void Stop();

  WerkBegin begin_;
};

}  // namespace lb77
