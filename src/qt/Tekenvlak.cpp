#include "qt/Tekenvlak.h"

#include <QApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolButton>
#include <QToolTip>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "qt/Tekenaar.h"
#include "qt/Vertaling.h"

namespace lb77 {

namespace {

constexpr double kStap = 1.25;  // a zoom by key
constexpr double kGrootst = 16;
constexpr double kKleinst = 0.5;  // of the scale that shows the whole
constexpr double kLoop = 0.125;   // of the widget, a step of an arrow
constexpr int kRand = 8;          // pixels around the whole
constexpr int kKnop = 28;         // pixels
constexpr double kWielstap = 240;

}  // namespace

Tekenvlak::Tekenvlak(QWidget* ouder) : QWidget(ouder) {
  setFocusPolicy(Qt::TabFocus);
  setMouseTracking(true);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  MaakKnoppen();
}

void Tekenvlak::MaakKnoppen() {
  const auto knop = [this](const QString& teken, const QString& naam, auto doe) {
    auto* een = new QToolButton(this);
    een->setText(teken);
    een->setToolTip(naam);
    een->setAccessibleName(naam);
    een->setFocusPolicy(Qt::NoFocus);
    een->setMinimumSize(kKnop, kKnop);
    een->adjustSize();
    connect(een, &QToolButton::clicked, this, doe);
    knoppen_ << een;
  };
  const auto midden = [this] { return QRectF(rect()).center(); };
  knop(QStringLiteral("+"), QStringLiteral("Vergroten"), [=, this] { Zoom(kStap, midden()); });
  knop(QStringLiteral("−"), QStringLiteral("Verkleinen"), [=, this] { Zoom(1 / kStap, midden()); });
  knop(QStringLiteral("Alles"), QStringLiteral("Alles tonen"), [this] { ToonGeheel(); });
}

void Tekenvlak::ZetKnoppen() {
  int y = kRand;
  for (QWidget* knop : std::as_const(knoppen_)) {
    knop->move(width() - knop->width() - kRand, y);
    y += knop->height() + 2;
  }
}

void Tekenvlak::ZetBeeld(const Tekening& beeld) {
  beeld_ = &beeld;
  gekozen_ = -1;
  if (geheel_) ToonGeheel();
  update();
}

void Tekenvlak::ZetGekozen(int gekozen) {
  if (gekozen_ == gekozen) return;
  gekozen_ = gekozen;
  if (!geheel_) HoudInBeeld();
  update();
}

QPointF Tekenvlak::Plek(Punt punt) const {
  return begin_ + QPointF(punt.x, punt.y) * schaal_;
}

void Tekenvlak::ToonGeheel() {
  geheel_ = true;
  if (!beeld_ || beeld_->breedte <= 0 || beeld_->hoogte <= 0) return;
  const double breed = std::max(width() - 2 * kRand, 1);
  const double hoog = std::max(height() - 2 * kRand, 1);
  schaal_ = std::min(breed / beeld_->breedte, hoog / beeld_->hoogte);
  begin_ = {(width() - beeld_->breedte * schaal_) / 2, (height() - beeld_->hoogte * schaal_) / 2};
  update();
}

void Tekenvlak::Zoom(double keer, QPointF om) {
  if (!beeld_ || beeld_->breedte <= 0) return;
  const double passend = std::min(width() / beeld_->breedte, height() / beeld_->hoogte);
  const double schaal = std::clamp(schaal_ * keer, passend * kKleinst, std::max(kGrootst, passend));
  begin_ = om + (begin_ - om) * (schaal / schaal_);
  schaal_ = schaal;
  geheel_ = false;
  Verschuif({0, 0});
}

// Some of the drawing stays in view.
void Tekenvlak::Verschuif(QPointF over) {
  if (!beeld_) return;
  begin_ += over;
  geheel_ = geheel_ && over.isNull();
  const double breed = beeld_->breedte * schaal_;
  const double hoog = beeld_->hoogte * schaal_;
  begin_.setX(std::clamp(begin_.x(), -breed + width() / 2.0, width() / 2.0));
  begin_.setY(std::clamp(begin_.y(), -hoog + height() / 2.0, height() / 2.0));
  update();
}

void Tekenvlak::HoudInBeeld() {
  if (gekozen_ < 0) return;
  const Doel& doel = beeld_->doelen[static_cast<std::size_t>(gekozen_)];
  const QPointF plek = Plek(MiddenVan(beeld_->vormen[doel.vlak]));
  const QRectF binnen = QRectF(rect()).adjusted(kKnop, kKnop, -kKnop, -kKnop);
  if (!binnen.contains(plek)) Verschuif(QRectF(rect()).center() - plek);
}

bool Tekenvlak::Stap(int stap) {
  const int aantal = beeld_ ? static_cast<int>(beeld_->doelen.size()) : 0;
  const int naar = gekozen_ + stap;
  if (naar < 0 || naar >= aantal) return false;
  if (bijKies) bijKies(naar);
  return true;
}

bool Tekenvlak::NeemToets(const QKeyEvent& toets) {
  const QPointF midden = QRectF(rect()).center();
  if (toets.modifiers() & (Qt::AltModifier | Qt::MetaModifier)) return false;
  switch (toets.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      Zoom(kStap, midden);
      return true;
    case Qt::Key_Minus:
      Zoom(1 / kStap, midden);
      return true;
    case Qt::Key_0:
      ToonGeheel();
      return true;
    case Qt::Key_Left:
      Verschuif({width() * kLoop, 0});
      return true;
    case Qt::Key_Right:
      Verschuif({-width() * kLoop, 0});
      return true;
    case Qt::Key_Up:
      Verschuif({0, height() * kLoop});
      return true;
    case Qt::Key_Down:
      Verschuif({0, -height() * kLoop});
      return true;
    case Qt::Key_PageDown:
      return Stap(1);
    case Qt::Key_PageUp:
      return Stap(-1);
    default:
      return false;
  }
}

int Tekenvlak::DoelBij(QPointF plek) const {
  if (!beeld_ || schaal_ <= 0) return -1;
  const QPointF punt = (plek - begin_) / schaal_;
  return DoelOp(*beeld_, {punt.x(), punt.y()});
}

bool Tekenvlak::event(QEvent* wat) {
  if (wat->type() != QEvent::ToolTip) return QWidget::event(wat);
  const auto* hulp = static_cast<QHelpEvent*>(wat);
  const int doel = DoelBij(hulp->pos());
  if (doel < 0) {
    QToolTip::hideText();
  } else {
    QToolTip::showText(hulp->globalPos(),
                       NaarQt(beeld_->doelen[static_cast<std::size_t>(doel)].naam), this);
  }
  return true;
}

void Tekenvlak::paintEvent(QPaintEvent*) {
  QPainter verf(this);
  verf.fillRect(rect(), palette().color(QPalette::Mid));
  verf.setRenderHint(QPainter::Antialiasing);
  if (beeld_) {
    verf.save();
    verf.translate(begin_);
    verf.scale(schaal_, schaal_);
    const QRectF deel(-begin_ / schaal_, QSizeF(size()) / schaal_);
    TekenIn(verf, *beeld_, deel);
    if (gekozen_ >= 0) {
      const Doel& doel = beeld_->doelen[static_cast<std::size_t>(gekozen_)];
      QPen pen(Qt::black, 3);  // the paper is white, whatever the colours of the system
      pen.setCosmetic(true);
      verf.setPen(pen);
      verf.setBrush(Qt::NoBrush);
      verf.drawPath(OmtrekVan(beeld_->vormen[doel.vlak]));
    }
    verf.restore();
  }
  if (!hasFocus()) return;
  verf.setRenderHint(QPainter::Antialiasing, false);
  verf.setPen(QPen(palette().color(QPalette::Highlight), 2));
  verf.setBrush(Qt::NoBrush);
  verf.drawRect(rect().adjusted(1, 1, -1, -1));
}

void Tekenvlak::resizeEvent(QResizeEvent* maat) {
  QWidget::resizeEvent(maat);
  ZetKnoppen();
  if (geheel_) ToonGeheel();
}

void Tekenvlak::wheelEvent(QWheelEvent* wiel) {
  Zoom(std::pow(2.0, wiel->angleDelta().y() / kWielstap), wiel->position());
  wiel->accept();
}

void Tekenvlak::mousePressEvent(QMouseEvent* muis) {
  if (muis->button() != Qt::LeftButton) return;
  gepakt_ = muis->position();
  ingedrukt_ = true;
  sleept_ = false;
}

void Tekenvlak::mouseMoveEvent(QMouseEvent* muis) {
  if (!ingedrukt_) {
    setCursor(DoelBij(muis->position()) >= 0 ? Qt::PointingHandCursor : Qt::OpenHandCursor);
    return;
  }
  const QPointF over = muis->position() - gepakt_;
  if (!sleept_ && over.manhattanLength() < QApplication::startDragDistance()) return;
  sleept_ = true;
  gepakt_ = muis->position();
  setCursor(Qt::ClosedHandCursor);
  Verschuif(over);
}

void Tekenvlak::mouseReleaseEvent(QMouseEvent* muis) {
  if (muis->button() != Qt::LeftButton || !std::exchange(ingedrukt_, false)) return;
  const int doel = DoelBij(muis->position());
  if (sleept_ || doel < 0) return;
  if (bijKies) bijKies(doel);
  if (bijOpen) bijOpen();
}

void Tekenvlak::focusInEvent(QFocusEvent* focus) {
  QWidget::focusInEvent(focus);
  update();
}

void Tekenvlak::focusOutEvent(QFocusEvent* focus) {
  QWidget::focusOutEvent(focus);
  update();
}

}  // namespace lb77
