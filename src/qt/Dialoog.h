// The window of a form that is not the main window.
#pragma once

#include <QCloseEvent>
#include <QDialog>
#include <QKeyEvent>
#include <QWheelEvent>

#include "qt/Vensterhouder.h"

namespace lb77 {

// A modal window that closes only when its form does, and has no default button.
class Dialoog final : public QDialog {
 public:
  Dialoog(Vensterhouder& houder, QWidget* ouder);

  void reject() override { houder_.SluitVenster(); }

 protected:
  void closeEvent(QCloseEvent* sluiten) override;
  void keyPressEvent(QKeyEvent* toets) override;
  void wheelEvent(QWheelEvent* wiel) override;

 private:
  Vensterhouder& houder_;
  int gedraaid_ = 0;  // of the wheel, less than a notch
};

}  // namespace lb77
