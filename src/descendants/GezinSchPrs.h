// The family sheet, from the question for the head of the family to the viewer.
#pragma once

#include "reporting/PersoonPrompt.h"

namespace lb77 {

class GezinSchPrs final : public PersoonPrompt {
 public:
  explicit GezinSchPrs(Hoofdmodule& hoofd);

 protected:
  void Keten(std::int16_t persoonNr) override;
};

}  // namespace lb77
