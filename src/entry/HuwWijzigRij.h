// One line of a person's relations where he is edited: it shows, and leads nowhere.
#pragma once

#include "entry/HuwRegels.h"
#include "forms/Rijnaam.h"
#include "forms/Weergave.h"
#include "text/Getallen.h"

namespace lb77 {

struct HuwWijzigRij {
  HuwWijzigRij(Formulier& formulier, int nummer)
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

  void Toon(const HuwRegel& regel) {
    Vul(regel);
    ZetZichtbaar(true);
  }
  void Verberg() {
    Vul({});
    ZetZichtbaar(false);
  }

 private:
  void Vul(const HuwRegel& regel) {
    RelNrP.ZetTekst(NrTekst(regel.relatie));
    RecordNrP.ZetTekst(NrTekst(regel.partner));
    VoorNmP.ZetTekst(regel.voornaam);
    AchterNmP.ZetTekst(regel.achternaam);
  }
  void ZetZichtbaar(bool zichtbaar) {
    LabelP.ZetZichtbaar(zichtbaar);
    for (Teller* deel : {&RelNrP, &RecordNrP, &VoorNmP, &AchterNmP}) deel->ZetZichtbaar(zichtbaar);
  }
};

}  // namespace lb77
