// The rules of one check: what a walk over a file asks of each record.
#pragma once

#include <array>
#include <cstdint>
#include <functional>

#include "checks/Bevinding.h"

namespace lb77 {

// The optional tests, in the order of the tick boxes; what a check does not have counts for nothing.
using ControleKeuzen = std::array<bool, 5>;

// Knows no form and changes no record. A record that can't be read, and a continuation record, is
// passed over in silence.
class Controleur {
 public:
  using Melding = std::function<void(Bevinding)>;

  Controleur() = default;
  virtual ~Controleur() = default;
  Controleur(const Controleur&) = delete;
  Controleur& operator=(const Controleur&) = delete;

  // The highest record; below 2 there is nothing to check. Warns of a wrong count, once.
  [[nodiscard]] virtual std::int16_t Laatste() = 0;
  // Looks up in the files, as they are now, what the rules need of the whole; before the first Toets
  // and behind each change of a record.
  virtual void Begin(std::int16_t laatste) = 0;
  // Tests record `nr` and hands each finding to `meld`, in the order of the report.
  virtual void Toets(std::int16_t nr, const Melding& meld) = 0;
};

}  // namespace lb77
