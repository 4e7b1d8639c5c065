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

  Knop ErbijButton{*this, "ErbijButton", "&Erbij"};
  Knop ErafButton{*this, "ErafButton", "Er&af"};
  Knop BackButton{*this, "BackButton", "&Terug"};

  [[nodiscard]] KaartVraag Opnieuw() const override;

 protected:
  [[nodiscard]] bool NaarLijst() override;

 private:
  void ErbijButtonKlik();
  void ErafButtonKlik();
};

}  // namespace lb77
