// Fills the descendant table from the record files; knows no form.
#pragma once

#include "descendants/GenOpties.h"
#include "descendants/GenTabel.h"
#include "reporting/Verloop.h"
#include "store/PersoonLB77.h"
#include "store/RelatieLB77.h"
#include "store/Volgers.h"

namespace lb77 {

// Fills `tabel`; the stop is tested before each entry. HuidigPersoonNr is -1 after a failed read or a
// stop.
[[nodiscard]] Uitslag BouwGen(GenTabel& tabel, const GenOpties& opties, PersoonLB77& persoon,
                              RelatieLB77& relatie, Volgers& volgers, const Verloop& verloop);

}  // namespace lb77
