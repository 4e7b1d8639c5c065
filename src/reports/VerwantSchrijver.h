// The text of the kinship report.
#pragma once

#include <string>
#include <vector>

#include "output/TekstSchrijver.h"
#include "reports/Verwanten.h"
#include "store/PersoonLB77.h"

namespace lb77 {

// The lines for a chain that runs from the second person back to the first one, drawing and all; an
// empty chain is no kinship. A person who can't be read is left out. The buffer of `persoon` changes.
[[nodiscard]] std::vector<std::string> VerwantTekst(const std::vector<VerwantEntry>& keten,
                                                    PersoonLB77& persoon);

// Writes lines as they are, however long.
void SchrijfVerwantTekst(TekstSchrijver& uit, const std::vector<std::string>& regels);

}  // namespace lb77
