// A lock on a directory, by which two runs of the program take turns.
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>

#include "store/SysteemFout.h"

namespace lb77 {

// Advisory: it binds those who take it too, in this process and in any other. The system itself lets
// it go when the program ends in whatever way, and nothing of it is left on the disk. On a file
// system that knows no locks everybody gets it.
class Slot {
 public:
  Slot() = default;
  ~Slot() { Laat(); }
  Slot(Slot&& ander) noexcept;
  Slot& operator=(Slot&& ander) noexcept;
  Slot(const Slot&) = delete;
  Slot& operator=(const Slot&) = delete;

  // Takes the lock of a directory, and tries again for as long as `geduld` when another has it; then
  // the error is FoutInGebruik. What was held is let go first.
  [[nodiscard]] SysteemFout Neem(const std::filesystem::path& map,
                                 std::chrono::milliseconds geduld = std::chrono::milliseconds(0));

  // Lets it go; does nothing when it is not held.
  void Laat();

  // True between a successful Neem and Laat.
  bool IsGenomen() const { return greep_ != kDicht; }

 private:
  [[nodiscard]] SysteemFout Probeer(const std::filesystem::path& map);

  static constexpr std::intptr_t kDicht = -1;
  std::intptr_t greep_ = kDicht;
};

}  // namespace lb77
