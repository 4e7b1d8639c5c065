// A mark at each line of a file, one bit a line.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace lb77 {

class Regelmerken {
 public:
  // Marks a line, counted from 1.
  void Zet(std::int32_t regel) {
    const auto plaats = static_cast<std::size_t>(regel);
    if (plaats >= merken_.size()) merken_.resize(plaats + plaats / 2 + 64);
    merken_[plaats] = true;
  }
  [[nodiscard]] bool Heeft(std::int32_t regel) const {
    const auto plaats = static_cast<std::size_t>(regel);
    return plaats < merken_.size() && merken_[plaats];
  }

 private:
  std::vector<bool> merken_;
};

}  // namespace lb77
