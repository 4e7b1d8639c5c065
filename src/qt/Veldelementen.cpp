#include "qt/Veldelementen.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QTextCursor>
#include <algorithm>

#include "qt/Invoercontrole.h"
#include "qt/Stijl.h"
#include "qt/Vertaling.h"

namespace lb77 {

namespace {

constexpr int kBreedsteVeld = 40;  // characters, also for a field without a maximum
constexpr int kPadBreedte = 52;
constexpr int kVasteBreedte = 12;  // a field up to this length keeps its own width
constexpr int kSmalsteVeld = 16;   // to which a long field shrinks when it must

int Tekens(const Invoerveld& veld) {
  if (veld.Soort() == BedieningSoort::Padvak) return kPadBreedte;
  const std::size_t lengte = veld.MaxLengte() ? veld.MaxLengte() : kBreedsteVeld;
  return std::clamp(static_cast<int>(lengte), 3, kBreedsteVeld);
}

// What both kinds of fields share: they correct what an edit put in and bring it to the form.
class VeldElement : public Element {
 public:
  VeldElement(Invoerveld& veld, Bezorger& bezorger)
      : Element(veld), veld_(veld), bezorger_(bezorger) {}

  bool Typ(const QString& tekst) override {
    if (veld_.AlleenLezen()) return true;
    const Toelating in = LaatToe(veld_, tekst, Ruimte(Geschreven().size() - Gekozen().size()));
    if (!in.tekst.isEmpty()) Vervang(in.tekst);
    Meld(in.geweigerd);
    return true;
  }

 protected:
  [[nodiscard]] virtual QString Geschreven() const = 0;
  [[nodiscard]] virtual QString Gekozen() const = 0;
  virtual void Kies(Ingevoegd stuk) = 0;
  virtual void Voeg(const QString& tekst) = 0;
  virtual void Schrijf(const QString& tekst) = 0;
  virtual void ZetAlleenLezen(bool alleenLezen) = 0;

  // An edit by the toolkit itself: pasting, an input method, undo.
  void NaBewerking() {
    if (stil_) return;
    const QString nieuw = Geschreven();
    const Ingevoegd stuk = WatIsNieuw(getoond_, nieuw);
    const QString ruw = nieuw.mid(stuk.van, stuk.lengte);
    const Toelating in = LaatToe(veld_, ruw, Ruimte(nieuw.size() - stuk.lengte));
    if (in.tekst != ruw) {
      Kies(stuk);
      Vervang(in.tekst);
    }
    Meld(in.geweigerd);
  }

  void Toon() override {
    ZetAlleenLezen(veld_.AlleenLezen());
    Widget().setFocusPolicy(veld_.AlleenLezen() ? Qt::NoFocus : Qt::TabFocus);
    const QString tekst = NaarQt(veld_.Tekst());
    if (tekst == getoond_) return;
    const QScopedValueRollback<bool> stil(stil_, true);
    Schrijf(tekst);
    getoond_ = tekst;
  }

 private:
  [[nodiscard]] qsizetype Ruimte(qsizetype bezet) const {
    return static_cast<qsizetype>(veld_.MaxLengte()) - bezet;
  }

  // Over the selection.
  void Vervang(const QString& tekst) {
    const QScopedValueRollback<bool> stil(stil_, true);
    Voeg(tekst);
  }

  void Meld(bool geweigerd) {
    getoond_ = Geschreven();
    bezorger_.Bewerkt(veld_, VanQt(getoond_).tekst, geweigerd);
  }

  Invoerveld& veld_;
  Bezorger& bezorger_;
  QString getoond_;  // what the widget shows and the form knows
  bool stil_ = false;
};

// A line that asks the width of its text, and takes less where there is less.
class Regel final : public QLineEdit {
 public:
  Regel(int tekens, QWidget* ouder) : QLineEdit(ouder), tekens_(tekens) {
    const bool vast = tekens <= kVasteBreedte;
    ZetTekenBreedte(*this, std::min(tekens, kSmalsteVeld), vast);
  }
  [[nodiscard]] QSize sizeHint() const override {
    return {TekenBreedte(*this, tekens_), QLineEdit::sizeHint().height()};
  }

 private:
  int tekens_;
};

class RegelElement final : public VeldElement {
 public:
  RegelElement(Invoerveld& veld, Bezorger& bezorger, QWidget& ouder)
      : VeldElement(veld, bezorger), regel_(*new Regel(Tekens(veld), &ouder)) {
    ZetWidget(regel_);
    regel_.setAcceptDrops(false);
    QObject::connect(&regel_, &QLineEdit::textEdited, &regel_, [this] { NaBewerking(); });
  }

 private:
  QString Geschreven() const override { return regel_.text(); }
  QString Gekozen() const override { return regel_.selectedText(); }
  void Kies(Ingevoegd stuk) override {
    regel_.setSelection(static_cast<int>(stuk.van), static_cast<int>(stuk.lengte));
  }
  void Voeg(const QString& tekst) override { regel_.insert(tekst); }
  // Of a text that is wider than its field the beginning is seen, unless the user is at work in it.
  void Schrijf(const QString& tekst) override {
    regel_.setText(tekst);
    if (!regel_.hasFocus()) regel_.home(false);
  }
  void ZetAlleenLezen(bool alleenLezen) override {
    if (regel_.isReadOnly() == alleenLezen) return;
    regel_.setReadOnly(alleenLezen);
    ToonAlleenLezen(regel_, alleenLezen);
  }

  QLineEdit& regel_;
};

class BlokElement final : public VeldElement {
 public:
  BlokElement(Invoerveld& veld, Bezorger& bezorger, QWidget& ouder)
      : VeldElement(veld, bezorger), blok_(*new QPlainTextEdit(&ouder)) {
    ZetWidget(blok_);
    blok_.setAcceptDrops(false);
    ZetTekenBreedte(blok_, kBreedsteVeld, false);
    blok_.setMinimumHeight(5 * blok_.fontMetrics().lineSpacing());
    QObject::connect(&blok_, &QPlainTextEdit::textChanged, &blok_, [this] { NaBewerking(); });
  }
  QWidget& Muisvlak() const override { return *blok_.viewport(); }

 private:
  QString Geschreven() const override { return blok_.toPlainText(); }
  QString Gekozen() const override { return blok_.textCursor().selectedText(); }
  void Kies(Ingevoegd stuk) override {
    QTextCursor cursor = blok_.textCursor();
    cursor.setPosition(static_cast<int>(stuk.van));
    cursor.setPosition(static_cast<int>(stuk.van + stuk.lengte), QTextCursor::KeepAnchor);
    blok_.setTextCursor(cursor);
  }
  void Voeg(const QString& tekst) override { blok_.insertPlainText(tekst); }
  void Schrijf(const QString& tekst) override { blok_.setPlainText(tekst); }
  void ZetAlleenLezen(bool alleenLezen) override {
    if (blok_.isReadOnly() == alleenLezen) return;
    blok_.setReadOnly(alleenLezen);
    ToonAlleenLezen(blok_, alleenLezen);
  }

  QPlainTextEdit& blok_;
};

}  // namespace

std::unique_ptr<Element> MaakRegelElement(Invoerveld& veld, Bezorger& bezorger, QWidget& ouder) {
  return std::make_unique<RegelElement>(veld, bezorger, ouder);
}

std::unique_ptr<Element> MaakBlokElement(Invoerveld& veld, Bezorger& bezorger, QWidget& ouder) {
  return std::make_unique<BlokElement>(veld, bezorger, ouder);
}

}  // namespace lb77
