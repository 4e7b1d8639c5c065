// A relation of the prescribed GEDCOM file.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "exchange/ExpUitvoer.h"
#include "exchange/GedcomOpmerkingen.h"
#include "exchange/GedcomRegels.h"
#include "exchange/PlaatsNamen.h"
#include "exchange/SelectieLijst.h"
#include "forms/Gesprek.h"
#include "store/Gegevens.h"

namespace lb77 {

// What the lines of a relation are made of, in Windows-1252.
struct GedcomRelatie {
  std::int16_t man = 0;
  std::int16_t vrouw = 0;
  std::array<std::int16_t, 29> kinderen{};
  std::string huwCorr;
  std::string soort;  // of the marriage
  std::string religie;
  GedcomFeit otr;
  GedcomFeit whuw;
  GedcomFeit khuw;
  bool scheiding = false;  // the fields of the church marriage tell of a divorce
  bool ongehuwd = false;   // living together, or a partnership
  std::int16_t opmCode = 0;

  // kept: the number of a rubric as a mask in two's complement, so that nearly every code has it.
  [[nodiscard]] bool Heeft(std::int16_t rubriek) const { return (opmCode & rubriek) != 0; }
};

// The relation in the buffer, but for its code of remarks. Reads on when there is a continuation
// record; one that can't be read is told to the user.
[[nodiscard]] GedcomRelatie HaalRelatie(const Gegevens& gegevens, PlaatsNamen& plaatsen,
                                        Gesprek& gesprek);

// All lines below "0 @F...@ FAM".
void SchrijfRelatie(const GedcomRelatie& relatie, const ExpSelectie& selectie, ExpUitvoer& uit,
                    GedcomOpmerkingen& opmerkingen);

}  // namespace lb77
