#include "exchange/GedcomRegels.h"

#include <algorithm>

#include "text/Ansel.h"
#include "text/Getallen.h"

namespace lb77 {

// Most texts have nothing to convert.
std::string GedcomTekst(std::string_view tekst) {
  const bool ascii = std::ranges::all_of(
      tekst, [](char teken) { return static_cast<unsigned char>(teken) < 0x80; });
  return ascii ? std::string(tekst) : WindowsNaarAnsel(tekst);
}

std::string GedcomFeit::DatumGetal() const {
  return datum == 0 ? std::string() : GetalTekst(datum);
}

void SchrijfVerwijzing(ExpUitvoer& uit, std::string_view tag, char soort, std::int16_t nr) {
  std::string regel("1 ");
  regel.append(tag).append(" @").append(1, soort).append(GetalTekst(nr)).append("@");
  uit.Regel(regel);
}

}  // namespace lb77
