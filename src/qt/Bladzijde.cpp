#include "qt/Bladzijde.h"

#include <QScrollBar>
#include <algorithm>

#include "forms/Toets.h"
#include "qt/Stijl.h"

namespace lb77 {

namespace {

constexpr int kWit = 14;  // pixels between the edge of the sheet and its text
constexpr int kZichtbareRegels = 34;

}  // namespace

Bladzijde::Bladzijde(QWidget* ouder) : QPlainTextEdit(ouder) {
  setReadOnly(true);
  setUndoRedoEnabled(false);
  setLineWrapMode(QPlainTextEdit::NoWrap);
  setFont(VasteLetter(font().pointSizeF()));
  setFocusPolicy(Qt::ClickFocus);
  document()->setDocumentMargin(kWit);
  ZetPapier(*this);
  setMinimumSize(40 * fontMetrics().horizontalAdvance(u'0'), 12 * fontMetrics().lineSpacing());
}

void Bladzijde::ZetTekst(const QString& tekst) {
  if (tekst != toPlainText()) setPlainText(tekst);
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

// On a wide screen the sheet lies in the middle.
void Bladzijde::resizeEvent(QResizeEvent* maat) {
  const int over = width() - sizeHint().width();
  const int rand = std::max(over / 2, 0);
  setViewportMargins(rand, 0, rand, 0);
  QPlainTextEdit::resizeEvent(maat);
}

}  // namespace lb77
