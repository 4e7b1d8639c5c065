// Fits the contents of a dialog to a small screen.
#pragma once

#include <QBoxLayout>
#include <QSize>
#include <QWidget>

namespace lb77 {

// The contents are the only thing in the layout of `venster`; `voet` is the row of buttons that they
// end in, or null. What is larger than `ruimte` gets scroll bars, and keeps its buttons in sight. The
// size that the window asks, scroll bars included; it may be larger than `ruimte`.
[[nodiscard]] QSize PasIn(QWidget& venster, QBoxLayout* voet, QSize ruimte, int rand);

// Contents that cannot scroll give way when they ask more than `breedte`, also with what is hidden now:
// words wrap, fields get narrower.
void MaakSmaller(QWidget& inhoud, int breedte);
// Forgets what was measured before something in it came to ask another size.
void MeetOpnieuw(QWidget& inhoud);

}  // namespace lb77
