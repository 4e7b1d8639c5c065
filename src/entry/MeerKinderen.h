// The card with the children of a relation from the fifteenth on.
#pragma once

#include <cstdint>

#include "entry/KinderenKaart.h"

namespace lb77 {

// What makes the card with the further children of relation `nr`.
[[nodiscard]] KaartVraag MeerKinderenVraag(Hoofdmodule& hoofd, std::int16_t nr);

// They lie in the relation's continuation record; without one nobody is shown.
class MeerKinderen final : public KinderenKaart {
 public:
  MeerKinderen(Hoofdmodule& hoofd, std::int16_t relatie);

  Knop BackButton{*this, "BackButton", "&Terug"};

  [[nodiscard]] KaartVraag Opnieuw() const override;

 protected:
  [[nodiscard]] bool NaarLijst() override;
  void VoegToe() override;
  void HaalWeg() override;
};

}  // namespace lb77
