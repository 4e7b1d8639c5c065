#include "qt/Keuzeelementen.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QFocusEvent>
#include <QFont>
#include <QListWidget>
#include <QPaintEvent>
#include <QPainter>
#include <QPen>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStringList>
#include <QStyle>
#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

#include "forms/Hersteld.h"
#include "qt/Stijl.h"
#include "qt/Vertaling.h"

namespace lb77 {

namespace {

constexpr int kNummer = 6;  // characters of a button for a number
constexpr int kLijstRegels = 8;
constexpr int kLijstBreedte = 44;    // characters
constexpr qsizetype kGemeten = 500;  // rows of a long list; a row takes the toolkit microseconds

class KnopElement : public Element {
 public:
  KnopElement(Bediening& bediening, Bezorger& bezorger, QAbstractButton& knop)
      : Element(bediening), knop_(knop) {
    ZetWidget(knop_);
    knop_.setFocusPolicy(Qt::TabFocus);
    QObject::connect(&knop_, &QAbstractButton::clicked, &knop_,
                     [&bediening, &bezorger] { bezorger.Klik(bediening); });
  }

 protected:
  void Toon() override {
    const QString tekst = NaarQt(Bron().Bijschrift());
    if (knop_.text() != tekst) knop_.setText(tekst);
  }
  [[nodiscard]] QAbstractButton& Knopvlak() const { return knop_; }

 private:
  QAbstractButton& knop_;
};

class SchakelElement final : public KnopElement {
 public:
  SchakelElement(Schakelaar& schakelaar, Bezorger& bezorger, QAbstractButton& knop)
      : KnopElement(schakelaar, bezorger, knop), schakelaar_(schakelaar) {
    knop.setAutoExclusive(false);
  }

 private:
  void Toon() override {
    KnopElement::Toon();
    const QSignalBlocker stil(Knopvlak());
    Knopvlak().setChecked(schakelaar_.Gekozen());
  }

  Schakelaar& schakelaar_;
};

QStringList Vertaald(const std::vector<std::string>& rijen) {
  QStringList uit;
  for (const std::string& rij : rijen) uit += NaarQt(rij);
  return uit;
}

class KeuzevakElement final : public Element {
 public:
  KeuzevakElement(Lijst& lijst, Bezorger& bezorger, QWidget& ouder)
      : Element(lijst), lijst_(lijst), vak_(*new QComboBox(&ouder)) {
    ZetWidget(vak_);
    vak_.setFocusPolicy(Qt::TabFocus);
    vak_.setSizeAdjustPolicy(QComboBox::AdjustToContents);
    QObject::connect(&vak_, &QComboBox::activated, &vak_,
                     [&lijst, &bezorger](int index) { bezorger.Kies(lijst, index); });
  }

 private:
  void Toon() override {
    const QSignalBlocker stil(vak_);
    if (rijen_ != lijst_.Rijen() || vak_.count() != static_cast<int>(rijen_.size())) {
      rijen_ = lijst_.Rijen();
      vak_.clear();
      vak_.addItems(Vertaald(rijen_));
    }
    vak_.setCurrentIndex(lijst_.Index());
  }

  Lijst& lijst_;
  QComboBox& vak_;
  std::vector<std::string> rijen_;
};

// The toolkit makes the first row current when a list without a choice gets the focus; that is no
// choice of the user's.
class Lijstvak final : public QListWidget {
 public:
  explicit Lijstvak(QWidget* ouder) : QListWidget(ouder) { setSpacing(kTussenRijen); }

  void ZetRegels(const QStringList& rijen) {
    clear();
    addItems(rijen);
    breedste_ = 0;
    for (const QString& rij : Langste(rijen)) {
      breedste_ = std::max(breedste_, fontMetrics().horizontalAdvance(rij));
    }
    breedste_ += 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1);
    // All rows are taken to be as large as the first, and the bar goes as far as that.
    if (count() > 0) item(0)->setSizeHint({breedste_, sizeHintForRow(0)});
    updateGeometry();
    if (isVisible()) VerbreedVenster();
  }
  // As wide as its widest row.
  [[nodiscard]] QSize sizeHint() const override {
    const int breedte =
        breedste_ + 2 * (frameWidth() + kTussenRijen) + verticalScrollBar()->sizeHint().width();
    return QListWidget::sizeHint().expandedTo({breedte, 0});
  }

 protected:
  void focusInEvent(QFocusEvent* focus) override {
    const QSignalBlocker stil(this);
    const bool leeg = currentRow() < 0;
    QListWidget::focusInEvent(focus);
    if (leeg) setCurrentRow(-1);
  }
  // Else a list in which nothing is chosen would not show that it has the focus.
  void paintEvent(QPaintEvent* verf) override {
    QListWidget::paintEvent(verf);
    if (!hasFocus()) return;
    QPainter rand(viewport());
    rand.setPen(QPen(palette().color(QPalette::Highlight), 2));
    rand.drawRect(viewport()->rect().adjusted(1, 1, -1, -1));
  }

