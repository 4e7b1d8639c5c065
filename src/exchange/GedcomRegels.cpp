#include "exchange/GedcomRegels.h"

#include "text/Ansel.h"
#include "text/Getallen.h"

namespace lb77 {

std::string GedcomTekst(std::string_view tekst) {
  return WindowsNaarAnsel(tekst);
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
