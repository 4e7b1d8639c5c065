// The events of a life and of a marriage as values, by name.
#pragma once

#include <cstdint>
#include <string>

#include "store/PersoonLB77.h"
#include "store/RelatieLB77.h"

namespace lb77 {

// Place and date of one event; 0 for what is not known. The place number has its qualifier.
struct Gebeurtenis {
  std::int16_t plaatsNr = 0;
  std::int16_t dagMaand = 0;  // day * 100 + month
  std::int16_t jaar = 0;

  [[nodiscard]] bool DatumBekend() const { return dagMaand != 0 || jaar != 0; }
  [[nodiscard]] bool Bekend() const { return plaatsNr != 0 || DatumBekend(); }
  friend bool operator==(const Gebeurtenis&, const Gebeurtenis&) = default;
};

// With a correction of "T" the two events of its pair are the bounds of one span.
struct Levensloop {
  Gebeurtenis geboorte;
  Gebeurtenis doop;
  Gebeurtenis overlijden;
  Gebeurtenis begrafenis;
  std::string gebCorr;
  std::string ovlCorr;
  std::string religie;    // of the baptism, as stored
  bool crematie = false;  // the burial is one

  friend bool operator==(const Levensloop&, const Levensloop&) = default;
};

// The bond of two persons. With a correction of "T" the civil and the church event are the bounds of
// one span.
struct Verbintenis {
  Gebeurtenis ondertrouw;
  Gebeurtenis wettig;
  Gebeurtenis kerk;
  std::string corr;
  std::string bond;        // "S" living together, "P" partnership, empty for a marriage
  std::string huwSoort;    // kind of the civil marriage, as stored
  std::string religie;     // of the church marriage, as stored
  bool scheiding = false;  // the church event is a divorce

  // Is any event known, or is the bond another than marriage?
  [[nodiscard]] bool HeeftGegevens() const {
    return !bond.empty() || ondertrouw.Bekend() || wettig.Bekend() || kerk.Bekend();
  }
  friend bool operator==(const Verbintenis&, const Verbintenis&) = default;
};

// Of the record in the buffer.
[[nodiscard]] Levensloop LevensloopVan(const PersoonLB77& persoon);
[[nodiscard]] Verbintenis VerbintenisVan(const RelatieLB77& relatie);

}  // namespace lb77