 private:
  // The rows with the most characters, among which the widest is.
  static QStringList Langste(QStringList rijen) {
    const auto lengte = [](const QString& een, const QString& ander) {
      return een.size() > ander.size();
    };
    const qsizetype aantal = std::min(rijen.size(), kGemeten);
    std::partial_sort(rijen.begin(), rijen.begin() + aantal, rijen.end(), lengte);
    rijen.resize(aantal);
    return rijen;
  }
  // Rows that come when the window is there already; it stays on its screen.
  void VerbreedVenster() {
    QWidget& venster = *window();
    const int tekort = sizeHint().width() - width();
    if (tekort <= 0 || !venster.screen() || venster.isMaximized()) return;
    const QRect ruimte = venster.screen()->availableGeometry();
    const int kader = venster.frameGeometry().width() - venster.width();
    const int breed = std::min(venster.width() + tekort, ruimte.width() - kader);
    if (breed <= venster.width()) return;
    venster.resize(breed, venster.height());
    const int uiterste = ruimte.right() + 1 - breed - kader;
    venster.move(std::max(ruimte.left(), std::min(venster.x(), uiterste)), venster.y());
  }

  static constexpr int kTussenRijen = 2;  // pixels: the line of the focus touches no row
  int breedste_ = 0;
};

class KeuzelijstElement final : public Element {
 public:
  KeuzelijstElement(Lijst& lijst, Bezorger& bezorger, QWidget& ouder)
      : Element(lijst), lijst_(lijst), vak_(*new Lijstvak(&ouder)) {
    ZetWidget(vak_);
    vak_.setFocusPolicy(Qt::TabFocus);
    vak_.setUniformItemSizes(true);
    ZetTekenBreedte(vak_, kLijstBreedte, false);
    vak_.setMinimumHeight(kLijstRegels * (vak_.fontMetrics().lineSpacing() + 2));
    Verbind(bezorger);
  }
  QWidget& Muisvlak() const override { return *vak_.viewport(); }

 private:
  void Verbind(Bezorger& bezorger) {
    QObject::connect(&vak_, &QListWidget::currentRowChanged, &vak_,
                     [this, &bezorger](int rij) { bezorger.Kies(lijst_, rij); });
    QObject::connect(&vak_, &QListWidget::itemClicked, &vak_, [this, &bezorger] {
      if (lijst_.HeeftKlik()) bezorger.Klik(lijst_);
    });
    QObject::connect(&vak_, &QListWidget::itemDoubleClicked, &vak_,
                     [this, &bezorger] { bezorger.Dubbelklik(lijst_); });
  }

  void Toon() override {
    const QSignalBlocker stil(vak_);
    if (rijen_ != lijst_.Rijen()) {
      rijen_ = lijst_.Rijen();
      vak_.ZetRegels(Vertaald(rijen_));
      HaalHersteldeDoor();
    }
    if (vak_.currentRow() != lijst_.Index()) vak_.setCurrentRow(lijst_.Index());
  }

  void HaalHersteldeDoor() {
    QFont door = vak_.font();
    door.setStrikeOut(true);
    for (int rij = 0; rij < vak_.count(); ++rij) {
      if (rijen_[static_cast<std::size_t>(rij)].starts_with(kHersteld)) {
        vak_.item(rij)->setFont(door);
      }
    }
  }

  Lijst& lijst_;
  Lijstvak& vak_;
  std::vector<std::string> rijen_;
};

}  // namespace

std::unique_ptr<Element> MaakKnopElement(Bediening& knop, Bezorger& bezorger, QWidget& ouder) {
  auto& druk = *new QPushButton(&ouder);
  druk.setAutoDefault(false);
  if (dynamic_cast<const Verwijzing*>(&knop)) ZetTekenBreedte(druk, kNummer, true);
  return std::make_unique<KnopElement>(knop, bezorger, druk);
}

std::unique_ptr<Element> MaakSchakelElement(Schakelaar& schakelaar, Bezorger& bezorger,
                                            QWidget& ouder) {
  if (schakelaar.Soort() == BedieningSoort::Optie) {
    return std::make_unique<SchakelElement>(schakelaar, bezorger, *new QRadioButton(&ouder));
  }
  return std::make_unique<SchakelElement>(schakelaar, bezorger, *new QCheckBox(&ouder));
}

std::unique_ptr<Element> MaakKeuzevakElement(Lijst& lijst, Bezorger& bezorger, QWidget& ouder) {
  return std::make_unique<KeuzevakElement>(lijst, bezorger, ouder);
}

std::unique_ptr<Element> MaakKeuzelijstElement(Lijst& lijst, Bezorger& bezorger, QWidget& ouder) {
  return std::make_unique<KeuzelijstElement>(lijst, bezorger, ouder);
}

}  // namespace lb77
