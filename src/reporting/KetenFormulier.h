// A form in a chain of forms: each goes on where the one before it was not left by Terug.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>

#include "app/InvoerFormulier.h"

namespace lb77 {

// HuidigPersoonNr -1 is what stops a chain.
class KetenFormulier : public InvoerFormulier {
 protected:
  KetenFormulier(std::string_view naam, std::string_view titel, Hoofdmodule& hoofd)
      : InvoerFormulier(naam, titel, hoofd) {}

  // The button stops the chain and closes.
  void KoppelTerug(Knop& terug);
  // The chain must not go on.
  void StopKeten();
  // May the chain go on?
  [[nodiscard]] bool GaatDoor() const;
  // Shows the next form of the chain, unless it was stopped.
  void Stap(Formulier&& formulier);
  // Shows the card of a person, and whatever the user goes to from there.
  void ToonPersoonskaart(std::int16_t nr);
  // Shows a finished report in the viewer.
  void ToonTekstbestand(const std::filesystem::path& pad, std::string_view titel, bool inHTML);

 private:
  void TerugKlik();
};

}  // namespace lb77
