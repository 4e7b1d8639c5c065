#include "qt/Bladzijde.h"

#include <QApplication>
#include <QClipboard>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <algorithm>

#include "forms/Toets.h"
#include "qt/Stijl.h"

namespace lb77 {

namespace {

constexpr int kWit = 14;  // pixels between the edge of the sheet and its text
constexpr int kZichtbareRegels = 34;
constexpr qreal kKleinste = 6;  // points
constexpr qreal kGrootste = 40;

}  // namespace

Bladzijde::Bladzijde(QWidget* ouder) : QPlainTextEdit(ouder), begin_(font().pointSizeF()) {
  setReadOnly(true);
  setUndoRedoEnabled(false);
  setLineWrapMode(QPlainTextEdit::NoWrap);
  setFont(VasteLetter(begin_));
  setFocusPolicy(Qt::ClickFocus);
  document()->setDocumentMargin(kWit);
  ZetPapier(*this);
  setMinimumSize(40 * fontMetrics().horizontalAdvance(u'0'), 12 * fontMetrics().lineSpacing());
}

void Bladzijde::ZetTekst(const QString& tekst) {
  if (tekst == toPlainText()) return;
  setPlainText(tekst);
  gemerkt_ = {};  // the mark went with the text
}

void Bladzijde::Merk(const Vindpagina::Plek& plek) {
  if (plek == gemerkt_) return;
  gemerkt_ = plek;
  QTextCursor merk(document());
  if (plek.lengte > 0) {
    merk = QTextCursor(document()->findBlockByNumber(plek.regel));
    const int ruimte = std::max(merk.block().length() - 1 - plek.kolom, 0);
    merk.movePosition(QTextCursor::Right, QTextCursor::MoveAnchor, plek.kolom);
    merk.movePosition(QTextCursor::Right, QTextCursor::KeepAnchor, std::min(plek.lengte, ruimte));
  }
  setTextCursor(merk);
  // The selection pales while the focus is elsewhere.
  QTextEdit::ExtraSelection kleur;
  kleur.cursor = merk;
  kleur.format.setBackground(QColor(0xff, 0xe0, 0x66));
  kleur.format.setForeground(Qt::black);
  setExtraSelections({kleur});
  if (plek.lengte > 0) ensureCursorVisible();
}

bool Bladzijde::CtrlToets(const QKeyEvent& toets) {
  switch (toets.key()) {
    case Qt::Key_C:
    case Qt::Key_Insert:
      Kopieer();
      return true;
    case Qt::Key_A:
      selectAll();
      return true;
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      Vergroot(1);
      return true;
    case Qt::Key_Minus:
      Vergroot(-1);
      return true;
    case Qt::Key_0:
      Vergroot(0);
      return true;
    default:
      return false;
  }
}

void Bladzijde::Kopieer() {
  if (textCursor().hasSelection()) {
    copy();
  } else {
    QApplication::clipboard()->setText(toPlainText());
  }
}

void Bladzijde::Vergroot(int stap) {
  const int nu = qRound(font().pointSizeF() - begin_);
  ZetVergroting(stap == 0 ? 0 : nu + stap);
  if (bijVergroting_) bijVergroting_(qRound(font().pointSizeF() - begin_));
}

void Bladzijde::ZetVergroting(int punten) {
  setFont(VasteLetter(std::clamp(begin_ + punten, kKleinste, kGrootste)));
  LegInMidden();
}

void Bladzijde::wheelEvent(QWheelEvent* wiel) {
  if (!wiel->modifiers().testFlag(Qt::ControlModifier)) return QPlainTextEdit::wheelEvent(wiel);
  const int draai = wiel->angleDelta().y();
  if (draai != 0) Vergroot(draai > 0 ? 1 : -1);
  wiel->accept();
}

bool Bladzijde::Rol(int code) {
  QScrollBar& balk = *verticalScrollBar();
  const int oud = balk.value();
  switch (code) {
    case toets::kOmlaag:
      balk.triggerAction(QScrollBar::SliderSingleStepAdd);
      break;
    case toets::kOmhoog:
      balk.triggerAction(QScrollBar::SliderSingleStepSub);
      break;
    case toets::kPageDown:
      balk.triggerAction(QScrollBar::SliderPageStepAdd);
      break;
    case toets::kPageUp:
      balk.triggerAction(QScrollBar::SliderPageStepSub);
      break;
    case toets::kHome:
      balk.triggerAction(QScrollBar::SliderToMinimum);
      break;
    case toets::kEnd:
      balk.triggerAction(QScrollBar::SliderToMaximum);
      break;
    default:
      break;
  }
  return balk.value() != oud;
}

QSize Bladzijde::sizeHint() const {
  const int breedte = kBladKolommen * fontMetrics().horizontalAdvance(u'0') + 2 * kWit +
                      verticalScrollBar()->sizeHint().width() + 2 * frameWidth();
  return {breedte + 2, kZichtbareRegels * fontMetrics().lineSpacing() + 2 * kWit};
}

void Bladzijde::resizeEvent(QResizeEvent* maat) {
  LegInMidden();
  QPlainTextEdit::resizeEvent(maat);
}

// On a wide screen.
void Bladzijde::LegInMidden() {
  const int over = width() - sizeHint().width();
  const int rand = std::max(over / 2, 0);
  setViewportMargins(rand, 0, rand, 0);
}

}  // namespace lb77
