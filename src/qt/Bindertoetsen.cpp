// The part of the binder that hears keys and mouse and moves the focus.
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QFocusEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPoint>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QScrollBar>
#include <cstdlib>

#include "forms/Hulpgever.h"
#include "qt/Binder.h"
#include "qt/Bladzijde.h"
#include "qt/Toetsen.h"

namespace lb77 {

namespace {

constexpr int kZelfdeRegel = 6;  // pixels between the middles of what stands on one line
constexpr int kMeer = 1 << 20;   // more than any window

bool IsInvoer(BedieningSoort soort) {
  return soort == BedieningSoort::Tekstvak || soort == BedieningSoort::Tekstblok ||
         soort == BedieningSoort::Padvak;
}

// To the ends of a field's text, which are the field's own.
bool IsRand(int code) {
  return code == toets::kHome || code == toets::kEnd;
}

bool IsLijst(BedieningSoort soort) {
  return soort == BedieningSoort::Keuzevak || soort == BedieningSoort::Keuzelijst ||
         soort == BedieningSoort::Beeldvlak;
}

bool IsDrukbaar(BedieningSoort soort) {
  return soort == BedieningSoort::Knop || soort == BedieningSoort::Optie ||
         soort == BedieningSoort::Vinkje || soort == BedieningSoort::Wissellabel;
}

// Up and down are the field's own, or the list's.
bool LooptInRooster(BedieningSoort soort) {
  return soort == BedieningSoort::Tekstvak || soort == BedieningSoort::Padvak ||
         soort == BedieningSoort::Knop || soort == BedieningSoort::Vinkje;
}

// Where the eye finds a control: the left end of its line.
QPoint Begin(const QWidget& widget, const QWidget& venster) {
  return widget.mapTo(&venster, QPoint(0, widget.height() / 2));
}

// A form that is larger than the screen scrolls along with the focus.
void BrengInBeeld(QWidget& widget) {
  for (QWidget* om = widget.parentWidget(); om; om = om->parentWidget()) {
    if (auto* rol = qobject_cast<QScrollArea*>(om)) rol->ensureWidgetVisible(&widget);
  }
}

// The user's own moves; the toolkit's other reasons are windows and menus that come and go.
bool IsVerzet(Qt::FocusReason reden) {
  return reden == Qt::MouseFocusReason || reden == Qt::TabFocusReason ||
         reden == Qt::BacktabFocusReason || reden == Qt::ShortcutFocusReason;
}

}  // namespace

bool Binder::eventFilter(QObject* waar, QEvent* wat) {
  Element* const element = ElementVan(waar);
  if (!element) return false;
  const BedieningSoort soort = element->Bron().Soort();
  switch (wat->type()) {
    case QEvent::KeyPress:
      return waar == &element->Widget() && VerwerkToets(element, *static_cast<QKeyEvent*>(wat));
    case QEvent::MouseButtonPress:
      if (waar != &element->Muisvlak()) return false;
      return (IsInvoer(soort) || IsLijst(soort)) && !GaNaar(*element);
    case QEvent::MouseButtonDblClick:
      if (waar == &element->Muisvlak() && !IsLijst(soort) && element->Bron().HeeftDubbelklik()) {
        Dubbelklik(element->Bron());
        return true;
      }
      return false;
    case QEvent::Wheel:
      return soort == BedieningSoort::Keuzevak && !element->Widget().hasFocus();
    case QEvent::Shortcut:
      if (waar != element->Prompt()) return false;
      GaNaar(*element);
      return true;
    case QEvent::FocusIn:
      if (waar == &element->Widget() && !eigenFocus_ &&
          IsVerzet(static_cast<QFocusEvent*>(wat)->reason())) {
        QMetaObject::invokeMethod(
            this, [this, element] { FocusGekregen(*element); }, Qt::QueuedConnection);
      }
      return false;
    default:
      return false;
  }
}

// A focus that moved behind our back (two controls with one accelerator).
void Binder::FocusGekregen(Element& element) {
  if (Geblokkeerd() || !element.Widget().hasFocus()) return;
  if (formulier_.FocusVeld() == &element.Bron()) return;
  gevolgd_ = nullptr;
  if (element.Bron().KanFocus()) GaNaar(element);
}

bool Binder::GaNaar(Element& element) {
  if (Geblokkeerd()) return false;
  Bediening& bron = element.Bron();
  if (formulier_.FocusVeld() == &bron || !bron.KanFocus()) return true;
  bool ok = false;
  Verwerk([&] { ok = formulier_.GaNaar(bron); });
  return ok;
}

bool Binder::VerwerkToets(Element* element, const QKeyEvent& toets) {
  // With Shift it types a text of the settings.
  if (toets.key() == Qt::Key_F1 && toets.modifiers() == Qt::NoModifier) {
    if (!toets.isAutoRepeat()) GeefHulp();
    return true;
  }
  if (element && !Geblokkeerd() && element->NeemToets(toets)) return true;
  const auto gebeurtenis = NaarToets(toets);
  if (!gebeurtenis) {
    if (CtrlToets(toets)) return true;
    const bool alt = toets.modifiers().testFlag(Qt::AltModifier);  // Alt+F4 is the window's own
    return (IsEenmalig(toets) && !alt) || IsAlt(toets);
  }
  if (Geblokkeerd()) return true;
  // A blank that is held presses once.
  const bool drukbaar = element && IsDrukbaar(element->Bron().Soort());
  if (drukbaar && gebeurtenis->code == toets::kSpatie && toets.isAutoRepeat()) return true;
  const bool inVeld = element && IsInvoer(element->Bron().Soort());
  if (!(inVeld && IsRand(gebeurtenis->code)) && Blader(gebeurtenis->code)) return true;
  bool klaar = false;
  Verwerk([&] { klaar = formulier_.Toets(element ? &element->Bron() : nullptr, *gebeurtenis); });
  if (klaar || formulier_.Gesloten() || fout_) return true;
  if (element && LoopInRooster(*element, gebeurtenis->code)) return true;
  if (element && EigenToets(*element, toets)) return true;
  return false;
}

void Binder::GeefHulp() {
  auto* const hulp = dynamic_cast<Hulpgever*>(&gesprek_);
  if (hulp && !verversend_ && !Geblokkeerd()) Verwerk([&] { hulp->GeefHulp(formulier_); });
}

// Up and Down go to the nearest line of controls above or below, and there to the control that
// begins most nearly in the same column.
bool Binder::LoopInRooster(Element& element, int code) {
  if (code != toets::kOmhoog && code != toets::kOmlaag) return false;
  if (!LooptInRooster(element.Bron().Soort())) return false;
  const QPoint hier = Begin(element.Widget(), *venster_);
  const int kant = code == toets::kOmlaag ? 1 : -1;
  Element* beste = nullptr;
  QPoint plek;
  for (const auto& [bediening, ander] : elementen_) {
    if (!bediening->Bruikbaar() || !bediening->KanFocus()) continue;
    const QPoint daar = Begin(ander->Widget(), *venster_);
    const int hoogte = (daar.y() - hier.y()) * kant;
    if (hoogte <= element.Widget().height() / 2) continue;
    const int verschil = beste ? hoogte - (plek.y() - hier.y()) * kant : -kMeer;
    const bool zelfdeRegel = std::abs(verschil) < kZelfdeRegel;
    const bool dichter = std::abs(daar.x() - hier.x()) < std::abs(plek.x() - hier.x());
    if (verschil <= -kZelfdeRegel || (zelfdeRegel && dichter)) {
      beste = ander.get();
      plek = daar;
    }
  }
  if (beste) GaNaar(*beste);
  return true;
}

// A key that the form leaves to the control.
bool Binder::EigenToets(Element& element, const QKeyEvent& toets) {
  const QString tekst = GetypteTekst(toets);
  if (!tekst.isEmpty() && element.Typ(tekst)) return true;
  switch (element.Bron().Soort()) {
    case BedieningSoort::Optie:
    case BedieningSoort::Knop:
    case BedieningSoort::Vinkje:
    case BedieningSoort::Wissellabel:
      return true;
    case BedieningSoort::Tekstvak:
    case BedieningSoort::Tekstblok:
    case BedieningSoort::Padvak:
    case BedieningSoort::Label:
    case BedieningSoort::Keuzevak:
    case BedieningSoort::Keuzelijst:
    case BedieningSoort::Beeldvlak:
    case BedieningSoort::Tekstpagina:
    case BedieningSoort::Teller:
    case BedieningSoort::MenuKeuze:
    case BedieningSoort::Statusbalk:
      return false;
  }
  return false;
}

// A sheet that is higher than its window scrolls first; at its edge the key goes to the form, which
// may turn the page.
bool Binder::Blader(int code) {
  Bladzijde* const blad = Blad();
  return blad && blad->Rol(code);
}

void Binder::ToetsInVenster(const QKeyEvent& toets) {
  // A key that a control did not want has been to the form already.
  if (ElementVan(venster_->focusWidget())) return;
  const auto veld = elementen_.find(formulier_.FocusVeld());
  const bool bruikbaar = veld != elementen_.end() && veld->first->Bruikbaar();
  VerwerkToets(bruikbaar ? veld->second.get() : nullptr, toets);
}

void Binder::VolgFocus() {
  Bediening* const veld = formulier_.FocusVeld();
  const auto gevonden = elementen_.find(veld);
  const bool kan = gevonden != elementen_.end() && veld->Bruikbaar();
  QWidget* const doel = kan ? &gevonden->second->Widget() : venster_.get();
  QWidget* const nu = venster_->focusWidget();
  if (doel == nu) {
    gevolgd_ = veld;
    return;
  }
  // A form without a focus leaves it where it rests, and the viewer's page keeps what the mouse gave.
  const Element* rust = ElementVan(nu);
  const bool blijft =
      !veld || (gevolgd_ == veld && rust && rust->Bron().Soort() == BedieningSoort::Tekstpagina);
  gevolgd_ = veld;
  if (blijft && rust && rust->Bron().Bruikbaar()) return;
  const QScopedValueRollback<bool> eigen(eigenFocus_, true);
  const bool muis = QApplication::mouseButtons() != Qt::NoButton;
  // Else only a Tab of the toolkit's own would show who has it.
  venster_->setAttribute(Qt::WA_KeyboardFocusChange);
  doel->setFocus(muis ? Qt::MouseFocusReason : Qt::TabFocusReason);
  // Before its window is active the toolkit would select nothing, and what is typed must replace.
  auto* const regel = qobject_cast<QLineEdit*>(doel);
  if (regel && !muis) regel->selectAll();
  BrengInBeeld(*doel);
}

}  // namespace lb77
