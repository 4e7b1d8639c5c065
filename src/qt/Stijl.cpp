#include "qt/Stijl.h"

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetrics>
#include <QIcon>
#include <QLibraryInfo>
#include <QPalette>
#include <QProxyStyle>
#include <QTranslator>
#include <algorithm>

#include "qt/Woorden.h"

namespace lb77 {

namespace {

constexpr qreal kKleinsteLetter = 11.0;  // points
constexpr int kRuimte = 18;              // pixels: frame and margins of a field

class Huisstijl final : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;
  int styleHint(StyleHint vraag, const QStyleOption* keuze, const QWidget* widget,
                QStyleHintReturn* uit) const override {
    if (vraag == SH_DialogButtonLayout) return QDialogButtonBox::WinLayout;
    // A greyed entry is reached too, and the status bar says why it is grey.
    if (vraag == SH_Menu_AllowActiveAndDisabled) return 1;
    return QProxyStyle::styleHint(vraag, keuze, widget, uit);
  }

  // What is ticked grows with the letters beside it.
  int pixelMetric(PixelMetric maat, const QStyleOption* keuze,
                  const QWidget* widget) const override {
    const int gewoon = QProxyStyle::pixelMetric(maat, keuze, widget);
    const bool hokje = maat == PM_IndicatorWidth || maat == PM_IndicatorHeight ||
                       maat == PM_ExclusiveIndicatorWidth || maat == PM_ExclusiveIndicatorHeight;
    if (!hokje || !widget) return gewoon;
    return std::max(gewoon, widget->fontMetrics().ascent());
  }
};

// What is disabled must still be read: half-way between the letters and their ground is too faint.
void MaakLeesbaar() {
  QPalette kleuren = QApplication::palette();
  const QColor inkt = kleuren.color(QPalette::Active, QPalette::WindowText);
  const QColor grond = kleuren.color(QPalette::Active, QPalette::Window);
  const auto meng = [](int een, int ander) { return (een * 6 + ander * 4) / 10; };
  const QColor grijs(meng(inkt.red(), grond.red()), meng(inkt.green(), grond.green()),
                     meng(inkt.blue(), grond.blue()));
  for (const auto rol : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    kleuren.setColor(QPalette::Disabled, rol, grijs);
  }
  QApplication::setPalette(kleuren);
}

}  // namespace

void ZetStijl(QApplication& programma) {
  // By these the desktop knows its windows as those of the menu entry.
  const QString naam = QStringLiteral("lb77");
  QApplication::setDesktopFileName(naam);
  QApplication::setWindowIcon(QIcon::fromTheme(naam));
  QApplication::setStyle(new Huisstijl());
  QFont letter = QApplication::font();
  letter.setPointSizeF(std::max(letter.pointSizeF(), kKleinsteLetter));
  QApplication::setFont(letter);
  MaakLeesbaar();
  auto* toolkit = new QTranslator(&programma);
  if (LaadNederlands(*toolkit)) QApplication::installTranslator(toolkit);
  // The last one is asked first.
  auto* woorden = new Woorden(&programma);
  QApplication::installTranslator(woorden);
}

QFont VasteLetter(qreal punten) {
  QFont letter(QStringLiteral("Courier New"));
  letter.setStyleHint(QFont::Monospace);
  letter.setFixedPitch(true);
  if (!QFontInfo(letter).fixedPitch()) letter = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  letter.setPointSizeF(std::max(punten, 1.0));
  return letter;
}

QFont Vet(QFont letter) {
  letter.setWeight(QFont::DemiBold);
  return letter;
}

int TekenBreedte(const QWidget& widget, int tekens) {
  return tekens * widget.fontMetrics().horizontalAdvance(u'n') + kRuimte;
}

void ZetTekenBreedte(QWidget& widget, int tekens, bool vast) {
  const int breedte = TekenBreedte(widget, tekens);
  widget.setMinimumWidth(breedte);
  if (vast) widget.setMaximumWidth(breedte);
}

void ToonAlleenLezen(QWidget& veld, bool alleenLezen) {
  QPalette kleuren = QApplication::palette(&veld);
  if (alleenLezen) kleuren.setColor(QPalette::Base, kleuren.color(QPalette::Window));
  veld.setPalette(kleuren);
}

void ZetPapier(QWidget& widget) {
  QPalette kleuren = widget.palette();
  kleuren.setColor(QPalette::Base, Qt::white);
  kleuren.setColor(QPalette::Text, QColor(0x1c, 0x1c, 0x1c));
  widget.setPalette(kleuren);
}

}  // namespace lb77
