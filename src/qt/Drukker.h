// Pages of fixed-pitch text on paper.
#pragma once

#include <QFont>
#include <QPagedPaintDevice>
#include <QSizeF>
#include <QWidget>

#include "forms/Gesprek.h"

namespace lb77 {

// Asks for a printer over `ouder` (may be null) and prints; False when the user cancelled, or the
// printer failed and the user was told.
[[nodiscard]] bool VraagEnDrukAf(QWidget* ouder, const Afdruk& afdruk);

// Druk, with a box over `ouder` when it fails.
[[nodiscard]] bool DrukOfMeld(QWidget* ouder, QPagedPaintDevice& papier, const Afdruk& afdruk);

// Draws each page on a sheet of its own; False when the device failed.
[[nodiscard]] bool Druk(QPagedPaintDevice& papier, const Afdruk& afdruk);

// The largest letter, at most 12 points, in which 80 columns by 69 lines fit `vlak` (in dots of
// a device with `dpi` dots an inch).
[[nodiscard]] QFont Drukletter(QPagedPaintDevice& papier, QSizeF vlak, int dpi);

}  // namespace lb77
