// The record on which a report failed.
#pragma once

#include <cstdint>

#include "store/Bestandenset.h"

namespace lb77 {

struct Leesfout {
  BestandSoort bestand = BestandSoort::Personen;
  std::int16_t nr = 0;

  friend bool operator==(const Leesfout&, const Leesfout&) = default;
};

}  // namespace lb77
