#include "qt/Toonelementen.h"

#include <QLabel>
#include <QMouseEvent>
#include <functional>
#include <utility>

#include "forms/Bijschrift.h"
#include "qt/Bladzijde.h"
#include "qt/Stijl.h"
#include "qt/Vertaling.h"

namespace lb77 {

namespace {

constexpr int kLangeTekst = 70;     // characters; a longer label wraps
constexpr int kTellerBreedte = 10;  // characters kept free for a value

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

class TellerElement final : public Element {
 public:
  TellerElement(Teller& teller, QWidget& ouder)
      : Element(teller), teller_(teller), label_(*new QLabel(&ouder)) {
    ZetWidget(label_);
    label_.setTextFormat(Qt::PlainText);
    label_.setFont(Vet(label_.font()));
    ZetTekenBreedte(label_, kTellerBreedte, false);
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
  void Toon() override { blad_.ZetTekst(NaarQt(pagina_.Waarde())); }

  Tekstpagina& pagina_;
  Bladzijde& blad_;
};

}  // namespace

std::unique_ptr<Element> MaakLabelElement(Bediening& label, Bezorger& bezorger, QWidget& ouder) {
  return std::make_unique<LabelElement>(label, bezorger, ouder);
}

std::unique_ptr<Element> MaakTellerElement(Teller& teller, QWidget& ouder) {
  return std::make_unique<TellerElement>(teller, ouder);
}

std::unique_ptr<Element> MaakPaginaElement(Tekstpagina& pagina, QWidget& ouder) {
  return std::make_unique<PaginaElement>(pagina, ouder);
}

}  // namespace lb77
