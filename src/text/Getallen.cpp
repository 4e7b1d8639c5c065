#include "text/Getallen.h"

#include <algorithm>
#include <limits>

#include "text/Tekens.h"

namespace lb77 {

namespace {

using Grens32 = std::numeric_limits<std::int32_t>;

std::optional<std::int16_t> Versmal(std::int64_t getal) {
  using Grens16 = std::numeric_limits<std::int16_t>;
  if (getal < Grens16::min() || getal > Grens16::max()) return std::nullopt;
  return static_cast<std::int16_t>(getal);
}

}  // namespace

std::int32_t Getalwaarde(std::string_view tekst) {
  tekst = TrimLinks(tekst);
  const bool negatief = tekst.starts_with('-');
  if (negatief || tekst.starts_with('+')) tekst.remove_prefix(1);
  std::int64_t waarde = 0;
  for (const char teken : tekst) {
    if (!IsCijfer(teken)) break;
    // One past the largest positive number is as far as any sign needs.
    waarde = std::min<std::int64_t>(waarde * 10 + (teken - '0'), std::int64_t{Grens32::max()} + 1);
  }
  if (negatief) return static_cast<std::int32_t>(-waarde);
  return static_cast<std::int32_t>(std::min<std::int64_t>(waarde, Grens32::max()));
}

std::optional<std::int16_t> NaarInt16(std::int32_t getal) {
  return Versmal(getal);
}

std::optional<std::int16_t> TelOp(std::int16_t getal, std::int32_t erbij) {
  return Versmal(std::int64_t{getal} + erbij);
}

std::string GetalTekst(std::int64_t getal) {
  return std::to_string(getal);
}

std::string NrTekst(std::int32_t nr) {
  return nr == 0 ? std::string() : GetalTekst(nr);
}

std::string NulGevuld(std::int32_t getal, std::size_t breedte) {
  std::string tekst = GetalTekst(getal);
  if (tekst.size() < breedte) tekst.insert(getal < 0 ? 1 : 0, breedte - tekst.size(), '0');
  return tekst;
}

}  // namespace lb77
