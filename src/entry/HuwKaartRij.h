// One line of a person's relations on his card.
#pragma once

#include <string>

#include "entry/HuwRegels.h"
#include "forms/Keuzen.h"
#include "forms/Rijnaam.h"
#include "forms/Weergave.h"
#include "text/Getallen.h"

namespace lb77 {

struct HuwKaartRij {
  HuwKaartRij(Formulier& formulier, int nummer)
      : LabelP(formulier, Genummerd("LabelP", nummer), "Partner " + GetalTekst(nummer)),
        RelNrP(formulier, Genummerd("RelNrP", nummer), {}, "Relatie " + GetalTekst(nummer)),
        RecordNrP(formulier, Genummerd("RecordNrP", nummer), {}, "Partner " + GetalTekst(nummer)),
        VoorNmP(formulier, Genummerd("VoorNmP", nummer)),
        AchterNmP(formulier, Genummerd("AchterNmP", nummer)) {}

  Label LabelP;
  Verwijzing RelNrP;
  Verwijzing RecordNrP;
  Teller VoorNmP;
  Teller AchterNmP;

  void Toon(const HuwRegel& regel) {
    ZetZichtbaar(true, true);
    RelNrP.ZetNr(regel.relatie);
    RecordNrP.ZetNr(regel.partner);
    VoorNmP.ZetTekst(regel.voornaam);
    AchterNmP.ZetTekst(regel.achternaam);
  }
  // The line that begins a new relation.
  void ToonNieuw(std::string_view teken) {
    MaakLeeg();
    ZetZichtbaar(true, false);
    RelNrP.ZetNr(0, teken);
  }
  void Verberg() {
    MaakLeeg();
    ZetZichtbaar(false, false);
  }
  // Is it the line that begins a new relation?
  [[nodiscard]] bool IsNieuw() const { return RelNrP.Zichtbaar() && !RecordNrP.Zichtbaar(); }

 private:
  void MaakLeeg() { Toon({}); }
  void ZetZichtbaar(bool relatie, bool partner) {
    LabelP.ZetZichtbaar(relatie);
    RelNrP.ZetZichtbaar(relatie);
    RecordNrP.ZetZichtbaar(partner);
    VoorNmP.ZetZichtbaar(partner);
    AchterNmP.ZetZichtbaar(partner);
  }
};

}  // namespace lb77
