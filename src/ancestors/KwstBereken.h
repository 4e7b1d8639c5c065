// The form that computes an ancestor table and shows how far it is.
#pragma once

#include "ancestors/KwstTabel.h"
#include "reporting/BerekenForm.h"

namespace lb77 {

// Fills `tabel`. HuidigPersoonNr is -1 afterwards when no report can follow.
class KwstBereken final : public BerekenForm {
 public:
  KwstBereken(Hoofdmodule& hoofd, const KwstOpties& opties, KwstTabel& tabel);
};

}  // namespace lb77
