// What the parameter dialogs of the ancestor reports share.
#pragma once

#include <string_view>

#include "ancestors/KwstOpties.h"
#include "reporting/VerslagParam.h"

namespace lb77 {

// A dialog that fills the options of a run.
class KwstParam : public VerslagParam {
 protected:
  KwstParam(std::string_view naam, std::string_view titel, Hoofdmodule& hoofd, KwstOpties& opties)
      : VerslagParam({naam, titel, "kwartierstaat", "Proband", "Kwartierstaat van "}, hoofd,
                     opties.KwProbandNr, opties.teksten),
        opties_(opties) {}

  [[nodiscard]] KwstOpties& Opties() { return opties_; }

 private:
  KwstOpties& opties_;
};

}  // namespace lb77
