// Writes a descendant chart: head, drawing and closing lines. Knows no form.
#pragma once

#include "descendants/GenOpties.h"
#include "descendants/GenRij.h"
#include "descendants/GenTabel.h"
#include "reporting/Verloop.h"
#include "store/Gegevens.h"

namespace lb77 {

class TekstSchrijver;

// Into an open file, which stays open; what was written stands, however the run ends. The drawing is
// as wide as it needs: none of its lines is broken.
[[nodiscard]] Uitslag SchrijfGenSchema(const GenTabel& tabel, const GenRij& rijen,
                                       const GenOpties& opties, const Gegevens& bronnen,
                                       TekstSchrijver& uit, const Verloop& verloop);

}  // namespace lb77
