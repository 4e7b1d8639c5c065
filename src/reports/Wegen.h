// By how many ways each of a net of persons is a descendant of its first.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace lb77 {

// Links by index: from each person to his children, as often as each stands there.
using Net = std::vector<std::vector<std::size_t>>;

// How often a walk comes to a person.
struct Telling {
  std::size_t wie = 0;  // index
  std::int64_t keer = 0;
};

// The sum of counts that are not negative; the largest number there is for one that would be larger.
[[nodiscard]] std::int64_t TelBij(std::int64_t aantal, std::int64_t erbij);

// All whom links reach from index 0, himself first, and parents ahead of their children where links
// make no loop. A way comes by nobody twice. Ways through a knot of loops are walked one by one, as
// far as `stappen` links reach for all of them; in a knot beyond that each counts once for each way
// that leads into it.
inline constexpr std::int64_t kMeesteStappen = 1000000;
[[nodiscard]] std::vector<Telling> TelWegen(const Net& net, std::int64_t stappen = kMeesteStappen);

}  // namespace lb77
