// The widget of a drawing: zoom, pan, and from person to person.
#pragma once

#include <QKeyEvent>
#include <QPointF>
#include <QWidget>
#include <functional>

#include "forms/Tekening.h"

namespace lb77 {

// Shows the whole drawing until the user zooms. The wheel and plus and minus zoom, dragging and the
// arrows pan, 0 shows it whole again; a click on a person chooses and opens him. PageDown and PageUp
// choose the next and the one before: Tab leaves, however many there are.
class Tekenvlak final : public QWidget {
 public:
  explicit Tekenvlak(QWidget* ouder);

  std::function<void(int)> bijKies;
  std::function<void()> bijOpen;

  // The drawing, which outlives its use here.
  void ZetBeeld(const Tekening& beeld);
  // The person who is chosen, -1 for nobody; brings him into view.
  void ZetGekozen(int gekozen);
  // A key that zooms, pans or goes to the next person; False leaves it to the form.
  bool NeemToets(const QKeyEvent& toets);

  [[nodiscard]] double Schaal() const { return schaal_; }
  // Where a point of the drawing stands in the widget.
  [[nodiscard]] QPointF Plek(Punt punt) const;
  void Zoom(double keer, QPointF om);
  void ToonGeheel();

  [[nodiscard]] QSize sizeHint() const override { return {860, 520}; }
  [[nodiscard]] QSize minimumSizeHint() const override { return {320, 200}; }

 protected:
  bool event(QEvent* wat) override;
  void paintEvent(QPaintEvent* verf) override;
  void resizeEvent(QResizeEvent* maat) override;
  void wheelEvent(QWheelEvent* wiel) override;
  void mousePressEvent(QMouseEvent* muis) override;
  void mouseMoveEvent(QMouseEvent* muis) override;
  void mouseReleaseEvent(QMouseEvent* muis) override;
  void focusInEvent(QFocusEvent* focus) override;
  void focusOutEvent(QFocusEvent* focus) override;

 private:
  void Verschuif(QPointF over);
  [[nodiscard]] bool Stap(int stap);
  [[nodiscard]] int DoelBij(QPointF plek) const;
  void HoudInBeeld();
  void MaakKnoppen();
  void ZetKnoppen();

  const Tekening* beeld_ = nullptr;
  double schaal_ = 1;
  QPointF begin_;  // of the drawing, in the widget
  bool geheel_ = true;
  int gekozen_ = -1;
  QPointF gepakt_;  // where the mouse was last
  bool sleept_ = false;
  bool ingedrukt_ = false;
  QList<QWidget*> knoppen_;
};

}  // namespace lb77
