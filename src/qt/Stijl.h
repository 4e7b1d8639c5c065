// How the program looks: letters, sizes and colours that are kind to older eyes.
#pragma once

#include <QApplication>
#include <QFont>
#include <QWidget>

namespace lb77 {

// Sets the look of the whole program: letters of at least 11 points, Dutch words in the toolkit's
// own dialogs, buttons in the same order everywhere, the icon that is installed with it.
void ZetStijl(QApplication& programma);

// A fixed-pitch letter: Courier New, or what the system has in its place.
[[nodiscard]] QFont VasteLetter(qreal punten);
[[nodiscard]] QFont Vet(QFont letter);

// The width in pixels of so many characters in a widget, with its frame.
[[nodiscard]] int TekenBreedte(const QWidget& widget, int tekens);
// Gives a widget room for so many characters; `vast` keeps it from growing.
void ZetTekenBreedte(QWidget& widget, int tekens, bool vast);
// A field that cannot be typed in lies in the colour of its window.
void ToonAlleenLezen(QWidget& veld, bool alleenLezen);
// Dark letters on white, whatever the colours of the system.
void ZetPapier(QWidget& widget);

}  // namespace lb77
