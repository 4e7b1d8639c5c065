#include "exchange/ImpVerliezen.h"

#include "store/RecordRaam.h"
#include "text/Getallen.h"

namespace lb77 {

namespace {

// In the order of Verlies.
constexpr std::array<std::string_view, kVerliezen> kTeksten = {
    "plaatsnaam afgekapt",
    "naam afgekapt",
    "beroep afgekapt",
    "naam overschreven door een latere",
    "verwijzing naar een record dat er niet is",
    "opmerking afgekapt na tien regels",
    "NOTE niet overgenomen",
    "vervolg van een NOTE niet overgenomen",
    "tekst niet overgenomen",
    "regel achter TRLR niet gelezen",
};

}  // namespace

void ImpVerliezen::Tel(Verlies verlies, std::int32_t regel) {
  Telling& telling = tellingen_[static_cast<std::size_t>(verlies)];
  // A later pass may count an earlier line.
  if (telling.keer++ == 0 || regel < telling.eerste) telling.eerste = regel;
}

void ImpVerliezen::Noteer(const std::function<void(std::string_view)>& log) const {
  for (std::size_t i = 0; i < kVerliezen; ++i) {
    const Telling& telling = tellingen_[i];
    if (telling.keer == 0) continue;
    std::string regel = "LET OP: ";
    regel.append(kTeksten[i]).append(": ").append(GetalTekst(telling.keer));
    log(regel + " keer, voor het eerst in regel " + GetalTekst(telling.eerste));
  }
  if (!IsVol()) return;
  log("Opmerkingen vanaf " + volVanaf_ + " zijn niet opgeslagen: het maximum van " +
      GetalTekst(kMaxRecords) + " records is bereikt");
}

}  // namespace lb77
