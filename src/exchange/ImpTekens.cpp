#include "exchange/ImpTekens.h"

#include <array>
#include <string>

#include "text/Getallen.h"

namespace lb77 {

namespace {

// ‘U+00E9’: hexadecimal, at least four digits.
std::string Codepunt(char32_t teken) {
  constexpr std::string_view kCijfers = "0123456789ABCDEF";
  std::string uit;
  for (unsigned plaats = 24; plaats > 0;) {
    plaats -= 4;
    const unsigned cijfer = (teken >> plaats) & 0xFU;
    if (cijfer != 0 || !uit.empty() || plaats < 16) uit += kCijfers[cijfer];
  }
  return "U+" + uit;
}

}  // namespace

void ImpTekens::Tel(char32_t teken, std::int32_t regel) {
  Voeg(teken, {1, regel});
}

void ImpTekens::Voeg(const ImpTekens& andere) {
  for (const auto& [teken, telling] : andere.tellingen_) Voeg(teken, telling);
}

void ImpTekens::Voeg(char32_t teken, const Telling& erbij) {
  Telling& telling = tellingen_[teken];
  // A later pass may count an earlier line.
  if (telling.keer == 0 || erbij.eerste < telling.eerste) telling.eerste = erbij.eerste;
  telling.keer += erbij.keer;
}

void ImpTekens::Noteer(const std::function<void(std::string_view)>& log) const {
  for (const auto& [teken, telling] : tellingen_) {
    log("LET OP: teken " + Codepunt(teken) + " niet overgenomen: " + GetalTekst(telling.keer) +
        " keer, voor het eerst in regel " + GetalTekst(telling.eerste));
  }
}

}  // namespace lb77
