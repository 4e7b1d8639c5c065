// The head of the prescribed GEDCOM file.
#pragma once

#include "exchange/ExpUitvoer.h"
#include "exchange/GedKopGegevens.h"

namespace lb77 {

void SchrijfKop(const GedKopGegevens& kop, ExpUitvoer& uit);

}  // namespace lb77
