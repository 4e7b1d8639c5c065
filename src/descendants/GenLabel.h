// The number under which an entry of a descendant report is written.
#pragma once

#include <string>

namespace lb77 {

// The generation in Roman, from 1, and the place in it in letters: "I", "IIa", "IIz", "IIaa". Behind
// "zz" comes "aaa". A `volgNr` of 0 has no letter. With `uitgelijnd` the Roman number takes six
// places, to the right; a longer one loses its left side.
[[nodiscard]] std::string GenLabel(int generatie, int volgNr, bool uitgelijnd);

}  // namespace lb77
