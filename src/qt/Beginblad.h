// The finish of the pages that a user begins on: the window of welcome, and the start page.
#pragma once

#include <QWidget>

namespace lb77 {

// Gives headings their size, makes the buttons of the ways to a family equally wide, and lets what is
// hidden take no room. Does nothing to other forms.
void MaakBeginblad(QWidget& inhoud);

}  // namespace lb77
