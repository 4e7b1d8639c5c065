// The list of the records that were selected for an export.
#pragma once

#include "exchange/SelectieLijst.h"
#include "output/TekstSchrijver.h"
#include "reporting/Verloop.h"
#include "store/Gegevens.h"

namespace lb77 {

// A line for each, with its number and names, under a heading. `verloop` hears the record and how
// many there are by then.
[[nodiscard]] Uitslag SchrijfPersonenLyst(TekstSchrijver& uit, const Gegevens& gegevens,
                                          const SelectieLijst& SelPersonen, const Verloop& verloop);
[[nodiscard]] Uitslag SchrijfRelatiesLyst(TekstSchrijver& uit, const Gegevens& gegevens,
                                          const SelectieLijst& SelRelaties, const Verloop& verloop);

}  // namespace lb77
