// One line of a person's relations where he is edited: it shows, and leads nowhere.
#pragma once

#include "forms/Rijnaam.h"
#include "forms/Weergave.h"
#include "text/Getallen.h"

namespace lb77 {

struct PartnerRij {
  PartnerRij(Formulier& formulier, int nummer)
      : LabelP(formulier, Genummerd("LabelP", nummer), "Partner " + GetalTekst(nummer)),
        RelNrP(formulier, Genummerd("RelNrP", nummer)),
        RecordNrP(formulier, Genummerd("RecordNrP", nummer)),
        VoorNmP(formulier, Genummerd("VoorNmP", nummer)),
        AchterNmP(formulier, Genummerd("AchterNmP", nummer)) {}

  Label LabelP;
  Teller RelNrP;
  Teller RecordNrP;
  Teller VoorNmP;
  Teller AchterNmP;

  void ZetZichtbaar(bool zichtbaar) {
    LabelP.ZetZichtbaar(zichtbaar);
    for (Teller* deel : {&RelNrP, &RecordNrP, &VoorNmP, &AchterNmP}) deel->ZetZichtbaar(zichtbaar);
  }
};

}  // namespace lb77
