// An undo that the system let down.
#pragma once

#include <utility>

#include "store/OngedaanPlan.h"

namespace lb77 {

[[nodiscard]] inline OngedaanUitslag OngedaanMislukt(SysteemFout fout) {
  return {
      .soort = OngedaanUitslag::Soort::Mislukt, .nummer = 0, .plek = {}, .fout = std::move(fout)};
}

}  // namespace lb77
