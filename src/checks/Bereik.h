// How far a check walks a file.
#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>

#include "text/Getallen.h"

namespace lb77 {

class Bereik {
 public:
  // The highest number of the file of `record`. A wrong count is warned of the first time only; later
  // what was added meanwhile lies within it.
  template <class Record>
  [[nodiscard]] std::int16_t Tot(Record& record) {
    if (tot_) {
      const std::int32_t nu = std::min(record.AantalInAdmin() + 1, kMaxRecords);
      tot_ = std::max(*tot_, static_cast<std::int16_t>(nu));
    } else {
      tot_ = record.AantalRecords();
    }
    return *tot_;
  }

 private:
  std::optional<std::int16_t> tot_;
};

}  // namespace lb77
