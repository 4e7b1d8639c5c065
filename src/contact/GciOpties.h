// What the user chose for an export to the contact service.
#pragma once

#include <string>

namespace lb77 {

struct GciOpties {
  int aantalPersonen = 1;     // fewest persons of a series
  int minJaren = 0;           // smallest span of a series in years
  int maxGat = 50;            // years between two series that are still one
  int maxJaartal = 1900;      // nothing is told of later years
  bool gebPlaatsKind = true;  // what is known of a child's birth counts for the mother too
  std::string geslacht{};     // of the sender: "M" or "V"
  std::string email{};        // empty when there is none
  bool neemEnige = false;     // a place without a province code gets the only row of its name
};

}  // namespace lb77
