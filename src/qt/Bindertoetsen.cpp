// The part of the binder that hears keys and mouse and moves the focus.
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QFocusEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

#include "qt/Binder.h"
#include "qt/Bladzijde.h"
#include "qt/Toetsen.h"

namespace lb77 {

namespace {

bool IsInvoer(BedieningSoort soort) {
  return soort == BedieningSoort::Tekstvak || soort == BedieningSoort::Tekstblok ||
         soort == BedieningSoort::Padvak;
}

// To the ends of a field's text, which are the field's own.
bool IsRand(int code) {
  return code == toets::kHome || code == toets::kEnd;
}

bool IsLijst(BedieningSoort soort) {
  return soort == BedieningSoort::Keuzevak || soort == BedieningSoort::Keuzelijst;
}

bool IsDrukbaar(BedieningSoort soort) {
  return soort == BedieningSoort::Knop || soort == BedieningSoort::Optie ||
         soort == BedieningSoort::Vinkje || soort == BedieningSoort::Wissellabel;
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
  if (element && EigenToets(*element, toets)) return true;
  return false;
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
  doel->setFocus(muis ? Qt::MouseFocusReason : Qt::TabFocusReason);
}

}  // namespace lb77
