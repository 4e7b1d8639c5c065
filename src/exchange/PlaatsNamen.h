// The names of places, each read once.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "store/PlaatsLB77.h"

namespace lb77 {

// For a run over all persons, who share their places. `plaats` outlives it, and the file of places
// does not change meanwhile.
class PlaatsNamen {
 public:
  explicit PlaatsNamen(PlaatsLB77& plaats) : plaats_(plaats) {}

  // The name, without its qualifier, of a place number with or without one; empty when there is none.
  // It stays where it is.
  [[nodiscard]] const std::string& Naam(std::int16_t plaatsNr);

 private:
  PlaatsLB77& plaats_;
  std::vector<std::unique_ptr<const std::string>> namen_;  // by record number
  const std::string geen_;
};

}  // namespace lb77
