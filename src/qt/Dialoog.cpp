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

// A fine wheel turns a notch in many small steps.
void Dialoog::wheelEvent(QWheelEvent* wiel) {
  const int draai = wiel->angleDelta().y();
  if ((draai > 0) != (gedraaid_ > 0)) gedraaid_ = 0;
  gedraaid_ += draai;
  if (gedraaid_ > -QWheelEvent::DefaultDeltasPerStep &&
      gedraaid_ < QWheelEvent::DefaultDeltasPerStep) {
    return;
  }
  const int stap = gedraaid_ > 0 ? -1 : 1;
  gedraaid_ = 0;
  houder_.Gerold(stap);
}

}  // namespace lb77
