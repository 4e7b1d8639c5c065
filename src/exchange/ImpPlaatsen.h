// The places of a GEDCOM file of our own, which has them as records.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "store/PlaatsLB77.h"

namespace lb77 {

// What makes two places one: name and province as they are stored, apart from upper and lower case.
// Empty for a place without a name, which is like no other.
[[nodiscard]] std::string PlaatsGelijkenis(std::string_view naam, std::string_view prov);

// Each place of the file gets one of its own: the first with its name and province that the set had
// before and that no other got, or a new one. The set's places are read at the first.
class ImpPlaatsen {
 public:
  // `plaats` outlives it.
  explicit ImpPlaatsen(PlaatsLB77& plaats) : plaats_(plaats) {}

  // Its number; 0 after a failure, which the record class tells the first time.
  [[nodiscard]] std::int16_t Neem(std::string_view naam, std::string_view prov);

 private:
  void Lees();
  [[nodiscard]] std::int16_t Nieuw(std::string_view naam, std::string_view prov);

  PlaatsLB77& plaats_;
  bool gelezen_ = false;
  bool mislukt_ = false;
  std::int16_t laatste_ = 0;
  // By likeness, the last number first.
  std::unordered_map<std::string, std::vector<std::int16_t>> bekend_;
};

}  // namespace lb77
