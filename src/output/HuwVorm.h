// Which marriage events of a relation are told, and which of them in one phrase.
#pragma once

#include <string_view>

namespace lb77 {

// The marriage events, as bits of a set.
namespace huw {
inline constexpr unsigned kOndertrouw = 1;
inline constexpr unsigned kWettig = 2;
inline constexpr unsigned kKerk = 4;  // church marriage or divorce
}  // namespace huw

// What is told: events by themselves, and at most one pair in one phrase.
struct HuwVorm {
  unsigned alleen = 0;
  unsigned samen = 0;

  friend bool operator==(const HuwVorm&, const HuwVorm&) = default;
};

// Chooses for the events `bekend`. `opmCode` holds the rubrics that have a remark, as positive
// bits: a pair is refused when a remark must follow one of its elements. `toonTrouw` shortens
// three events: "0" without the church, "1" without the banns, anything else all.
HuwVorm KiesHuwVorm(unsigned bekend, int opmCode, std::string_view toonTrouw);

}  // namespace lb77
