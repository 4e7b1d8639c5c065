// The part of the binder for forms that are read: the wheel, and the keys with Ctrl.
#include <QKeyEvent>

#include "forms/Bladeraar.h"
#include "forms/Leesformulier.h"
#include "qt/Binder.h"
#include "qt/Bladzijde.h"
#include "qt/Toetsen.h"

namespace lb77 {

Bladzijde* Binder::Blad() const {
  for (const auto& [bediening, element] : elementen_) {
    if (bediening->Soort() == BedieningSoort::Tekstpagina) {
      return &static_cast<Bladzijde&>(element->Widget());
    }
  }
  return nullptr;
}

// The viewer comes back with the letters that its user chose.
void Binder::OnthoudVergroting() {
  Bladzijde* const blad = Blad();
  if (!blad) return;
  blad->ZetVergroting(instellingen_.Vergroting());
  blad->BijVergroting([this](int punten) { instellingen_.BewaarVergroting(punten); });
}

void Binder::Gerold(int stap) {
  auto* const bladeraar = dynamic_cast<Bladeraar*>(&formulier_);
  if (bladeraar && !verversend_ && !Geblokkeerd()) Verwerk([&] { bladeraar->Blader(stap); });
}

bool Binder::CtrlToets(const QKeyEvent& toets) {
  // Shift may be needed to type a plus; with Alt it is AltGr.
  const auto met = toets.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
  auto* const lezer = dynamic_cast<Leesformulier*>(&formulier_);
  if (!lezer || met != Qt::ControlModifier || Geblokkeerd() || verversend_) return false;
  const int code = toets.key();
  if (code >= Qt::Key_A && code <= Qt::Key_Z) {
    if (Bediening* const doel = lezer->BijCtrl(static_cast<char>(code))) {
      Verwerk([&] {
        doel->Soort() == BedieningSoort::Knop ? formulier_.Klik(*doel) : formulier_.GaNaar(*doel);
      });
      return true;
    }
  }
  Bladzijde* const blad = Blad();
  // A field has its own copy and its own whole.
  const Element* const hier = ElementVan(venster_->focusWidget());
  const bool inVeld = hier && hier->Bron().Soort() == BedieningSoort::Tekstvak;
  const bool eigen = code == Qt::Key_C || code == Qt::Key_A || code == Qt::Key_Insert;
  return blad && !(inVeld && eigen) && blad->CtrlToets(toets);
}

}  // namespace lb77
