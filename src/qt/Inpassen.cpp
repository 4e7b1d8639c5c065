#include "qt/Inpassen.h"

#include <QAbstractItemView>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QStyle>
#include <algorithm>

#include "qt/Stijl.h"

namespace lb77 {

namespace {

constexpr int kKortsteUitleg = 30;  // characters of a line of words that wrap
constexpr double kKrap = 0.6;       // of the width that a field has where there is room

void MaakSmaller(QWidget& veld) {
  const int smal = static_cast<int>(veld.minimumWidth() * kKrap);
  veld.setMinimumWidth(std::min(veld.minimumWidth(), std::max(smal, TekenBreedte(veld, 4))));
}

// Words that explain wrap; a value keeps some of its room.
void MaakSmaller(QLabel& label) {
  if (label.wordWrap()) {
    label.setMinimumWidth(TekenBreedte(label, kKortsteUitleg));
  } else if (label.minimumWidth() > 0) {
    MaakSmaller(static_cast<QWidget&>(label));
  } else if (!label.buddy() && label.text().size() > kKortsteUitleg) {
    label.setWordWrap(true);
    label.setMinimumWidth(TekenBreedte(label, kKortsteUitleg));
  }
}

// What the frames know of what is in them is old.
void VergeetMaten(QWidget& inhoud) {
  for (QGroupBox* kader : inhoud.findChildren<QGroupBox*>()) {
    if (kader->layout()) kader->layout()->invalidate();
    kader->updateGeometry();
  }
  inhoud.layout()->invalidate();
}

// The layouts within it too, which the toolkit forgets.
void Vergeet(QLayout& layout) {
  for (int i = 0; i < layout.count(); ++i) {
    if (QLayout* deel = layout.itemAt(i)->layout()) Vergeet(*deel);
  }
  layout.invalidate();
}

// Fields scroll in themselves, so that they can do with less room than their text asks.
void MaakAllesSmaller(QWidget& inhoud) {
  for (QLineEdit* veld : inhoud.findChildren<QLineEdit*>()) {
    if (veld->minimumWidth() < veld->maximumWidth()) MaakSmaller(*veld);
  }
  for (QPlainTextEdit* blok : inhoud.findChildren<QPlainTextEdit*>()) {
    MaakSmaller(static_cast<QWidget&>(*blok));
  }
  for (QAbstractItemView* lijst : inhoud.findChildren<QAbstractItemView*>()) {
    MaakSmaller(static_cast<QWidget&>(*lijst));
  }
  for (QLabel* label : inhoud.findChildren<QLabel*>()) MaakSmaller(*label);
}

// A row of buttons that is wider than the screen becomes two, one below the other.
void Breek(QBoxLayout& voet) {
  auto* links = new QHBoxLayout;
  links->setSpacing(voet.spacing());
  while (voet.count() > 0 && voet.itemAt(0)->widget()) links->addItem(voet.takeAt(0));
  links->addStretch(1);
  auto* rechts = new QHBoxLayout;
  rechts->setSpacing(voet.spacing());
  while (voet.count() > 0) rechts->addItem(voet.takeAt(0));
  voet.setDirection(QBoxLayout::TopToBottom);
  voet.addLayout(links);
  voet.addLayout(rechts);
}

void LaatRollen(QWidget& venster, QWidget& inhoud, QBoxLayout* voet, int rand) {
  auto& kolom = static_cast<QBoxLayout&>(*venster.layout());
  auto* rol = new QScrollArea(&venster);
  rol->setFrameShape(QFrame::NoFrame);
  rol->setWidgetResizable(true);
  rol->setFocusPolicy(Qt::NoFocus);
  delete kolom.replaceWidget(&inhoud, rol);
  rol->setWidget(&inhoud);
  if (!voet) return;
  static_cast<QLayout*>(voet->parent())->removeItem(voet);
  voet->setParent(nullptr);
  voet->setContentsMargins(rand, rand / 2, rand, rand);
  kolom.addLayout(voet);
}

}  // namespace

void MaakSmaller(QWidget& inhoud, int breedte) {
  if (inhoud.minimumSizeHint().width() <= breedte) return;
  MaakAllesSmaller(inhoud);
  MeetOpnieuw(inhoud);
}

void MeetOpnieuw(QWidget& inhoud) {
  Vergeet(*inhoud.layout());
}

QSize PasIn(QWidget& venster, QBoxLayout* voet, QSize ruimte, int rand) {
  QWidget& inhoud = *venster.layout()->itemAt(0)->widget();
  const int balk = venster.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  if (voet && voet->minimumSize().width() > ruimte.width() - 2 * rand) Breek(*voet);
  if (inhoud.minimumSizeHint().width() > ruimte.width()) {
    MaakAllesSmaller(inhoud);
    VergeetMaten(inhoud);
  }
  const QSize nodig = inhoud.minimumSizeHint();
  QSize maat = inhoud.sizeHint();
  if (nodig.width() > ruimte.width() || nodig.height() > ruimte.height()) {
    maat += QSize(balk, balk + rand);
    LaatRollen(venster, inhoud, voet, rand);
  }
  return maat;
}

}  // namespace lb77
