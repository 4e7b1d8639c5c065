// The paths of tags, ‘INDI-BIRT-DATE’, level by level.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "exchange/GedRegel.h"

namespace lb77 {

// Holds for each level the path of the last line at that level. A level that a file skips keeps
// what an earlier line left there.
class GedPad {
 public:
  // Notes a line of that level, 0 to kHoogsteLevel.
  void Zet(int level, std::string_view tag);

  // The path of the last line of that level.
  [[nodiscard]] const std::string& Van(int level) const {
    return paden_[static_cast<std::size_t>(level)];
  }
  // The path above a line of that level, from 1.
  [[nodiscard]] const std::string& Ouder(int level) const { return Van(level - 1); }

 private:
  std::array<std::string, kHoogsteLevel + 1> paden_;
};

}  // namespace lb77
