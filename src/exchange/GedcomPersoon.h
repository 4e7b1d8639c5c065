// A person of the prescribed GEDCOM file.
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

// What the lines of a person are made of, in Windows-1252.
struct GedcomPersoon {
  std::string geslacht;
  std::string voornaam;
  std::string achternaam;   // as spoken
  std::string bareNaam;     // without its prefix
  std::string voorvoegsel;  // empty for none
  std::string beroep;
  std::string religie;
  std::string gebCorr;
  std::string ovlCorr;
  GedcomFeit geb;
  GedcomFeit doop;
  GedcomFeit ovl;
  GedcomFeit begr;
  bool crematie = false;
  std::int16_t ouders = 0;
  std::array<std::int16_t, 5> relaties{};
  std::int16_t opmRecord = 0;
  std::int16_t opmCode = 0;

  [[nodiscard]] bool Heeft(std::int16_t rubriek) const { return (opmCode & rubriek) != 0; }
};

// The person in the buffer. Reads on when there is a continuation record; one that can't be read is
// told to the user.
[[nodiscard]] GedcomPersoon HaalPersoon(const Gegevens& gegevens, PlaatsNamen& plaatsen,
                                        Gesprek& gesprek);

// All lines below "0 @I...@ INDI". `opmerkingen` stands on this person.
void SchrijfPersoon(const GedcomPersoon& persoon, const ExpSelectie& selectie, ExpUitvoer& uit,
                    GedcomOpmerkingen& opmerkingen);

}  // namespace lb77
