// Writes one sheet of an ancestor table: a page to print or to save.
#pragma once

#include "ancestors/KwstOpties.h"
#include "ancestors/KwstTabel.h"
#include "store/Gegevens.h"

namespace lb77 {

class TekstSchrijver;

// The sheet of which entry `wortel` is the root, in the layout, with the texts and the numbers that
// the options ask for. The file is open and stays so, at least kBladBreedte wide.
void SchrijfBlad(const KwstTabel& tabel, int wortel, const KwstOpties& opties,
                 const Gegevens& bronnen, TekstSchrijver& uit);

}  // namespace lb77
