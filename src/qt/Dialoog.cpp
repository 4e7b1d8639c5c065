#include "qt/Dialoog.h"

namespace lb77 {

Dialoog::Dialoog(Vensterhouder& houder, QWidget* ouder) : QDialog(ouder), houder_(houder) {
  setWindowModality(Qt::ApplicationModal);
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  setWindowFlag(Qt::WindowMaximizeButtonHint, true);
}

void Dialoog::closeEvent(QCloseEvent* sluiten) {
  sluiten->ignore();
  houder_.SluitVenster();
}

void Dialoog::keyPressEvent(QKeyEvent* toets) {
  houder_.ToetsInVenster(*toets);
}

}  // namespace lb77
