#include "Toetsenbord.h"

#include <QAbstractButton>
#include <QAction>
#include <QMessageBox>
#include <QTimer>

#include "qt/Hoofdvenster.h"
#include "qt/Vertaling.h"

namespace lb77 {

namespace {

constexpr int kMeesteTabs = 200;  // more than any form has fields
constexpr int kMeesteKeren = 1000;
constexpr int kBlik = 1;  // milliseconds

}  // namespace

void Toetsenbord::Neem(std::string_view draaiboek) {
  Draaiboek boek = LeesDraaiboek(draaiboek);
  ASSERT_EQ(boek.fout, "");
  instructies_ = std::move(boek.instructies);
  while (!Klaar() && IsKlaarzetten(instructies_[volgende_].soort)) Doe(instructies_[volgende_++]);
  QTimer::singleShot(kBlik, &anker_, [this] { Kijk(); });
}

std::string Toetsenbord::Hier() const {
  return Klaar() ? std::string("the end") : instructies_[volgende_].tekst;
}

// The next look is asked for first: an instruction may open a form, and stay in it for long.
void Toetsenbord::Kijk() {
  QTimer::singleShot(kBlik, &anker_, [this] { Kijk(); });
  if (Klaar()) return;
  QWidget* venster = QApplication::activeModalWidget();
  if (!venster) venster = QApplication::activeWindow();
  if (!venster || qobject_cast<QMessageBox*>(venster)) return;
  if (!bezig_.empty() && bezig_.back() == venster) return;
  if (HasFailure()) return static_cast<void>(venster->close());
  if (Kan(*venster)) {
    bezig_.push_back(venster);
    Doe(instructies_[volgende_++]);
    bezig_.pop_back();
    return;
  }
  // A window that has closed is on top a moment longer.
  if (++gewacht_ > kMeesteKeren)
    ADD_FAILURE() << Bovenste().objectName().toStdString() << " has no " << Hier();
}

bool Toetsenbord::Kan(QWidget& venster) {
  const Instructie& een = instructies_[volgende_];
  if (IsKlaarzetten(een.soort)) return true;
  if (!venster.isVisible() || !venster.isActiveWindow()) return false;
  const auto* widget = venster.findChild<QWidget*>(NaarQt(een.naam));
  const bool kan =
      een.soort == InstructieSoort::Kies
          ? dynamic_cast<Hoofdvenster*>(&venster) != nullptr
          : widget && widget->isVisible() &&
                (een.soort == InstructieSoort::Toon || widget->focusPolicy() != Qt::NoFocus);
  if (kan) gewacht_ = 0;
  return kan;
}

void Toetsenbord::Doe(const Instructie& een) {
  switch (een.soort) {
    case InstructieSoort::Antwoord:
      for (const lb77::Antwoord knop : een.antwoorden) {
        const bool ja = knop == lb77::Antwoord::Ja;
        Antwoord({knop == lb77::Antwoord::OK ? "OK" : ja ? "Ja" : "Nee"});
      }
      return;
    case InstructieSoort::Kies:
      return dynamic_cast<Hoofdvenster&>(Bovenste()).Actie(een.naam)->trigger();
    case InstructieSoort::Vul:
      return Vul(een);
    case InstructieSoort::Druk:
      return Druk(een.naam);
    case InstructieSoort::Dubbelklik:
    case InstructieSoort::Toets:
      return Schakel(een.naam);
    case InstructieSoort::Stel:
      return Stel(een);
    case InstructieSoort::Typ:
    case InstructieSoort::Sluit:
    case InstructieSoort::Bestand:
    case InstructieSoort::Onderbreek:
      ADD_FAILURE() << "not for the keyboard: " << een.tekst;
      return;
    case InstructieSoort::Toon:
      return Toon(een);
  }
}

void Toetsenbord::Toon(const Instructie& een) {
  ADD_FAILURE() << "not for the keyboard: " << een.tekst;
}

// Onward, and back from the last control of a form, which some fields lead to.
bool Toetsenbord::GaNaar(const std::string& naam) {
  Qt::KeyboardModifiers met = Qt::NoModifier;
  for (int i = 0; i < kMeesteTabs && Focus() != naam; ++i) {
    if (Focus() == "BackButton") met ^= Qt::ShiftModifier;
    Toets(Qt::Key_Tab, met);
  }
  if (Focus() == naam) return true;
  ADD_FAILURE() << "no way to " << naam << " in " << Bovenste().objectName().toStdString();
  return false;
}

void Toetsenbord::Vul(const Instructie& een) {
  if (!GaNaar(een.naam)) return;
  Toets(Qt::Key_A, Qt::ControlModifier);
  Toets(Qt::Key_Delete);
  Typ(NaarQt(een.argument).toUtf8().constData());
  Toets(Qt::Key_Tab);
}

void Toetsenbord::Druk(const std::string& naam) {
  if (naam == "BackButton") {
    Toets(Qt::Key_Escape);
  } else if (GaNaar(naam)) {
    Toets(Qt::Key_Space);
  }
}

void Toetsenbord::Schakel(const std::string& naam) {
  if (GaNaar(naam)) Toets(Qt::Key_Space);
}

void Toetsenbord::Stel(const Instructie& een) {
  const bool aan = een.argument == "aan";
  if (Vind<QAbstractButton>(een.naam.c_str()).isChecked() != aan) Schakel(een.naam);
}

}  // namespace lb77
