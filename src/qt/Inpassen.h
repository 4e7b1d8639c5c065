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

}  // namespace lb77
