// The form that computes a descendant table and shows how far it is.
#pragma once

#include "descendants/GenOpties.h"
#include "descendants/GenTabel.h"
#include "reporting/BerekenForm.h"

namespace lb77 {

// Fills `tabel`. HuidigPersoonNr is -1 afterwards when no report can follow.
class GenBereken final : public BerekenForm {
 public:
  GenBereken(Hoofdmodule& hoofd, const GenOpties& opties, GenTabel& tabel);
};

}  // namespace lb77
