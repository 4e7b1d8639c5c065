// Groups of fields that the parameter dialogs of the ancestor reports share.
#pragma once

#include <cstdint>

#include "ancestors/KwstOpties.h"
#include "forms/Formulier.h"

namespace lb77 {

class Hoofdmodule;

// The person that a report is about, as the dialogs show him.
struct ProbandKop {
  explicit ProbandKop(Formulier& formulier);

  // Shows number, names ("<onbekend>" for a missing one) and lifetime.
  void Toon(Hoofdmodule& hoofd, std::int16_t nr);
  // First names and surname with a blank between them.
  [[nodiscard]] std::string Naam() const;

  Teller NrProband;
  Teller VoorNmProband;
  Teller AchterNmProband;
  Teller Periode;
};

// Number of the proband, first number to write, last generation; each with its leave check.
struct KwstNummerVelden {
  KwstNummerVelden(Formulier& formulier, Hoofdmodule& hoofd);

  // Number 1, from number 1, 80 generations.
  void Laad();
  void Bewaar(KwstOpties& opties) const;

  Tekstvak KwNrProband;
  Tekstvak VanafKwartier;
  Tekstvak MaxGen;

 private:
  [[nodiscard]] bool NrProbandVerlaten();
  [[nodiscard]] bool VanafVerlaten();
  [[nodiscard]] bool MaxGenVerlaten();
  [[nodiscard]] bool Weiger(std::string_view melding);

  Hoofdmodule& hoofd_;
};

}  // namespace lb77
