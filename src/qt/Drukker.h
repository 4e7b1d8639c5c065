// Pages of fixed-pitch text on paper.
#pragma once

#include <QFont>
#include <QPagedPaintDevice>
#include <QRectF>
#include <QSizeF>
#include <QWidget>
#include <cstddef>

#include "forms/Gesprek.h"
#include "qt/VensterInstellingen.h"

namespace lb77 {

// Shows the sheets over `ouder` (may be null), and prints them when the user says so; False when he
// left, or when nothing stands on them, which he is told. What he kept as PDF instead is not printed.
[[nodiscard]] bool VraagEnDrukAf(QWidget* ouder, const Afdruk& afdruk,
                                 VensterInstellingen& instellingen);

// The pages on which something stands.
[[nodiscard]] Afdruk ZonderLegeVellen(const Afdruk& afdruk);

// The sheets with the numbers `van` to `tot`, as they count among all.
[[nodiscard]] Afdruk Deel(const Afdruk& afdruk, std::size_t van, std::size_t tot);
// How many sheets there are, of which these may be some.
[[nodiscard]] std::size_t Totaal(const Afdruk& afdruk);

// A4, upright, with margins of at least 10 mm, or more where the device needs them.
void StelPapierIn(QPagedPaintDevice& papier);

// Where the text stands on a sheet, in dots of the paint area, and its letter. At least 10 mm of white
// stand around it, however little the device asks; below it is the number of the sheet.
struct Velindeling {
  QRectF tekst;
  QRectF voet;
  QFont letter;
  QFont voetletter;
};
[[nodiscard]] Velindeling DeelIn(QPagedPaintDevice& papier);

// Druk, with a box over `ouder` when it fails.
[[nodiscard]] bool DrukOfMeld(QWidget* ouder, QPagedPaintDevice& papier, const Afdruk& afdruk);

// Draws each page on a sheet of its own, with its number and the total; False when the device failed.
[[nodiscard]] bool Druk(QPagedPaintDevice& papier, const Afdruk& afdruk);

// The largest letter, at most 12 points, in which 80 columns by 69 lines fit `vlak` (in dots of
// a device with `dpi` dots an inch).
[[nodiscard]] QFont Drukletter(QPagedPaintDevice& papier, QSizeF vlak, int dpi);

}  // namespace lb77
