#include "Vensterproef.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

#include "qt/Vertaling.h"
#include "steun/SpeelToets.h"

namespace lb77 {

namespace {

// Milliseconds: a window that nobody closes, on a machine that builds.
constexpr int kNoodrem = 240000;

// One step each time that the event loop is at rest.
class Stappen {
 public:
  explicit Stappen(std::vector<std::function<void()>> stappen) : stappen_(std::move(stappen)) {}

  void Volgende() {
    if (volgende_ == stappen_.size()) return;
    const std::function<void()>& stap = stappen_[volgende_++];
    QTimer::singleShot(0, &anker_, [this, &stap] {
      stap();
      Volgende();
    });
  }

 private:
  std::vector<std::function<void()>> stappen_;
  std::size_t volgende_ = 0;
  QObject anker_;  // steps that are left die with it
};

}  // namespace

Vensterproef::Vensterproef() {
  QObject::connect(&wacht_, &QTimer::timeout, &wacht_, [this] { KijkRond(); });
  wacht_.start(1);
  QObject::connect(&noodrem_, &QTimer::timeout, &noodrem_, [] {
    std::fputs("a window stayed open\n", stderr);
    std::abort();
  });
  noodrem_.start(kNoodrem);
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

Vensterproef::~Vensterproef() {
  EXPECT_TRUE(antwoorden_.empty()) << "an answer was not asked for";
}

void Vensterproef::Voer(Formulier& formulier, std::vector<std::function<void()>> stappen) {
  stappen.insert(stappen.begin(), [] {
    static_cast<void>(QTest::qWaitFor([] { return QApplication::activeWindow(); }));
  });
  Stappen rij(std::move(stappen));
  rij.Volgende();
  gesprek.ToonModaal(formulier);
}

void Vensterproef::Antwoord(std::vector<QString> knoppen) {
  antwoorden_.insert(antwoorden_.end(), knoppen.begin(), knoppen.end());
}

void Vensterproef::Wacht(bool aan) {
  if (aan) {
    wacht_.start(1);
  } else {
    wacht_.stop();
  }
}

void Vensterproef::KijkRond() {
  auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  if (box && box->isVisible()) return Beantwoord(*box);
  auto* vraag = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
  if (vraag && vraag->isVisible() && beantwoordtBestanden) Beantwoord(*vraag);
}

void Vensterproef::Beantwoord(QFileDialog& vraag) {
  if (bestanden_.empty()) return vraag.reject();
  vraag.findChild<QLineEdit*>()->setText(PadNaarQt(bestanden_.front()));
  bestanden_.pop_front();
  static_cast<QDialog&>(vraag).accept();
}

void Vensterproef::Beantwoord(QMessageBox& box) {
  boxen.push_back(box.text().toStdString());
  NoteerGetoond(boxen.back());
  if (bijBox) bijBox(box);
  QString knop;
  if (!antwoorden_.empty()) {
    knop = antwoorden_.front();
    antwoorden_.pop_front();
  }
  for (QAbstractButton* een : box.buttons()) {
    if (knop.isEmpty() || een->text().remove(u'&') == knop) return een->click();
  }
  ADD_FAILURE() << "no button " << knop.toStdString() << " in: " << boxen.back();
  box.reject();
}

QWidget& Vensterproef::Bovenste() const {
  QWidget* venster = QApplication::activeModalWidget();
  if (!venster) venster = QApplication::activeWindow();
  if (!venster) venster = QApplication::topLevelWidgets().value(0);
  if (!venster) throw std::runtime_error("no window");
  return *venster;
}

std::string Vensterproef::Focus() const {
  const QWidget* widget = Bovenste().focusWidget();
  return widget ? widget->objectName().toStdString() : std::string();
}

void Vensterproef::Toets(int toets, Qt::KeyboardModifiers met) {
  QWidget* widget = Bovenste().focusWidget();
  QTest::keyClick(widget ? widget : &Bovenste(), static_cast<Qt::Key>(toets), met);
}

void Vensterproef::Typ(const char* utf8) {
  for (const QChar teken : QString::fromUtf8(utf8)) {
    QWidget* widget = Bovenste().focusWidget();
    QTest::sendKeyEvent(QTest::Click, widget, Qt::Key_unknown, QString(teken), Qt::NoModifier);
  }
}

}  // namespace lb77
