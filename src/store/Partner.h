// Who a person is bound to by a relation.
#pragma once

#include <cstdint>

#include "store/RelatieLB77.h"

namespace lb77 {

// The partner of `nr` in the relation in the buffer: the woman of a man (`isMan`), else the man;
// where that is the person himself, the other of the two. 0 for none.
[[nodiscard]] inline std::int16_t PartnerVan(const RelatieLB77& relatie, std::int16_t nr,
                                             bool isMan) {
  const std::int16_t man = relatie.ManNr();
  const std::int16_t vrouw = relatie.VrouwNr();
  const std::int16_t partner = isMan ? vrouw : man;
  if (partner != nr) return partner;
  return isMan ? man : vrouw;
}

}  // namespace lb77
