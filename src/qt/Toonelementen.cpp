#include "qt/Toonelementen.h"

#include <QFocusEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPalette>
#include <algorithm>
#include <functional>
#include <string>
#include <utility>

#include "forms/Bijschrift.h"
#include "forms/Leesformulier.h"
#include "qt/Bladzijde.h"
#include "qt/Stijl.h"
#include "qt/Vertaling.h"

namespace lb77 {

namespace {

constexpr int kLangeTekst = 70;     // characters; a longer label wraps
constexpr int kTellerBreedte = 10;  // characters kept free for a value
constexpr int kLangeWaarde = 36;    // a longer one gives way to the screen

class KlikLabel final : public QLabel {
 public:
  using QLabel::QLabel;
  std::function<void()> bijKlik;

 protected:
  void mousePressEvent(QMouseEvent* muis) override {
    ingedrukt_ = bijKlik && muis->button() == Qt::LeftButton;
    muis->setAccepted(static_cast<bool>(bijKlik));
  }
  void mouseReleaseEvent(QMouseEvent* muis) override {
    if (std::exchange(ingedrukt_, false) && rect().contains(muis->pos())) bijKlik();
  }

 private:
  bool ingedrukt_ = false;  // the second press of a double click is no press of its own
};

void ZetTekst(QLabel& label, const QString& tekst) {
  if (label.text() == tekst) return;
  label.setText(tekst);
  const bool lang = tekst.size() > kLangeTekst || tekst.contains(u'\n');
  if (lang && !label.wordWrap()) {
    label.setWordWrap(true);
    ZetTekenBreedte(label, kLangeTekst, false);
  }
}

class LabelElement final : public Element {
 public:
  LabelElement(Bediening& bediening, Bezorger& bezorger, QWidget& ouder)
      : Element(bediening), label_(*new KlikLabel(&ouder)) {
    ZetWidget(label_);
    label_.setTextFormat(Qt::PlainText);
    if (!bediening.HeeftKlik()) return;
    label_.bijKlik = [&bediening, &bezorger] { bezorger.Klik(bediening); };
  }

 private:
  void Toon() override { ZetTekst(label_, NaarQt(Bron().Bijschrift())); }

  KlikLabel& label_;
};

// The mouse arrives by way of the binder; the focus is seen by a line around the text.
class Wisselvlak final : public QLabel {
 public:
  explicit Wisselvlak(QWidget* ouder) : QLabel(ouder) {
    setTextFormat(Qt::PlainText);
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    setMargin(kRand);
  }

 protected:
  void paintEvent(QPaintEvent* verf) override {
    QLabel::paintEvent(verf);
    if (!hasFocus()) return;
    QPainter kwast(this);
    kwast.setPen(palette().color(QPalette::Highlight));
    kwast.drawRect(rect().adjusted(0, 0, -1, -1));
  }
  void focusInEvent(QFocusEvent* focus) override {
    QLabel::focusInEvent(focus);
    update();
  }
  void focusOutEvent(QFocusEvent* focus) override {
    QLabel::focusOutEvent(focus);
    update();
  }

 private:
  static constexpr int kRand = 2;  // pixels
};

// As wide as its longest text, so that nothing beside it moves.
class WisselElement final : public Element {
 public:
  WisselElement(Wissellabel& bron, QWidget& ouder)
      : Element(bron), label_(*new Wisselvlak(&ouder)) {
    ZetWidget(label_);
    int breedte = 0;
    for (const std::string& tekst : bron.Teksten()) {
      label_.setText(NaarQt(tekst));
      breedte = std::max(breedte, label_.sizeHint().width());
    }
    label_.setMinimumWidth(breedte);
  }

 private:
  void Toon() override { ZetTekst(label_, NaarQt(Bron().Bijschrift())); }

  Wisselvlak& label_;
};

// Never narrower than its value, unless that is very long or the layout says how wide it is.
class Waarde final : public QLabel {
 public:
  using QLabel::QLabel;
  [[nodiscard]] QSize minimumSizeHint() const override {
    const QSize eigen = QLabel::minimumSizeHint();
    return {std::clamp(eigen.width(), TekenBreedte(*this, kTellerBreedte),
                       TekenBreedte(*this, kLangeWaarde)),
            eigen.height()};
  }
};

class TellerElement final : public Element {
 public:
  TellerElement(Teller& teller, QWidget& ouder)
      : Element(teller), teller_(teller), label_(*new Waarde(&ouder)) {
    ZetWidget(label_);
    label_.setTextFormat(Qt::PlainText);
    label_.setFont(Vet(label_.font()));
  }

 private:
  void Toon() override { ZetTekst(label_, NaarQt(teller_.Tekst())); }

  Teller& teller_;
  QLabel& label_;
};

class PaginaElement final : public Element {
 public:
  PaginaElement(Tekstpagina& pagina, QWidget& ouder)
      : Element(pagina), pagina_(pagina), blad_(*new Bladzijde(&ouder)) {
    ZetWidget(blad_);
  }
  QWidget& Muisvlak() const override { return *blad_.viewport(); }

 private:
  void Toon() override {
    blad_.ZetTekst(NaarQt(pagina_.Waarde()));
    if (const auto* vind = dynamic_cast<const Vindpagina*>(&pagina_)) blad_.Merk(vind->Gemerkt());
  }

  Tekstpagina& pagina_;
  Bladzijde& blad_;
};

}  // namespace

std::unique_ptr<Element> MaakLabelElement(Bediening& label, Bezorger& bezorger, QWidget& ouder) {
  return std::make_unique<LabelElement>(label, bezorger, ouder);
}

std::unique_ptr<Element> MaakWisselElement(Wissellabel& label, QWidget& ouder) {
  return std::make_unique<WisselElement>(label, ouder);
}

std::unique_ptr<Element> MaakTellerElement(Teller& teller, QWidget& ouder) {
  return std::make_unique<TellerElement>(teller, ouder);
}

std::unique_ptr<Element> MaakPaginaElement(Tekstpagina& pagina, QWidget& ouder) {
  return std::make_unique<PaginaElement>(pagina, ouder);
}

}  // namespace lb77
