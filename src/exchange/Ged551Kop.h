// What stands before the persons of a GEDCOM 5.5.1 file, without the places.
#pragma once

#include "exchange/Ged551Regels.h"
#include "exchange/GedKopGegevens.h"

namespace lb77 {

// The head and the record of the submitter. Texts are cut to the lengths of the standard.
void SchrijfGed551Kop(const GedKopGegevens& kop, Ged551Regels& uit);

}  // namespace lb77
