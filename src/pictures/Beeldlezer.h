// Persons of a table, as a picture tells them.
#pragma once

#include <vector>

#include "ancestors/KwstTabel.h"
#include "descendants/GenOpties.h"
#include "descendants/GenTabel.h"
#include "pictures/BeeldPersoon.h"
#include "pictures/Tijdbeeld.h"
#include "reports/Statistieken.h"
#include "store/Gegevens.h"

namespace lb77 {

// Which numbers stand before the names. The values are the choices of the form.
enum class Nummering { Geen, Kwartier, Persoon };

struct KwartierKeuzen {
  int generaties = 1;
  Nummering nummers = Nummering::Geen;
  bool jaren = true;
};

// The ancestors as far as `generaties`. Somebody who can't be read keeps his place, without a name.
// The buffers change.
[[nodiscard]] BeeldPersonen LeesKwartieren(const KwstTabel& tabel, const KwartierKeuzen& keuzen,
                                           const Gegevens& bronnen);

// The same for descendants, with the texts of the character chart.
[[nodiscard]] BeeldPersonen LeesStam(const GenTabel& tabel, const GenOpties& opties, int generaties,
                                     const Gegevens& bronnen);

// A bar for each period from the first to the last, also where there is nobody; what lies far apart is
// joined by dots.
[[nodiscard]] std::vector<Tijdstaaf> StavenVan(const Tijdbalk& tijdbalk);

}  // namespace lb77
