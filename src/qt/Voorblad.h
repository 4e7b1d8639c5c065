// The quiet middle of the main window.
#pragma once

#include <QPaintEvent>
#include <QPainter>
#include <QString>
#include <QWidget>

namespace lb77 {

// Shows the program's name and the active set before a faint pedigree.
class Voorblad final : public QWidget {
 public:
  explicit Voorblad(QWidget* ouder);

  // The part of it that may have controls; the pedigree shows beside it.
  [[nodiscard]] QWidget& Inhoud() const { return *inhoud_; }
  // With controls it writes no words of its own.
  void ZetStil(bool stil) { stil_ = stil; }

  void ZetTekst(const QString& titel, const QString& onderschrift);

 protected:
  void paintEvent(QPaintEvent* verf) override;

 private:
  void Schrijf(QPainter& verf);

  QWidget* inhoud_;
  bool stil_ = false;
  QString titel_;
  QString onderschrift_;
};

}  // namespace lb77
