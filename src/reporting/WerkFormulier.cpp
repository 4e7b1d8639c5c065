#include "reporting/WerkFormulier.h"

#include "app/Hoofdmodule.h"
#include "forms/Gesprek.h"

namespace lb77 {

void WerkFormulier::Koppel(Knop& ok, Knop& terug) {
  ok.BijKlik([this] { Sluit(); });
  terug.BijKlik([this] {
    StopKeten();
    Sluit();
  });
}

void WerkFormulier::BijActiveren() {
  ZetBezig(true);
  Werk();
  ZetBezig(false);
}

bool WerkFormulier::Afbreken() {
  if (!hoofd_.gesprek.StopGevraagd(*this)) return false;
  if (!hoofd_.gesprek.Vraag("Opbouw Afbreken ?")) {
    WisStop();
    return false;
  }
  StopKeten();
  return true;
}

void WerkFormulier::Ververs() {
  hoofd_.gesprek.Ververs(*this);
}

void WerkFormulier::StopKeten() {
  hoofd_.volgers.HuidigPersoonNr = -1;
}

}  // namespace lb77
