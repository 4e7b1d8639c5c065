#include "qt/Voorblad.h"

#include <QHBoxLayout>
#include <QLinearGradient>
#include <QPainter>
#include <QPalette>
#include <QPen>

#include "qt/Stijl.h"

namespace lb77 {

namespace {

constexpr int kGeneraties = 5;
constexpr int kMarge = 24;  // pixels
// The controls take three parts of the width, the pedigree the rest.
constexpr int kInhoud = 3;
constexpr int kRest = 1;

QColor Gemengd(const QColor& een, const QColor& ander, qreal deel) {
  return QColor::fromRgbF(static_cast<float>(een.redF() * (1 - deel) + ander.redF() * deel),
                          static_cast<float>(een.greenF() * (1 - deel) + ander.greenF() * deel),
                          static_cast<float>(een.blueF() * (1 - deel) + ander.blueF() * deel));
}

// A person in the middle of `vak`, his parents on the right, and so on.
void TekenTak(QPainter& verf, const QRectF& vak, int diepte) {
  const qreal stap = vak.width() / (kGeneraties - diepte);
  const QPointF begin(vak.left(), vak.center().y());
  const QPointF knik(vak.left() + stap * 0.55, vak.center().y());
  verf.drawLine(begin, knik);
  if (diepte + 1 == kGeneraties) return;
  const QRectF rest(vak.left() + stap, vak.top(), vak.width() - stap, vak.height() / 2);
  const qreal boven = rest.center().y();
  const qreal onder = boven + vak.height() / 2;
  verf.drawLine(QPointF(knik.x(), boven), QPointF(knik.x(), onder));
  for (const qreal y : {boven, onder}) verf.drawLine(QPointF(knik.x(), y), QPointF(rest.left(), y));
  TekenTak(verf, rest, diepte + 1);
  TekenTak(verf, rest.translated(0, vak.height() / 2), diepte + 1);
}

}  // namespace

Voorblad::Voorblad(QWidget* ouder) : QWidget(ouder), inhoud_(new QWidget(this)) {
  auto* rij = new QHBoxLayout(this);
  rij->setContentsMargins(kMarge, kMarge, kMarge, kMarge);
  rij->addWidget(inhoud_, kInhoud);
  rij->addStretch(kRest);
}

void Voorblad::ZetTekst(const QString& titel, const QString& onderschrift) {
  if (titel == titel_ && onderschrift == onderschrift_) return;
  titel_ = titel;
  onderschrift_ = onderschrift;
  setAccessibleName(titel);
  setAccessibleDescription(onderschrift);
  update();
}

void Voorblad::paintEvent(QPaintEvent*) {
  QPainter verf(this);
  verf.setRenderHint(QPainter::Antialiasing);
  const QColor grond = palette().color(QPalette::Window);
  const QColor inkt = palette().color(QPalette::WindowText);
  QLinearGradient verloop(0, 0, 0, height());
  verloop.setColorAt(0, Gemengd(grond, palette().color(QPalette::Base), 0.8));
  verloop.setColorAt(1, grond);
  verf.fillRect(rect(), verloop);
  verf.setPen(QPen(Gemengd(grond, inkt, 0.13), 2));
  // Beside what is written, never behind it.
  const qreal links = stil_ ? inhoud_->geometry().right() + kMarge : width() * 0.55;
  const QRectF boom = QRectF(rect()).adjusted(links, height() * 0.06, -24, -height() * 0.06);
  if (boom.width() > 0) TekenTak(verf, boom, 0);
  if (!stil_) Schrijf(verf);
}

void Voorblad::Schrijf(QPainter& verf) {
  const QColor grond = palette().color(QPalette::Window);
  const QColor inkt = palette().color(QPalette::WindowText);
  QFont groot = Vet(font());
  groot.setPointSizeF(font().pointSizeF() * 2.1);
  verf.setFont(groot);
  verf.setPen(Gemengd(inkt, grond, 0.15));
  const QRectF tekst = QRectF(rect()).adjusted(48, 0, -width() * 0.48, 0);
  verf.drawText(tekst.adjusted(0, 0, 0, -height() * 0.5 - 4),
                Qt::AlignLeft | Qt::AlignBottom | Qt::TextWordWrap, titel_);
  QFont klein = font();
  klein.setPointSizeF(font().pointSizeF() * 1.15);
  verf.setFont(klein);
  verf.drawText(tekst.adjusted(0, height() * 0.5 + 10, 0, 0),
                Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, onderschrift_);
}

}  // namespace lb77
