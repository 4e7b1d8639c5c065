// The ancestor report, from the question for the proband to the viewer.
#pragma once

#include "reporting/PersoonPrompt.h"

namespace lb77 {

class KwstTxtPrs final : public PersoonPrompt {
 public:
  explicit KwstTxtPrs(Hoofdmodule& hoofd);

 protected:
  void Keten(std::int16_t persoonNr) override;
};

}  // namespace lb77
