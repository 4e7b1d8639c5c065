// What of a typed or pasted text may come into a field.
#pragma once

#include <QString>
#include <string>

#include "forms/Velden.h"

namespace lb77 {

// The part that is let in, after transliteration, the field's filter and its maximum length.
// `geweigerd` tells that a character was left out because it cannot be stored.
struct Toelating {
  QString tekst;
  bool geweigerd = false;
};

// `ruimte` is the number of characters for which there is room; it is used only for a field with
// a maximum length.
[[nodiscard]] Toelating LaatToe(const Invoerveld& veld, const QString& ruw, qsizetype ruimte);

// The piece of a text that an edit put in: it starts at `van` and is `lengte` long.
struct Ingevoegd {
  qsizetype van = 0;
  qsizetype lengte = 0;
};
[[nodiscard]] Ingevoegd WatIsNieuw(const QString& oud, const QString& nieuw);

}  // namespace lb77
