#include "qt/Berichtvenster.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <vector>

#include "qt/Vertaling.h"

namespace lb77 {

namespace {

struct Keuze {
  Antwoord antwoord;
  const char* tekst;
  QMessageBox::ButtonRole rol;
};

constexpr Keuze kOK{Antwoord::OK, "&OK", QMessageBox::AcceptRole};
constexpr Keuze kAnnuleren{Antwoord::Annuleren, "&Annuleren", QMessageBox::RejectRole};
constexpr Keuze kJa{Antwoord::Ja, "&Ja", QMessageBox::YesRole};
constexpr Keuze kNee{Antwoord::Nee, "&Nee", QMessageBox::NoRole};

// The last one is what closing the box means.
std::vector<Keuze> Keuzes(Knoppen knoppen) {
  switch (knoppen) {
    case Knoppen::OK:
      return {kOK};
    case Knoppen::OKAnnuleren:
      return {kOK, kAnnuleren};
    case Knoppen::JaNee:
    case Knoppen::NeeJa:
      return {kJa, kNee};
    case Knoppen::JaNeeAnnuleren:
      return {kJa, kNee, kAnnuleren};
  }
  return {kOK};
}

QMessageBox::Icon Symbool(BerichtSoort soort) {
  switch (soort) {
    case BerichtSoort::Geen:
      return QMessageBox::NoIcon;
    case BerichtSoort::Info:
      return QMessageBox::Information;
    case BerichtSoort::Uitroep:
      return QMessageBox::Warning;
    case BerichtSoort::Vraag:
      return QMessageBox::Question;
    case BerichtSoort::Stop:
      return QMessageBox::Critical;
  }
  return QMessageBox::NoIcon;
}

// A key that is still held from the form must not answer the box.
class Berichtvenster final : public QMessageBox {
 public:
  using QMessageBox::QMessageBox;

 protected:
  void keyPressEvent(QKeyEvent* toets) override {
    if (!toets->isAutoRepeat()) QMessageBox::keyPressEvent(toets);
  }
  bool eventFilter(QObject* waar, QEvent* wat) override {
    if (wat->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(wat)->isAutoRepeat())
      return true;
    return QMessageBox::eventFilter(waar, wat);
  }
};

QString Titel(const QWidget* ouder) {
  return ouder ? ouder->windowTitle() : QStringLiteral("LB77 voor Windows");
}

void Vul(QMessageBox& box, const QWidget* ouder, BerichtSoort soort, std::string_view tekst) {
  box.setWindowTitle(Titel(ouder));
  box.setIcon(Symbool(soort));
  box.setTextFormat(Qt::PlainText);
  box.setText(NaarQt(tekst));
}

}  // namespace

Antwoord ToonBericht(QWidget* ouder, BerichtSoort soort, Knoppen knoppen, std::string_view tekst) {
  Berichtvenster box(ouder);
  Vul(box, ouder, soort, tekst);
  const std::vector<Keuze> keuzes = Keuzes(knoppen);
  std::vector<QAbstractButton*> gemaakt;
  for (const Keuze& keuze : keuzes) {
    QPushButton* knop = box.addButton(QString::fromLatin1(keuze.tekst), keuze.rol);
    knop->installEventFilter(&box);
    gemaakt.push_back(knop);
  }
  const bool bedacht = knoppen == Knoppen::NeeJa;
  box.setDefaultButton(static_cast<QPushButton*>(bedacht ? gemaakt.back() : gemaakt.front()));
  box.setEscapeButton(gemaakt.back());
  box.exec();
  for (std::size_t i = 0; i < keuzes.size(); ++i) {
    if (box.clickedButton() == gemaakt[i]) return keuzes[i].antwoord;
  }
  return keuzes.back().antwoord;
}

bool ToonBerichtMetVinkje(QWidget* ouder, std::string_view tekst, std::string_view vinkje) {
  Berichtvenster box(ouder);
  Vul(box, ouder, BerichtSoort::Info, tekst);
  auto* vak = new QCheckBox(NaarQt(vinkje), &box);
  box.setCheckBox(vak);
  QPushButton* knop = box.addButton(QString::fromLatin1(kOK.tekst), kOK.rol);
  box.setDefaultButton(knop);
  box.setEscapeButton(knop);
  box.exec();
  return vak->isChecked();
}

}  // namespace lb77
