// A field of a record and the value that it shall get, for RecordRaam::Wijzig.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "store/Veld.h"
#include "text/Getallen.h"

namespace lb77 {

// The field by its name for Zet or by the byte table; the value as Zet takes it, in Windows-1252,
// or a number. A field of the byte table must outlive it.
struct VeldWaarde {
  VeldWaarde(std::string_view naam, std::string_view waarde) : naam(naam), waarde(waarde) {}
  VeldWaarde(std::string_view naam, std::int32_t getal) : naam(naam), waarde(GetalTekst(getal)) {}
  VeldWaarde(const Veld& veld, std::string_view waarde)
      : naam(veld.naam), veld(&veld), waarde(waarde) {}
  VeldWaarde(const Veld& veld, std::int32_t getal)
      : naam(veld.naam), veld(&veld), waarde(GetalTekst(getal)) {}
  // A letter is text, not its number.
  VeldWaarde(std::string_view naam, char teken) : naam(naam), waarde(1, teken) {}
  VeldWaarde(const Veld& veld, char teken) : naam(veld.naam), veld(&veld), waarde(1, teken) {}

  std::string_view naam;
  const Veld* veld = nullptr;  // none: to be found by its name
  std::string waarde;
};

}  // namespace lb77
