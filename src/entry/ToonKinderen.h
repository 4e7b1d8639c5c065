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

  Knop KindVolg{*this, "KindVolg", "Volgorde"};
  Knop MeerButton{*this, "MeerButton", "&Meer"};
  Knop BackButton{*this, "BackButton", "&Terug"};

  [[nodiscard]] KaartVraag Opnieuw() const override;

 protected:
  [[nodiscard]] bool NaarLijst() override;
  void VoegToe() override;
  void HaalWeg() override;

 private:
  void KindVolgKlik();
  void MeerButtonKlik();
};

}  // namespace lb77
