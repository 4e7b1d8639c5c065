// The card with the first fifteen children of a relation.
#pragma once

#include <cstdint>

#include "entry/KinderenKaart.h"

namespace lb77 {

// What makes the card with the children of relation `nr`.
[[nodiscard]] KaartVraag ToonKinderenVraag(Hoofdmodule& hoofd, std::int16_t nr);

class ToonKinderen final : public KinderenKaart {
 public:
  ToonKinderen(Hoofdmodule& hoofd, std::int16_t relatie);

  Knop ErbijButton{*this, "ErbijButton", "&Erbij"};
  Knop ErafButton{*this, "ErafButton", "Er&af"};
  Knop KindVolg{*this, "KindVolg", "Volgorde"};
  Knop MeerButton{*this, "MeerButton", "&Meer"};
  Knop BackButton{*this, "BackButton", "&Terug"};

  [[nodiscard]] KaartVraag Opnieuw() const override;

 protected:
  [[nodiscard]] bool NaarLijst() override;

 private:
  void ErbijButtonKlik();
  void ErafButtonKlik();
  void KindVolgKlik();
  void MeerButtonKlik();
};

}  // namespace lb77
