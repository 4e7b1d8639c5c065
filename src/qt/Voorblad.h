// The quiet middle of the main window.
#pragma once

#include <QPaintEvent>
#include <QString>
#include <QWidget>

namespace lb77 {

// Shows the program's name and the active set before a faint pedigree.
class Voorblad final : public QWidget {
 public:
  using QWidget::QWidget;

  void ZetTekst(const QString& titel, const QString& onderschrift);

 protected:
  void paintEvent(QPaintEvent* verf) override;

 private:
  QString titel_;
  QString onderschrift_;
};

}  // namespace lb77
