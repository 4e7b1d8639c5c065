// How far a check walks a file.
#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>

#include "text/Getallen.h"

namespace lb77 {

class Bereik {
 public:
  // The highest number of a file. The first time `luid` tells of a wrong count; later what was added
  // meanwhile lies within it, by `stil`.
  template <class Record>
  [[nodiscard]] std::int16_t Tot(Record& luid, Record& stil) {
    if (tot_) {
      const std::int32_t nu = std::min(stil.AantalInAdmin() + 1, kMaxRecords);
      tot_ = std::max(*tot_, static_cast<std::int16_t>(nu));
    } else {
      tot_ = luid.AantalRecords();
    }
    return *tot_;
  }

 private:
  std::optional<std::int16_t> tot_;
};

}  // namespace lb77
